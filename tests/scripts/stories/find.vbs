' The record of a search comes to scripts as an object.
Option Explicit
Const cFindStart = 0, cFindContinue = 1
Const cFindBinary = 0, cFindText = 1
Dim list, found, pattern, begin

Sub Tell(found)
    If found.FindSuccessful Then
        WScript.Echo "row " & found.FindRow & ", column " & found.FindColumn
    Else
        WScript.Echo "not found: " & found.FindRow & ", " & found.FindColumn
    End If
End Sub

Set list = CreateObject("LumtexListView.lmListView")
list.ColumnsAdd "Name"
list.ColumnsAdd "Place"
list.RowsAdd , ",", "Ada,London"
list.RowsAdd , ",", "Grace,New York"
list.RowsAdd , ",", "Alan,London"
list.ItemTag(2, 1) = "admiral"

Tell list.FindItem("L*", cFindStart)
Tell list.FindItem("L*", cFindContinue)
Tell list.FindItem("L*", cFindContinue)
Tell list.FindItem("gr*", cFindStart, cFindBinary)
Tell list.FindItem("gr*", cFindStart, cFindText)
Tell list.FindItem("<itemtag>adm*", cFindStart)
Tell list.FindItem("*", cFindStart, cFindBinary, "2,", "3,")

pattern = "A*"
begin = cFindStart
Set found = list.FindItem(pattern, begin)
WScript.Echo TypeName(found.FindSuccessful) & " " & TypeName(found.FindRow) & " " & TypeName(found.FindColumn)
Do While found.FindSuccessful
    WScript.Echo "A: " & list.ItemText(found.FindRow, 1)
    Set found = list.FindItem(pattern, cFindContinue, cFindBinary, "1,")
Loop
WScript.Echo "done"
