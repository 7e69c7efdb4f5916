' A bad call gives the zero of its type and reports by a box, until the process is told to be silent.
Option Explicit
Dim list, reports

Set list = CreateObject("LumtexListView.lmListView")
list.ColumnsAdd "One"
list.RowsAdd , ",", "a"

WScript.Echo "text: [" & list.ItemText(9, 1) & "]"

Set reports = CreateObject("LumtexListView.Error")
WScript.Echo "silent: " & CStr(reports.SilentError)
reports.SilentError = True
list.ItemText(1, 9) = "lost"
WScript.Echo "still there: " & list.ItemText(1, 1)
WScript.Echo "width: " & list.ColumnWidth(9)
WScript.Echo "enabled: " & CStr(list.RowEnabled("x"))
WScript.Echo "no icon: " & CStr(list.ItemIcon(9, 9) Is Nothing)
WScript.Echo "saved: " & CStr(list.ContentSave(WScript.Arguments(0) & "\no\such\folder.lst"))
WScript.Echo "silent everywhere: " & CStr(CreateObject("LumtexListView.Error").SilentError)
WScript.Echo "tag: [" & list.ColumnTag(0) & "]"
reports.SilentError = False
WScript.Echo "done"
