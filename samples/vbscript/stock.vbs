' Marks what runs short, saves the list with all its looks, loads it again, and exports the marked rows as text.
'
'   cscript //nologo stock.vbs [FOLDER]
Option Explicit

' A report waits in a box until somebody closes it, and nobody sees a box of a script that runs by itself: one wrong index
' would stop it for ever. While you write a script, leave this out: the box names what went wrong.
CreateObject("LumtexListView.Error").SilentError = True

Const lowestStock = 10
Const temporaryFolder = 2

Dim folder, helper, list, copy, row
folder = CreateObject("Scripting.FileSystemObject").GetSpecialFolder(temporaryFolder).Path
If WScript.Arguments.Count > 0 Then folder = WScript.Arguments(0)

Set list = NewList
list.RowsAdd , ";", "Screws M4;1200"
list.RowsAdd , ";", "Hinges;4"
list.RowsAdd , ";", "Wood glue;9"
list.RowsAdd , ";", "Sandpaper;55"
For row = 1 To list.RowsCount
    If CLng(list.ItemText(row, 2)) < lowestStock Then
        list.ItemChecked(row, 1) = True
        list.ItemForeColor(row, 2) = RGB(192, 0, 0)
        list.ItemFontBold(row, 2) = True
    End If
Next
WScript.Echo list.ItemsCheckedCount(1) & " of " & list.RowsCount & " articles run short."

' The content file keeps texts, colours, fonts, tags and icons.
' ContentSave says True whatever happened, and ContentInput wherever there is a file: look at what came of them.
list.ContentSave folder & "\stock.lst", True
Set helper = CreateObject("LumtexListView.SpEv")
If Not helper.FileExists(folder & "\stock.lst") Then
    WScript.Echo "Nothing can be written to " & folder
    WScript.Quit 1
End If
Set copy = NewList
copy.ContentInput folder & "\stock.lst", True
If copy.RowsCount <> list.RowsCount Then
    WScript.Echo "The list came back with " & copy.RowsCount & " rows."
    WScript.Quit 1
End If

helper.TextSave folder & "\order.txt", OrderFrom(copy)
WScript.Echo helper.TextRead(folder & "\order.txt")

Function NewList
    Set NewList = CreateObject("LumtexListView.lmListView")
    NewList.ColumnsAdd "Article", , , , 0, 3000
    NewList.ColumnsAdd "In stock", , , , 2, 1500
    NewList.ColumnCheckBoxes(1) = True
End Function

Function OrderFrom(list)
    Dim row, text
    text = "To order:"
    For row = 1 To list.RowsCount
        If list.ItemFontBold(row, 2) Then text = text & " " & list.ItemText(row, 1) & " (" & list.ItemText(row, 2) & " left)"
    Next
    OrderFrom = text
End Function
