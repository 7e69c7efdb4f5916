' Classes of a script stand in for a recordset, one that works and one that breaks off.
Option Explicit

Class Field
    Public Name
    Public Text
    Public Default Property Get Value
        Value = Text
    End Property
End Class

Class FieldList
    Public Owner
    Public Property Get Count
        Count = 2
    End Property
    Public Default Property Get Item(index)
        Set Item = New Field
        If index = 0 Then Item.Name = "City" Else Item.Name = "Height"
        Item.Text = Owner.TextOf(index)
    End Property
End Class

Class Cities
    Public Position
    Public Limit ' the record at which the heights run out
    Public Property Get RecordCount
        RecordCount = 3
    End Property
    Public Property Get Fields
        Set Fields = New FieldList
        Set Fields.Owner = Me
    End Property
    Public Sub MoveFirst
        Position = 0
    End Sub
    Public Sub MoveNext
        Position = Position + 1
    End Sub
    Public Property Get EOF
        EOF = Position >= 3
    End Property
    Public Function TextOf(index)
        If Position = Limit And index = 1 Then Err.Raise 1234, "Cities", "no more heights"
        If index = 0 Then
            If Position = 0 Then TextOf = "Quito"
            If Position = 1 Then TextOf = "Bern"
            If Position = 2 Then TextOf = Null
        Else
            TextOf = 2850 - 1000 * Position
        End If
    End Function
End Class

Dim list, source, reports
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

Set list = CreateObject("LumtexListView.lmListView")
Set source = New Cities
source.Limit = 99
Set list.Recordset = source
Show
WScript.Echo "kept: " & CStr(list.Recordset Is source)

Set reports = CreateObject("LumtexListView.Error")
reports.SilentError = True
source.Limit = 1
Set list.Recordset = source
Show
Set list.Recordset = Nothing
Show
reports.SilentError = False
WScript.Echo "done"
