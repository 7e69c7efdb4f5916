// The same host in the other language, whose functions get copies: they see what happens and change nothing.
var list = new ActiveXObject("LumtexListView.lmListView");
var locked = 2;

function list_ItemCheck(row, column, newValue, cancel) {
    if (row == locked) cancel = true;
    WScript.Echo("check " + row + "," + column + " to " + newValue);
}
function list_ItemChecked(row, column, newValue) {
    WScript.Echo("checked " + row + "," + column + " is " + newValue);
}
function list_KeyDown(keyCode, shift) {
    WScript.Echo("key " + keyCode);
    keyCode = 40;
}
function list_ErrorWrongIndex(index) {
    WScript.Echo("wrong index " + index);
}
function list_SortDone() {
    WScript.Echo("sorted");
}
function list_ItemChanged(row, column, newValue) {
    WScript.Echo("changed " + row + "," + column + " to " + newValue);
}
function list_ColumnClick(column) {
    WScript.Echo("column " + column);
}
function list_ItemClick(row, column) {
    WScript.Echo("click " + row + "," + column);
}

User.Show(list);
WScript.ConnectObject(list, "list_");
list.RowsDynamic = false;
list.RowHeight = 300;
list.BorderVisible = false;
list.ColumnsAdd("Task");
list.ColumnWidth(1) = 1500;
list.ColumnCheckBoxes(1) = true;
list.RowsAdd(-1, ",", "wash");
list.RowsAdd(-1, ",", "dry");
list.RowsAdd(-1, ",", "iron");

User.Click(list, 8, 35);
User.Click(list, 8, 55);
WScript.Echo("marks: " + list.ItemChecked(1, 1) + " " + list.ItemChecked(2, 1));

list.ListIndex = 1;
User.KeyDown(list, 38);
WScript.Echo("up: " + list.ListIndex);

list.ListIndex = 99;
list.Sort(1, 1);
WScript.Echo("first: " + list.ItemText(1, 1));

list.ColumnAllowSorting(1) = true;
User.Click(list, 50, 10);
WScript.Echo("first: " + list.ItemText(1, 1));

list.SetEdit(1, 1);
User.EditorKeyPress(list, "x".charCodeAt(0));
User.EditorKeyPress(list, 13);
WScript.Echo("edited: " + list.ItemText(1, 1));
WScript.Echo("done");
