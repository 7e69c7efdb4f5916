' Fonts of the host: the list takes a copy of what is assigned, and gives out its own.
Option Explicit
Dim list, font, again

Sub Tell(title, font)
    WScript.Echo title & ": " & font.Size & IIf(font.Bold, " bold", "") & IIf(font.Italic, " italic", "")
End Sub
Function IIf(condition, whenTrue, whenFalse)
    If condition Then IIf = whenTrue Else IIf = whenFalse
End Function

Set list = CreateObject("LumtexListView.lmListView")
list.ColumnsAdd "Text"
list.RowsAdd , ",", "before"

Set font = CreateObject("StdFont")
font.Size = 12
font.Bold = True
Set list.DefaultItemFont = font
Tell "assigned", list.DefaultItemFont
list.RowsAdd , ",", "after"
WScript.Echo "rows: " & CStr(list.ItemFontBold(1, 1)) & " " & CStr(list.ItemFontBold(2, 1))

font.Italic = True
Tell "changed outside", list.DefaultItemFont
Set again = list.DefaultItemFont
again.Bold = False
Tell "changed inside", font

list.ItemFontItalic(1, 1) = True
list.ItemFontSize(1, 1) = 24
WScript.Echo "cell: " & CStr(list.ItemFontItalic(1, 1)) & " " & list.ItemFontSize(1, 1)
WScript.Echo "other cell: " & CStr(list.ItemFontItalic(2, 1))
Set list.DefaultColumnFont = list.DefaultItemFont
Tell "columns", list.DefaultColumnFont
WScript.Echo "done"
