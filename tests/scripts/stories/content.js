// What one list saves, another one loads: texts alone, and texts with their looks.
function show(title, from) {
    var line = title + ":";
    for (var row = 1; row <= from.RowsCount; ++row)
        line += " [" + from.ItemText(row, 1) + "|" + from.ItemText(row, 2) + "]";
    WScript.Echo(line);
}

var folder = WScript.Arguments(0);
var path = folder + "\\plants.lst";
var helper = new ActiveXObject("LumtexListView.SpEv");
var list = new ActiveXObject("LumtexListView.lmListView");
list.ColumnsAdd("Plant");
list.ColumnsAdd("Height");
list.RowsAdd(-1, ";", "Fir;40");
list.RowsAdd(-1, ";", "Sage, red;1");
list.ItemForeColor(2, 1) = 255;
list.ItemFontBold(2, 1) = true;
list.ItemTag(2, 2) = "herb";

WScript.Echo("there before: " + helper.FileExists(path));
WScript.Echo("saved: " + list.ContentSave(path, true));
WScript.Echo("there now: " + helper.FileExists(path));

var copy = new ActiveXObject("LumtexListView.lmListView");
copy.ColumnsAdd("Plant");
copy.ColumnsAdd("Height");
WScript.Echo("loaded: " + copy.ContentInput(path));
show("texts", copy);
WScript.Echo("bold: " + copy.ItemFontBold(2, 1) + ", colour: " + copy.ItemForeColor(2, 1));
WScript.Echo("loaded: " + copy.ContentInput(path, true));
show("texts", copy);
WScript.Echo("bold: " + copy.ItemFontBold(2, 1) + ", colour: " + copy.ItemForeColor(2, 1));
WScript.Echo("tag: " + copy.ItemTag(2, 2));

WScript.Echo("no such file: " + copy.ContentInput(folder + "\\none.lst"));
show("kept", copy);
helper.TextSave(folder + "\\note.txt", "two\r\nlines");
WScript.Echo(helper.TextRead(folder + "\\note.txt").replace("\r\n", "/"));
WScript.Echo("done");
