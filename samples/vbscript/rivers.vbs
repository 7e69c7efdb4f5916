' Reads a table from a text file into a list: the first line names the columns, the others are rows.
'
'   cscript //nologo rivers.vbs [FILE]
Option Explicit

' A report waits in a box until somebody closes it, and nobody sees a box of a script that runs by itself: one wrong index
' would stop it for ever. While you write a script, leave this out: the box names what went wrong.
CreateObject("LumtexListView.Error").SilentError = True

Const cDescending = 2, cSortNumeric = 1
Const separator = ";"

Dim path, helper, list, lines, names, i
path = Left(WScript.ScriptFullName, InStrRev(WScript.ScriptFullName, "\")) & "..\data\rivers.csv"
If WScript.Arguments.Count > 0 Then path = WScript.Arguments(0)

Set helper = CreateObject("LumtexListView.SpEv")
If Not helper.FileExists(path) Then
    WScript.Echo "There is no file " & path
    WScript.Quit 1
End If
lines = Split(Replace(helper.TextRead(path), vbCr, ""), vbLf)

Set list = CreateObject("LumtexListView.lmListView")
list.AutoRedraw = False
names = Split(lines(0), separator)
For i = 0 To UBound(names)
    list.ColumnsAdd names(i)
    list.ColumnKey(i + 1) = names(i)
Next
For i = 1 To UBound(lines)
    If lines(i) <> "" Then list.RowsAdd , separator, lines(i)
Next
list.AutoRedraw = True

list.Sort 2, cDescending, cSortNumeric
WScript.Echo list.RowsCount & " rows, " & list.ColumnsCount & " columns"
For i = 1 To 3
    WScript.Echo i & ". " & list.ItemText(i, 1) & ", " & list.ItemText(i, 2) & " km, into the " & list.ItemText(i, 3)
Next
