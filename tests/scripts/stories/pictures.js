// Icons from files, in columns, cells and behind all of it.
var list = new ActiveXObject("LumtexListView.lmListView");
function tell(title, picture) {
    if (picture == null)
        WScript.Echo(title + ": none");
    else
        WScript.Echo(title + ": type " + picture.Type + ", handle " + (picture.Handle != 0));
}

var flag = User.LoadPicture(WScript.Arguments(0) + "\\flag.bmp");
tell("flag", flag);
list.ColumnsAdd("Land", flag, flag, flag);
list.RowsAdd(-1, ",", "France");
tell("column", list.ColumnIcon(1));
tell("cell", list.ItemIcon(1, 1));
list.ItemIcon(1, 1) = flag;
tell("cell", list.ItemIcon(1, 1));
list.BackgroundPicture = flag;
tell("background", list.BackgroundPicture);
list.Redraw();
WScript.Echo("saved: " + list.ContentSave(WScript.Arguments(0) + "\\lands.lst", true));
WScript.Echo("done");
