' Icons from files, in columns, cells and behind all of it.
Option Explicit
Dim list, flag

Sub Tell(title, picture)
    If picture Is Nothing Then
        WScript.Echo title & ": none"
    Else
        WScript.Echo title & ": type " & picture.Type & ", handle " & CStr(picture.Handle <> 0)
    End If
End Sub

Set list = CreateObject("LumtexListView.lmListView")
Set flag = User.LoadPicture(WScript.Arguments(0) & "\flag.bmp")
Tell "flag", flag
list.ColumnsAdd "Land", flag, flag, flag
list.RowsAdd , ",", "France"
Tell "column", list.ColumnIcon(1)
Tell "cell", list.ItemIcon(1, 1)
Set list.ItemIcon(1, 1) = flag
Tell "cell", list.ItemIcon(1, 1)
WScript.Echo "the same one: " & CStr(list.ItemIcon(1, 1) Is flag)
Set list.BackgroundPicture = flag
Tell "background", list.BackgroundPicture
list.Redraw
Set list.ItemIcon(1, 1) = Nothing
Tell "cell", list.ItemIcon(1, 1)
WScript.Echo "saved: " & CStr(list.ContentSave(WScript.Arguments(0) & "\lands.lst", True))
WScript.Echo "done"
