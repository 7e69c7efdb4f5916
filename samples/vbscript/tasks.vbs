' A list of tasks that is there again in the next run.
'
'   cscript //nologo tasks.vbs [FOLDER]
Option Explicit

' A report waits in a box until somebody closes it, and nobody sees a box of a script that runs by itself: one wrong index
' would stop it for ever. While you write a script, leave this out: the box names what went wrong.
CreateObject("LumtexListView.Error").SilentError = True

Const cCheckBoxes = 1
Const temporaryFolder = 2
Const taskColumn = 1, dueColumn = 2

Dim files, path
Set files = CreateObject("Scripting.FileSystemObject")
path = files.GetSpecialFolder(temporaryFolder).Path
If WScript.Arguments.Count > 0 Then path = WScript.Arguments(0)
path = path & "\tasks.content"
If files.FileExists(path) Then files.DeleteFile path

FirstRun
NextRun

Sub FirstRun
    Dim list
    Set list = OpenTasks
    list.RowsAdd , "|", "Water the ferns|Monday"
    list.RowsAdd , "|", "Return the books|Friday"
    SetDone list, 1, True
    SaveTasks list
End Sub

Sub NextRun
    Dim list
    Set list = OpenTasks
    list.RowsAdd , "|", "Tune the viola|"
    list.ItemText(2, dueColumn) = "Saturday"
    SaveTasks list
    Show list
End Sub

' A content file holds cells with their looks; columns come from the program.
Function OpenTasks
    Dim list, row
    Set list = CreateObject("LumtexListView.lmListView")
    list.Style = cCheckBoxes
    list.ColumnsAdd "Task", , , , 0, 4200
    list.ColumnsAdd "Due", , , , 0, 1650
    list.ColumnCheckBoxes(taskColumn) = True
    If files.FileExists(path) Then
        list.ContentInput path, True
        ' The marks of boxes are not in the file, but what is done is struck out there.
        For row = 1 To list.RowsCount
            list.ItemChecked(row, taskColumn) = list.ItemFontStrikethrough(row, taskColumn)
        Next
    End If
    Set OpenTasks = list
End Function

Sub SaveTasks(list)
    list.ContentSave path, True
End Sub

Sub SetDone(list, row, done)
    list.ItemChecked(row, taskColumn) = done
    list.ItemFontStrikethrough(row, taskColumn) = done
End Sub

Sub Show(list)
    Dim row, mark
    For row = 1 To list.RowsCount
        mark = "[ ] "
        If list.ItemChecked(row, taskColumn) Then mark = "[x] "
        WScript.Echo mark & list.ItemText(row, taskColumn) & " / " & list.ItemText(row, dueColumn)
    Next
    WScript.Echo list.ItemsCheckedCount(taskColumn) & " of " & list.RowsCount & " are done."
End Sub
