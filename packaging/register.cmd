@echo off
rem Registers the component for all users, which takes an administrator, or for you alone:
rem
rem   register.cmd
rem   register.cmd user
setlocal
set flags=/s
if /i "%~1"=="user" set flags=/s /n /i:user
set status=0
if /i not "%PROCESSOR_ARCHITECTURE%"=="AMD64" goto narrow
"%SystemRoot%\System32\regsvr32.exe" %flags% "%~dp0x64\LumtexListView.ocx"
if errorlevel 1 set status=1
rem 32-bit programs of a 64-bit Windows have a registry of their own.
if not exist "%SystemRoot%\SysWOW64\regsvr32.exe" goto done
"%SystemRoot%\SysWOW64\regsvr32.exe" %flags% "%~dp0x86\LumtexListView.ocx"
if errorlevel 1 set status=1
goto done
:narrow
"%SystemRoot%\System32\regsvr32.exe" %flags% "%~dp0x86\LumtexListView.ocx"
if errorlevel 1 set status=1
:done
if %status%==0 (echo LumtexListView is registered.) else (echo LumtexListView could not be registered.)
exit /b %status%
