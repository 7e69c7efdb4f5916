' Fills a list, sorts it in two ways, and looks something up.
'
'   cscript //nologo cities.vbs
Option Explicit

' A report waits in a box until somebody closes it, and nobody sees a box of a script that runs by itself: one wrong index
' would stop it for ever. While you write a script, leave this out: the box names what went wrong.
CreateObject("LumtexListView.Error").SilentError = True

Const cAscending = 1, cDescending = 2
Const cSortText = 0, cSortNumeric = 1
Const cFindStart = 0, cFindText = 1

Dim list, found
Set list = CreateObject("LumtexListView.lmListView")

' Nothing is painted while many rows are added.
list.AutoRedraw = False
list.ColumnsAdd "City", , , , 0, 2400, True
list.ColumnsAdd "Country", , , , 0, 2400, True
list.ColumnsAdd "Inhabitants", , , , 2, 1800, True
list.RowsAdd , ";", "Quito;Ecuador;2011388"
list.RowsAdd , ";", "Bern;Switzerland;134506"
list.RowsAdd , ";", "Nairobi;Kenya;4397073"
list.RowsAdd , ";", "Oslo;Norway;709037"
list.AutoRedraw = True

list.Sort 1, cAscending, cSortText
PrintList "By name:"
list.Sort 3, cDescending, cSortNumeric
PrintList "Largest first:"

' Columns count from 1. Patterns know * and ?, and cFindText takes no notice of case.
Set found = list.FindItem("nor*", cFindStart, cFindText)
If found.FindSuccessful Then
    WScript.Echo list.ItemText(found.FindRow, 1) & " is in " & list.ItemText(found.FindRow, found.FindColumn) & "."
Else
    WScript.Echo "There is no such city."
End If

Sub PrintList(title)
    Dim row
    WScript.Echo title
    For row = 1 To list.RowsCount
        WScript.Echo "  " & list.ItemText(row, 1) & ", " & list.ItemText(row, 2) & ": " & list.ItemText(row, 3)
    Next
End Sub
