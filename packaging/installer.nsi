; Installs what the package of the component holds, for all users or for one, and takes it away again.
;
;   makensis -DVERSION=... -DTREE=FOLDER -DSIZE=KILOBYTES -DREMOVAL=FILE -DSETUP=FILE installer.nsi
;
; TREE is the unpacked package, REMOVAL deletes what is in it, SETUP is written. It is for a Windows of 64 bits, which gets
; both widths of the component.
;
; A user may say: SETUP.exe /S for no questions, /AllUsers or /CurrentUser, /D=FOLDER as the last one.
; The result is 0, 1 where the user stopped it, and 2 where the component could not be registered.

Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
Name "LumtexListView ${VERSION}"
OutFile "${SETUP}"
BrandingText " "
ManifestDPIAware true

!define ENTRY "Software\Microsoft\Windows\CurrentVersion\Uninstall\LumtexListView"
!define MULTIUSER_EXECUTIONLEVEL Highest
!define MULTIUSER_USE_PROGRAMFILES64
!define MULTIUSER_MUI
!define MULTIUSER_INSTALLMODE_COMMANDLINE
!define MULTIUSER_INSTALLMODE_INSTDIR LumtexListView
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_KEY "${ENTRY}"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_VALUENAME InstallLocation
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_KEY "${ENTRY}"
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_VALUENAME InstallLocation
!include MultiUser.nsh
!include MUI2.nsh
!include LogicLib.nsh

!insertmacro MUI_PAGE_LICENSE "${TREE}/LICENSE.txt"
!insertmacro MULTIUSER_PAGE_INSTALLMODE
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE English
!insertmacro MUI_LANGUAGE German

LangString notRegistered ${LANG_ENGLISH} "The component could not be registered. For all users this takes an administrator."
LangString notRegistered ${LANG_GERMAN} "Die Komponente konnte nicht registriert werden. Für alle Benutzer braucht es einen Administrator."

; Runs a command file of the package for those whom the component is installed for, and leaves its status in $0.
!macro RunForUsers file
    StrCpy $1 ""
    ${If} $MultiUser.InstallMode == "CurrentUser"
        StrCpy $1 " user"
    ${EndIf}
    nsExec::ExecToLog '"$SYSDIR\cmd.exe" /c ""$INSTDIR\${file}"$1"'
    Pop $0
!macroend

Function .onInit
    !insertmacro MULTIUSER_INIT
FunctionEnd

Function un.onInit
    !insertmacro MULTIUSER_UNINIT
FunctionEnd

Section
    ; An older one leaves first, so that nothing of it stays that this one lacks.
    ReadRegStr $2 SHCTX "${ENTRY}" InstallLocation
    ${If} $2 != ""
    ${AndIf} ${FileExists} "$2\uninstall.exe"
        ExecWait '"$2\uninstall.exe" /S /$MultiUser.InstallMode _?=$2'
    ${EndIf}

    SetOutPath "$INSTDIR"
    File /r "${TREE}/*.*"
    WriteUninstaller "$INSTDIR\uninstall.exe"
    WriteRegStr SHCTX "${ENTRY}" DisplayName "LumtexListView"
    WriteRegStr SHCTX "${ENTRY}" DisplayVersion "${VERSION}"
    WriteRegStr SHCTX "${ENTRY}" InstallLocation "$INSTDIR"
    WriteRegStr SHCTX "${ENTRY}" UninstallString '"$INSTDIR\uninstall.exe" /$MultiUser.InstallMode'
    WriteRegStr SHCTX "${ENTRY}" QuietUninstallString '"$INSTDIR\uninstall.exe" /$MultiUser.InstallMode /S'
    WriteRegDWORD SHCTX "${ENTRY}" EstimatedSize ${SIZE}
    WriteRegDWORD SHCTX "${ENTRY}" NoModify 1
    WriteRegDWORD SHCTX "${ENTRY}" NoRepair 1

    !insertmacro RunForUsers register.cmd
    ${If} $0 != 0
        MessageBox MB_ICONSTOP "$(notRegistered)" /SD IDOK
        ExecWait '"$INSTDIR\uninstall.exe" /S /$MultiUser.InstallMode _?=$INSTDIR'
        Delete "$INSTDIR\uninstall.exe"
        SetOutPath "$TEMP"
        RMDir "$INSTDIR"
        SetErrorLevel 2
        Abort
    ${EndIf}
SectionEnd

Section un.
    !insertmacro RunForUsers unregister.cmd
    ; What somebody else put into these folders stays, and so do they then.
    !include "${REMOVAL}"
    Delete "$INSTDIR\uninstall.exe"
    SetOutPath "$TEMP"
    RMDir "$INSTDIR"
    DeleteRegKey SHCTX "${ENTRY}"
SectionEnd
