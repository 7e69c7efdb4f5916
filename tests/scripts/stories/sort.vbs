' A table of results in four orders.
Option Explicit
Const cAscending = 1, cDescending = 2
Const cSortText = 0, cSortNumeric = 1, cSortDate = 2
Dim list

Sub Show(title)
    Dim row, line
    line = title & ":"
    For row = 1 To list.RowsCount
        line = line & " " & list.ItemText(row, 1)
    Next
    WScript.Echo line & " (column " & list.SortColumnIndex & ")"
End Sub

Set list = CreateObject("LumtexListView.lmListView")
list.ColumnsAdd "Runner"
list.ColumnsAdd "Laps"
list.ColumnsAdd "Born"
list.RowsAdd , ",", "Mia,9,1999-05-30"
list.RowsAdd , ",", "Ada,10,2001-01-02"
list.RowsAdd , ",", "Zoe,100,1987-12-24"
Show "as filled"
list.Sort 1, cAscending
Show "by name"
list.Sort 2, cAscending
Show "laps as text"
list.Sort 2, cAscending, cSortNumeric
Show "laps as numbers"
list.Sort 3, cDescending, cSortDate
Show "youngest first"
list.Sort 1
Show "without a mode"
list.Sort -1
Show "mark dropped"
WScript.Echo "done"
