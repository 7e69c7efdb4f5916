' Follows a log file while it grows: takes in what is new, lets a line grow that has no end yet, and begins anew
' where the file was cut short.
'
'   cscript //nologo log.vbs [FOLDER]
'
' So that there is something to follow, the script writes the file itself.
Option Explicit

' A report waits in a box until somebody closes it, and nobody sees a box of a script that runs by itself: one wrong index
' would stop it for ever. While you write a script, leave this out: the box names what went wrong.
CreateObject("LumtexListView.Error").SilentError = True

Const forWriting = 2, forAppending = 8
Const temporaryFolder = 2
Const lineColumn = 1, textColumn = 2

Dim files, path, helper, list
Set files = CreateObject("Scripting.FileSystemObject")
path = files.GetSpecialFolder(temporaryFolder).Path
If WScript.Arguments.Count > 0 Then path = WScript.Arguments(0)
path = path & "\service.log"
Set helper = CreateObject("LumtexListView.SpEv")

Dim charactersRead, lastLineIsOpen
charactersRead = 0
lastLineIsOpen = False
Set list = CreateObject("LumtexListView.lmListView")
list.ColumnsAdd "Line", , , , 2, 900
list.ColumnsAdd "Text", , , , 0, 6000

Service forWriting, "started" & vbCrLf & "listening" & vbCrLf
Follow
Service forAppending, "request 1" & vbCrLf & "requ"
Follow
Service forAppending, "est 2" & vbCrLf & "ERROR: disk is full" & vbCrLf
Follow
Service forWriting, "started anew" & vbCrLf
Follow

' What another program would do.
Sub Service(mode, text)
    Dim stream
    Set stream = files.OpenTextFile(path, mode, True)
    stream.Write text
    stream.Close
End Sub

Sub Follow
    Dim text, lines, i
    text = helper.TextRead(path)
    list.AutoRedraw = False ' one repaint for all that is new
    If Len(text) < charactersRead Then
        list.RowsClear
        charactersRead = 0
        lastLineIsOpen = False
    End If
    lines = Split(Mid(text, charactersRead + 1), vbCrLf)
    charactersRead = Len(text)
    For i = 0 To UBound(lines)
        ' What stands behind the last end of a line may be nothing yet.
        If i < UBound(lines) Or lines(i) <> "" Then AddLine lines(i)
        lastLineIsOpen = i = UBound(lines) And lines(i) <> ""
    Next
    list.AutoRedraw = True
    Show
End Sub

Sub AddLine(text)
    If lastLineIsOpen Then
        list.ItemText(list.RowsCount, textColumn) = list.ItemText(list.RowsCount, textColumn) & text
    Else
        list.RowsAdd , vbTab, CStr(list.RowsCount + 1) & vbTab & text
    End If
    If InStr(list.ItemText(list.RowsCount, textColumn), "ERROR") > 0 Then
        list.ItemForeColor(list.RowsCount, textColumn) = RGB(176, 0, 32)
    End If
End Sub

Sub Show
    Dim row, line
    WScript.Echo list.RowsCount & " lines"
    For row = 1 To list.RowsCount
        line = "  " & list.ItemText(row, lineColumn) & " " & list.ItemText(row, textColumn)
        If list.ItemForeColor(row, textColumn) <> 0 Then line = line & " (red)"
        WScript.Echo line
    Next
End Sub
