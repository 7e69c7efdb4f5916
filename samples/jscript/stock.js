// Marks what runs short, saves the list with all its looks, loads it again, and exports the marked rows as text.
//
//   cscript //nologo stock.js [FOLDER]

// A report waits in a box until somebody closes it, and nobody sees a box of a script that runs by itself: one wrong index
// would stop it for ever. While you write a script, leave this out: the box names what went wrong.
new ActiveXObject("LumtexListView.Error").SilentError = true;

var lowestStock = 10;
var temporaryFolder = 2;

var folder = new ActiveXObject("Scripting.FileSystemObject").GetSpecialFolder(temporaryFolder).Path;
if (WScript.Arguments.Count() > 0)
    folder = WScript.Arguments(0);

var list = newList();
list.RowsAdd(-1, ";", "Screws M4;1200");
list.RowsAdd(-1, ";", "Hinges;4");
list.RowsAdd(-1, ";", "Wood glue;9");
list.RowsAdd(-1, ";", "Sandpaper;55");
for (var row = 1; row <= list.RowsCount; ++row)
    if (Number(list.ItemText(row, 2)) < lowestStock) {
        list.ItemChecked(row, 1) = true;
        list.ItemForeColor(row, 2) = 192;
        list.ItemFontBold(row, 2) = true;
    }
WScript.Echo(list.ItemsCheckedCount(1) + " of " + list.RowsCount + " articles run short.");

// The content file keeps texts, colours, fonts, tags and icons.
// ContentSave says true whatever happened, and ContentInput wherever there is a file: look at what came of them.
list.ContentSave(folder + "\\stock.lst", true);
var helper = new ActiveXObject("LumtexListView.SpEv");
if (!helper.FileExists(folder + "\\stock.lst")) {
    WScript.Echo("Nothing can be written to " + folder);
    WScript.Quit(1);
}
var copy = newList();
copy.ContentInput(folder + "\\stock.lst", true);
if (copy.RowsCount != list.RowsCount) {
    WScript.Echo("The list came back with " + copy.RowsCount + " rows.");
    WScript.Quit(1);
}

helper.TextSave(folder + "\\order.txt", orderFrom(copy));
WScript.Echo(helper.TextRead(folder + "\\order.txt"));

function newList() {
    var made = new ActiveXObject("LumtexListView.lmListView");
    made.ColumnsAdd("Article");
    made.ColumnsAdd("In stock");
    made.ColumnWidth(1) = 3000;
    made.ColumnWidth(2) = 1500;
    made.ColumnAlignment(2) = 2;
    made.ColumnCheckBoxes(1) = true;
    return made;
}

function orderFrom(list) {
    var text = "To order:";
    for (var row = 1; row <= list.RowsCount; ++row)
        if (list.ItemFontBold(row, 2))
            text += " " + list.ItemText(row, 1) + " (" + list.ItemText(row, 2) + " left)";
    return text;
}
