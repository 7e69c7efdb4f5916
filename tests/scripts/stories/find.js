// The record of a search comes to scripts as an object.
var cFindStart = 0, cFindContinue = 1;
var cFindBinary = 0, cFindText = 1;
var list = new ActiveXObject("LumtexListView.lmListView");

function tell(found) {
    if (found.FindSuccessful)
        WScript.Echo("row " + found.FindRow + ", column " + found.FindColumn);
    else
        WScript.Echo("not found: " + found.FindRow + ", " + found.FindColumn);
}

list.ColumnsAdd("Name");
list.ColumnsAdd("Place");
list.RowsAdd(-1, ",", "Ada,London");
list.RowsAdd(-1, ",", "Grace,New York");
list.RowsAdd(-1, ",", "Alan,London");
list.ItemTag(2, 1) = "admiral";

tell(list.FindItem("L*", cFindStart));
tell(list.FindItem("L*", cFindContinue));
tell(list.FindItem("L*", cFindContinue));
tell(list.FindItem("gr*", cFindStart, cFindBinary));
tell(list.FindItem("gr*", cFindStart, cFindText));
tell(list.FindItem("<itemtag>adm*", cFindStart));
tell(list.FindItem("*", cFindStart, cFindBinary, "2,", "3,"));

var found = list.FindItem("A*", cFindStart, cFindBinary, "1,");
WScript.Echo(typeof found.FindSuccessful + " " + typeof found.FindRow + " " + typeof found.FindColumn);
while (found.FindSuccessful) {
    WScript.Echo("A: " + list.ItemText(found.FindRow, 1));
    found = list.FindItem("A*", cFindContinue, cFindBinary, "1,");
}
WScript.Echo("done");
