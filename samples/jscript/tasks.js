// A list of tasks that is there again in the next run.
//
//   cscript //nologo tasks.js [FOLDER]

// A report waits in a box until somebody closes it, and nobody sees a box of a script that runs by itself: one wrong index
// would stop it for ever. While you write a script, leave this out: the box names what went wrong.
new ActiveXObject("LumtexListView.Error").SilentError = true;

var cCheckBoxes = 1;
var temporaryFolder = 2;
var taskColumn = 1, dueColumn = 2;

var none;
var files = new ActiveXObject("Scripting.FileSystemObject");
var path = files.GetSpecialFolder(temporaryFolder).Path;
if (WScript.Arguments.Count() > 0)
    path = WScript.Arguments(0);
path += "\\tasks.content";
if (files.FileExists(path))
    files.DeleteFile(path);

firstRun();
nextRun();

function firstRun() {
    var list = openTasks();
    list.RowsAdd(-1, "|", "Water the ferns|Monday");
    list.RowsAdd(-1, "|", "Return the books|Friday");
    setDone(list, 1, true);
    saveTasks(list);
}

function nextRun() {
    var list = openTasks();
    list.RowsAdd(-1, "|", "Tune the viola|");
    list.ItemText(2, dueColumn) = "Saturday";
    saveTasks(list);
    show(list);
}

// A content file holds cells with their looks; columns come from the program.
function openTasks() {
    var list = new ActiveXObject("LumtexListView.lmListView");
    list.Style = cCheckBoxes;
    list.ColumnsAdd("Task", none, none, none, 0, 4200);
    list.ColumnsAdd("Due", none, none, none, 0, 1650);
    list.ColumnCheckBoxes(taskColumn) = true;
    if (files.FileExists(path)) {
        list.ContentInput(path, true);
        // The marks of boxes are not in the file, but what is done is struck out there.
        for (var row = 1; row <= list.RowsCount; ++row)
            list.ItemChecked(row, taskColumn) = list.ItemFontStrikethrough(row, taskColumn);
    }
    return list;
}

function saveTasks(list) {
    list.ContentSave(path, true);
}

function setDone(list, row, done) {
    list.ItemChecked(row, taskColumn) = done;
    list.ItemFontStrikethrough(row, taskColumn) = done;
}

function show(list) {
    for (var row = 1; row <= list.RowsCount; ++row) {
        var mark = list.ItemChecked(row, taskColumn) ? "[x] " : "[ ] ";
        WScript.Echo(mark + list.ItemText(row, taskColumn) + " / " + list.ItemText(row, dueColumn));
    }
    WScript.Echo(list.ItemsCheckedCount(taskColumn) + " of " + list.RowsCount + " are done.");
}
