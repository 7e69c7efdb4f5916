// Follows a log file while it grows: takes in what is new, lets a line grow that has no end yet, and begins anew
// where the file was cut short.
//
//   cscript //nologo log.js [FOLDER]
//
// So that there is something to follow, the script writes the file itself.

// A report waits in a box until somebody closes it, and nobody sees a box of a script that runs by itself: one wrong index
// would stop it for ever. While you write a script, leave this out: the box names what went wrong.
new ActiveXObject("LumtexListView.Error").SilentError = true;

var forWriting = 2, forAppending = 8;
var temporaryFolder = 2;
var lineColumn = 1, textColumn = 2;

var files = new ActiveXObject("Scripting.FileSystemObject");
var path = files.GetSpecialFolder(temporaryFolder).Path;
if (WScript.Arguments.Count() > 0)
    path = WScript.Arguments(0);
path += "\\service.log";
var helper = new ActiveXObject("LumtexListView.SpEv");

var none;
var charactersRead = 0;
var lastLineIsOpen = false;
var list = new ActiveXObject("LumtexListView.lmListView");
list.ColumnsAdd("Line", none, none, none, 2, 900);
list.ColumnsAdd("Text", none, none, none, 0, 6000);

service(forWriting, "started\r\nlistening\r\n");
follow();
service(forAppending, "request 1\r\nrequ");
follow();
service(forAppending, "est 2\r\nERROR: disk is full\r\n");
follow();
service(forWriting, "started anew\r\n");
follow();

// What another program would do.
function service(mode, text) {
    var stream = files.OpenTextFile(path, mode, true);
    stream.Write(text);
    stream.Close();
}

function follow() {
    var text = helper.TextRead(path);
    list.AutoRedraw = false; // one repaint for all that is new
    if (text.length < charactersRead) {
        list.RowsClear();
        charactersRead = 0;
        lastLineIsOpen = false;
    }
    var lines = text.substring(charactersRead).split("\r\n");
    charactersRead = text.length;
    for (var i = 0; i < lines.length; ++i) {
        // What stands behind the last end of a line may be nothing yet.
        var isLast = i == lines.length - 1;
        if (!isLast || lines[i] != "")
            addLine(lines[i]);
        lastLineIsOpen = isLast && lines[i] != "";
    }
    list.AutoRedraw = true;
    show();
}

function addLine(text) {
    if (lastLineIsOpen)
        list.ItemText(list.RowsCount, textColumn) = list.ItemText(list.RowsCount, textColumn) + text;
    else
        list.RowsAdd(-1, "\t", (list.RowsCount + 1) + "\t" + text);
    if (list.ItemText(list.RowsCount, textColumn).indexOf("ERROR") >= 0)
        list.ItemForeColor(list.RowsCount, textColumn) = 0x2000B0; // 0xBBGGRR
}

function show() {
    WScript.Echo(list.RowsCount + " lines");
    for (var row = 1; row <= list.RowsCount; ++row) {
        var line = "  " + list.ItemText(row, lineColumn) + " " + list.ItemText(row, textColumn);
        if (list.ItemForeColor(row, textColumn) != 0)
            line += " (red)";
        WScript.Echo(line);
    }
}
