' A recordset of the system, without a database behind it, fills the list.
Option Explicit
Const adInteger = 3, adVarWChar = 202, adDouble = 5, adFldIsNullable = 32
Dim list, records

Sub Put(number, name, height)
    records.Fields(0).Value = CLng(number)
    records.Fields(1).Value = CStr(name)
    records.Fields(2).Value = CDbl(height)
    records.MoveNext
End Sub
Sub Show
    Dim row, column, line
    line = ""
    For column = 1 To list.ColumnsCount
        line = line & list.ColumnText(column) & "|"
    Next
    WScript.Echo line
    For row = 1 To list.RowsCount
        line = ""
        For column = 1 To list.ColumnsCount
            line = line & list.ItemText(row, column) & "|"
        Next
        WScript.Echo line
    Next
End Sub

Set records = CreateObject("ADODB.Recordset")
records.Fields.Append "No", adInteger, 4
records.Fields.Append "Mountain", adVarWChar, 40
records.Fields.Append "Height", adDouble, 8
records.Open
' All of them first: this system's recordset forgets the values of earlier records when it grows.
records.AddNew
records.AddNew
records.AddNew
records.MoveFirst
Put 1, "Piz Bernina", 4048.6
Put 2, "Zugspitze", 2962
Put 3, "Ararat", 5137
WScript.Echo "records: " & records.RecordCount

Set list = CreateObject("LumtexListView.lmListView")
list.ColumnsAdd "old"
list.RowsAdd , ",", "gone"
Set list.Recordset = records
Show
WScript.Echo "at the end: " & CStr(records.EOF)
list.Sort 3, 2, 1
Show
records.Close
WScript.Echo "done"
