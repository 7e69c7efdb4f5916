// Reads a table from a text file into a list: the first line names the columns, the others are rows.
//
//   cscript //nologo rivers.js [FILE]

// A report waits in a box until somebody closes it, and nobody sees a box of a script that runs by itself: one wrong index
// would stop it for ever. While you write a script, leave this out: the box names what went wrong.
new ActiveXObject("LumtexListView.Error").SilentError = true;

var cDescending = 2, cSortNumeric = 1;
var separator = ";";

var self = WScript.ScriptFullName;
var path = self.substring(0, self.lastIndexOf("\\") + 1) + "..\\data\\rivers.csv";
if (WScript.Arguments.Count() > 0)
    path = WScript.Arguments(0);

var helper = new ActiveXObject("LumtexListView.SpEv");
if (!helper.FileExists(path)) {
    WScript.Echo("There is no file " + path);
    WScript.Quit(1);
}
var lines = helper.TextRead(path).replace(/\r/g, "").split("\n");

var list = new ActiveXObject("LumtexListView.lmListView");
list.AutoRedraw = false;
var names = lines[0].split(separator);
for (var i = 0; i < names.length; ++i) {
    list.ColumnsAdd(names[i]);
    list.ColumnKey(i + 1) = names[i];
}
for (var i = 1; i < lines.length; ++i)
    if (lines[i] != "")
        list.RowsAdd(-1, separator, lines[i]);
list.AutoRedraw = true;

list.Sort(2, cDescending, cSortNumeric);
WScript.Echo(list.RowsCount + " rows, " + list.ColumnsCount + " columns");
for (var i = 1; i <= 3; ++i)
    WScript.Echo(i + ". " + list.ItemText(i, 1) + ", " + list.ItemText(i, 2) + " km, into the " + list.ItemText(i, 3));
