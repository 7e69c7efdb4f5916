' Properties of every type, read, assigned and read again.
Option Explicit
Dim list

Set list = CreateObject("LumtexListView.lmListView")
Sub Tell(name, value)
    WScript.Echo name & " = " & CStr(value) & " (" & TypeName(value) & ")"
End Sub

Tell "GridLines", list.GridLines
list.GridLines = True
Tell "GridLines", list.GridLines
Tell "BackColor", list.BackColor
list.BackColor = RGB(1, 2, 3)
Tell "BackColor", list.BackColor
list.BackColor = &H8000000F
Tell "BackColor", list.BackColor
Tell "RowHeight", list.RowHeight
list.RowHeight = 412.5
Tell "RowHeight", list.RowHeight
list.RowHeight = "300"
Tell "RowHeight", list.RowHeight
Tell "ColorStyle", list.ColorStyle
list.ColorStyle = 2
Tell "ColorStyle", list.ColorStyle
Tell "OLEDropMode", list.OLEDropMode
list.OLEDropMode = 1
Tell "OLEDropMode", list.OLEDropMode
Tell "ColumnTextY", list.ColumnTextY
list.ColumnTextY = list.ColumnTextY + 2.5
Tell "ColumnTextY", list.ColumnTextY

list.ColumnsAdd "Key"
list.ColumnTag(1) = "primary"
Tell "ColumnTag", list.ColumnTag("1")
list.RowsAdd , ",", "a"
Tell "ItemBackColor", list.ItemBackColor(1, 1)
list.ItemBackColor(1, 1) = 255
Tell "ItemBackColor", list.ItemBackColor(1, 1)
list.ItemToolTip(1, 1) = "Größe"
Tell "ItemToolTip", list.ItemToolTip(1, 1)
list.ItemTag(1, 1) = #2026-03-01#
Tell "ItemTag", list.ItemTag(1, 1)

On Error Resume Next
list.RowsCount = 7
WScript.Echo "read-only: " & Err.Number
Err.Clear
list.GridLines = "perhaps"
WScript.Echo "no Boolean: " & Err.Number
Err.Clear
list.NoSuchProperty = 1
WScript.Echo "unknown: " & Err.Number
WScript.Echo "done"
