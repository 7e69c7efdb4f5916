' What one list saves, another one loads: texts alone, and texts with their looks.
Option Explicit
Dim list, copy, helper, path

Sub Show(title, from)
    Dim row, line
    line = title & ":"
    For row = 1 To from.RowsCount
        line = line & " [" & from.ItemText(row, 1) & "|" & from.ItemText(row, 2) & "]"
    Next
    WScript.Echo line
End Sub

path = WScript.Arguments(0) & "\plants.lst"
Set helper = CreateObject("LumtexListView.SpEv")
Set list = CreateObject("LumtexListView.lmListView")
list.ColumnsAdd "Plant"
list.ColumnsAdd "Height"
list.RowsAdd , ";", "Fir;40"
list.RowsAdd , ";", "Sage, red;1"
list.ItemForeColor(2, 1) = 255
list.ItemFontBold(2, 1) = True
list.ItemTag(2, 2) = "herb"

WScript.Echo "there before: " & CStr(helper.FileExists(path))
WScript.Echo "saved: " & CStr(list.ContentSave(path, True))
WScript.Echo "there now: " & CStr(helper.FileExists(path))

Set copy = CreateObject("LumtexListView.lmListView")
copy.ColumnsAdd "Plant"
copy.ColumnsAdd "Height"
WScript.Echo "loaded: " & CStr(copy.ContentInput(path))
Show "texts", copy
WScript.Echo "bold: " & CStr(copy.ItemFontBold(2, 1)) & ", colour: " & copy.ItemForeColor(2, 1)
WScript.Echo "loaded: " & CStr(copy.ContentInput(path, True))
Show "texts", copy
WScript.Echo "bold: " & CStr(copy.ItemFontBold(2, 1)) & ", colour: " & copy.ItemForeColor(2, 1)
WScript.Echo "tag: " & copy.ItemTag(2, 2)

WScript.Echo "no such file: " & CStr(copy.ContentInput(WScript.Arguments(0) & "\none.lst"))
Show "kept", copy
helper.TextSave WScript.Arguments(0) & "\note.txt", "two" & vbCrLf & "lines"
WScript.Echo Replace(helper.TextRead(WScript.Arguments(0) & "\note.txt"), vbCrLf, "/")
WScript.Echo "done"
