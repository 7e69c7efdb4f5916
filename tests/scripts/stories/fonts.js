// Fonts of the host: the list takes a copy of what is assigned, and gives out its own.
var list = new ActiveXObject("LumtexListView.lmListView");
function tell(title, font) {
    WScript.Echo(title + ": " + font.Size + (font.Bold ? " bold" : "") + (font.Italic ? " italic" : ""));
}

list.ColumnsAdd("Text");
list.RowsAdd(-1, ",", "before");

var font = new ActiveXObject("StdFont");
font.Size = 12;
font.Bold = true;
list.DefaultItemFont = font;
tell("assigned", list.DefaultItemFont);
list.RowsAdd(-1, ",", "after");
WScript.Echo("rows: " + list.ItemFontBold(1, 1) + " " + list.ItemFontBold(2, 1));

font.Italic = true;
tell("changed outside", list.DefaultItemFont);
var again = list.DefaultItemFont;
again.Bold = false;
tell("changed inside", font);

list.ItemFontItalic(1, 1) = true;
list.ItemFontSize(1, 1) = 24;
WScript.Echo("cell: " + list.ItemFontItalic(1, 1) + " " + list.ItemFontSize(1, 1));
WScript.Echo("other cell: " + list.ItemFontItalic(2, 1));
list.DefaultColumnFont = list.DefaultItemFont;
tell("columns", list.DefaultColumnFont);
WScript.Echo("done");
