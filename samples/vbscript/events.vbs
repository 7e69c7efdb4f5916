' Hears of what happens to a list: a sort, a change of the current row, a row that is not there.
'
'   cscript //nologo events.vbs
Option Explicit

' A report waits in a box until somebody closes it, and nobody sees a box of a script that runs by itself: one wrong index
' would stop it for ever. While you write a script, leave this out: the box names what went wrong.
CreateObject("LumtexListView.Error").SilentError = True

Const cAscending = 1, cSortText = 0

Dim list, connected
Set list = CreateObject("LumtexListView.lmListView")

' From here on each event calls the procedure "list_" and its name, where there is one. CreateObject of WScript does so
' at once where it gets the prefix as its second argument. Some hosts of scripts know neither.
On Error Resume Next
WScript.ConnectObject list, "list_"
connected = (Err.Number = 0)
On Error GoTo 0
If Not connected Then
    WScript.Echo "This host of scripts connects no events."
    WScript.Quit 2
End If

list.ColumnsAdd "City"
list.RowsAdd , ",", "Quito"
list.RowsAdd , ",", "Bern"
list.RowsAdd , ",", "Oslo"
list.Sort 1, cAscending, cSortText

list.ListIndex = 0

' A click comes before the current row changes.
list.ClickOnIndexChange = True
list.ListIndex = 2
list.ListIndex = 99
WScript.Echo "The current city is " & list.ItemText(list.ListIndex + 1, 1) & "."

Sub list_SortDone
    WScript.Echo "Sorted: " & list.ItemText(1, 1) & " comes first."
End Sub

Sub list_Click
    WScript.Echo "Row " & list.RowIndex & " was the current one."
End Sub

Sub list_ErrorWrongIndex(Index)
    WScript.Echo "There is no row at " & Index & "."
End Sub
