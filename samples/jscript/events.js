// Hears of what happens to a list: a sort, a change of the current row, a row that is not there.
//
//   cscript //nologo events.js

// A report waits in a box until somebody closes it, and nobody sees a box of a script that runs by itself: one wrong index
// would stop it for ever. While you write a script, leave this out: the box names what went wrong.
new ActiveXObject("LumtexListView.Error").SilentError = true;

var cAscending = 1, cSortText = 0;

var list = new ActiveXObject("LumtexListView.lmListView");

// From here on each event calls the function "list_" and its name, where there is one. CreateObject of WScript does so at
// once where it gets the prefix as its second argument. Some hosts of scripts know neither.
try {
    WScript.ConnectObject(list, "list_");
} catch (failure) {
    WScript.Echo("This host of scripts connects no events.");
    WScript.Quit(2);
}

list.ColumnsAdd("City");
list.RowsAdd(-1, ",", "Quito");
list.RowsAdd(-1, ",", "Bern");
list.RowsAdd(-1, ",", "Oslo");
list.Sort(1, cAscending, cSortText);

list.ListIndex = 0;

// A click comes before the current row changes.
list.ClickOnIndexChange = true;
list.ListIndex = 2;
list.ListIndex = 99;
WScript.Echo("The current city is " + list.ItemText(list.ListIndex + 1, 1) + ".");

function list_SortDone() {
    WScript.Echo("Sorted: " + list.ItemText(1, 1) + " comes first.");
}

function list_Click() {
    WScript.Echo("Row " + list.RowIndex + " was the current one.");
}

function list_ErrorWrongIndex(Index) {
    WScript.Echo("There is no row at " + Index + ".");
}
