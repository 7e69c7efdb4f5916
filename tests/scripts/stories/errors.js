// A bad call gives the zero of its type and reports by a box, until the process is told to be silent.
var list = new ActiveXObject("LumtexListView.lmListView");
list.ColumnsAdd("One");
list.RowsAdd(-1, ",", "a");

WScript.Echo("text: [" + list.ItemText(9, 1) + "]");

var reports = new ActiveXObject("LumtexListView.Error");
WScript.Echo("silent: " + reports.SilentError);
reports.SilentError = true;
list.ItemText(1, 9) = "lost";
WScript.Echo("still there: " + list.ItemText(1, 1));
WScript.Echo("width: " + list.ColumnWidth(9));
WScript.Echo("enabled: " + list.RowEnabled("x"));
WScript.Echo("no icon: " + (list.ItemIcon(9, 9) == null));
WScript.Echo("saved: " + list.ContentSave(WScript.Arguments(0) + "\\no\\such\\folder.lst"));
WScript.Echo("silent everywhere: " + new ActiveXObject("LumtexListView.Error").SilentError);
WScript.Echo("tag: [" + list.ColumnTag(0) + "]");
reports.SilentError = false;
WScript.Echo("done");
