' A price list is filled line by line.
Option Explicit
Dim list, place

Set list = CreateObject("LumtexListView.lmListView")
list.AutoRedraw = False
list.ColumnsAdd "Article", , , , 0, 2400
list.ColumnsAdd "Price", , , , 2, 1200, True
list.ColumnKey(2) = "price"
WScript.Echo "columns: " & list.ColumnsCount

list.RowsAdd -1, ";", "Chisel;12,50"
list.RowsAdd , ";", "Hammer;19,90"
place = 0
list.RowsAdd place, ";", "Adze;44,00"
WScript.Echo "inserted at " & place & ", new row " & list.NewIndex
place = 77
list.RowsAdd place, ";", "Saw;23,10"
WScript.Echo "appended at " & place

list.ItemText(2, 1) = "Wood chisel"
list.ItemTag(2, 1) = 4711
list.ItemForeColor(2, 1) = RGB(200, 0, 0)
list.AutoRedraw = True
list.Redraw

Dim row
For row = 1 To list.RowsCount
    WScript.Echo row & ": " & list.ItemText(row, 1) & " costs " & list.ItemText(row, 2)
Next
WScript.Echo "tag: " & list.ItemTag(2, 1)
WScript.Echo "colour: " & list.ItemForeColor(2, 1)
WScript.Echo "width: " & list.ColumnWidth(1) & ", key: " & list.ColumnKey(2)

list.RowsRemove 1
WScript.Echo "first is now " & list.ItemText(1, 1)
list.RowsClear
list.ColumnsClear
WScript.Echo "rows: " & list.RowsCount & ", columns: " & list.ColumnsCount
WScript.Echo "done"
