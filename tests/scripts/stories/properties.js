// Properties of every type, read, assigned and read again.
var list = new ActiveXObject("LumtexListView.lmListView");
function tell(name, value) {
    WScript.Echo(name + " = " + value + " (" + typeof value + ")");
}

tell("GridLines", list.GridLines);
list.GridLines = true;
tell("GridLines", list.GridLines);
tell("BackColor", list.BackColor);
list.BackColor = 0x030201;
tell("BackColor", list.BackColor);
list.BackColor = -2147483633;
tell("BackColor", list.BackColor);
tell("RowHeight", list.RowHeight);
list.RowHeight = 412.5;
tell("RowHeight", list.RowHeight);
list.RowHeight = "300";
tell("RowHeight", list.RowHeight);
tell("ColorStyle", list.ColorStyle);
list.ColorStyle = 2;
tell("ColorStyle", list.ColorStyle);
tell("OLEDropMode", list.OLEDropMode);
list.OLEDropMode = 1;
tell("OLEDropMode", list.OLEDropMode);
tell("ColumnTextY", list.ColumnTextY);
list.ColumnTextY = list.ColumnTextY + 2.5;
tell("ColumnTextY", list.ColumnTextY);

list.ColumnsAdd("Key");
list.ColumnTag(1) = "primary";
tell("ColumnTag", list.ColumnTag("1"));
list.RowsAdd(-1, ",", "a");
tell("ItemBackColor", list.ItemBackColor(1, 1));
list.ItemBackColor(1, 1) = 255;
tell("ItemBackColor", list.ItemBackColor(1, 1));
list.ItemToolTip(1, 1) = "Größe";
tell("ItemToolTip", list.ItemToolTip(1, 1));

function refused(what, action) {
    try {
        action();
        WScript.Echo(what + ": taken");
    } catch (failure) {
        WScript.Echo(what + ": " + (failure.number & 0xFFFF));
    }
}
refused("read-only", function () { list.RowsCount = 7; });
refused("no Boolean", function () { list.GridLines = "perhaps"; });
refused("unknown", function () { list.NoSuchMethod(1); });
WScript.Echo("done");
