' A host that has its word in what the user does: a mark, a key, an edit, a wrong index.
Option Explicit
Dim list, keysTurned, locked

Sub list_ItemCheck(Row, Column, NewValue, Cancel)
    If Row = locked Then Cancel = True
    WScript.Echo "check " & Row & "," & Column & " to " & CStr(NewValue) & ", cancelled " & CStr(Cancel)
End Sub
Sub list_ItemChecked(Row, Column, NewValue)
    WScript.Echo "checked " & Row & "," & Column & " is " & CStr(NewValue)
End Sub
Sub list_KeyDown(KeyCode, Shift)
    WScript.Echo "key " & KeyCode
    If keysTurned Then KeyCode = 40
End Sub
Sub list_ErrorWrongIndex(Index)
    WScript.Echo "wrong index " & Index
    Index = 1
End Sub
Sub list_SortDone
    WScript.Echo "sorted"
End Sub
Sub list_ItemChanged(Row, Column, NewValue)
    WScript.Echo "changed " & Row & "," & Column & " to " & NewValue
End Sub
Sub list_ColumnClick(Column)
    WScript.Echo "column " & Column
End Sub
Sub list_ItemClick(Row, Column)
    WScript.Echo "click " & Row & "," & Column
End Sub

Set list = CreateObject("LumtexListView.lmListView")
User.Show list
WScript.ConnectObject list, "list_"
list.RowsDynamic = False
list.RowHeight = 300
list.BorderVisible = False
list.ColumnsAdd "Task"
list.ColumnWidth(1) = 1500
list.ColumnCheckBoxes(1) = True
list.RowsAdd , ",", "wash"
list.RowsAdd , ",", "dry"
list.RowsAdd , ",", "iron"

locked = 2
User.Click list, 8, 35
User.Click list, 8, 55
WScript.Echo "marks: " & CStr(list.ItemChecked(1, 1)) & " " & CStr(list.ItemChecked(2, 1))

list.ListIndex = 1
User.KeyDown list, 38
WScript.Echo "up: " & list.ListIndex
keysTurned = True
User.KeyDown list, 38
WScript.Echo "turned: " & list.ListIndex

list.ListIndex = 99
list.Sort 1, 1
WScript.Echo "first: " & list.ItemText(1, 1)

list.ColumnAllowSorting(1) = True
User.Click list, 50, 10
WScript.Echo "first: " & list.ItemText(1, 1)

list.SetEdit 1, 1
User.EditorKeyPress list, Asc("x")
User.EditorKeyPress list, 13
WScript.Echo "edited: " & list.ItemText(1, 1)
WScript.Echo "done"
