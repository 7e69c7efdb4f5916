// A price list is filled line by line.
var list = new ActiveXObject("LumtexListView.lmListView");
list.AutoRedraw = false;
list.ColumnsAdd("Article");
list.ColumnsAdd("Price");
list.ColumnWidth(1) = 2400;
list.ColumnAlignment(2) = 2;
list.ColumnAllowSorting(2) = true;
list.ColumnKey(2) = "price";
WScript.Echo("columns: " + list.ColumnsCount);

list.RowsAdd(-1, ";", "Chisel;12,50");
list.RowsAdd(-1, ";", "Hammer;19,90");
list.RowsAdd(0, ";", "Adze;44,00");
WScript.Echo("new row " + list.NewIndex);
list.RowsAdd(77, ";", "Saw;23,10");

list.ItemText(2, 1) = "Wood chisel";
list.ItemTag(2, 1) = 4711;
list.ItemForeColor(2, 1) = 200;
list.AutoRedraw = true;
list.Redraw();

for (var row = 1; row <= list.RowsCount; ++row)
    WScript.Echo(row + ": " + list.ItemText(row, 1) + " costs " + list.ItemText(row, 2));
WScript.Echo("tag: " + list.ItemTag(2, 1));
WScript.Echo("colour: " + list.ItemForeColor(2, 1));
WScript.Echo("width: " + list.ColumnWidth(1) + ", key: " + list.ColumnKey(2));

list.RowsRemove(1);
WScript.Echo("first is now " + list.ItemText(1, 1));
list.RowsClear();
list.ColumnsClear();
WScript.Echo("rows: " + list.RowsCount + ", columns: " + list.ColumnsCount);
WScript.Echo("done");
