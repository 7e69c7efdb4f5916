// Fills a list, sorts it in two ways, and looks something up.
//
//   cscript //nologo cities.js

// A report waits in a box until somebody closes it, and nobody sees a box of a script that runs by itself: one wrong index
// would stop it for ever. While you write a script, leave this out: the box names what went wrong.
new ActiveXObject("LumtexListView.Error").SilentError = true;

var cAscending = 1, cDescending = 2;
var cSortText = 0, cSortNumeric = 1;
var cFindStart = 0, cFindText = 1;

var list = new ActiveXObject("LumtexListView.lmListView");

// Nothing is painted while many rows are added. An undefined icon is none; null would be refused.
var none;
list.AutoRedraw = false;
list.ColumnsAdd("City", none, none, none, 0, 2400, true);
list.ColumnsAdd("Country", none, none, none, 0, 2400, true);
list.ColumnsAdd("Inhabitants", none, none, none, 2, 1800, true);
list.RowsAdd(-1, ";", "Quito;Ecuador;2011388");
list.RowsAdd(-1, ";", "Bern;Switzerland;134506");
list.RowsAdd(-1, ";", "Nairobi;Kenya;4397073");
list.RowsAdd(-1, ";", "Oslo;Norway;709037");
list.AutoRedraw = true;

list.Sort(1, cAscending, cSortText);
printList("By name:");
list.Sort(3, cDescending, cSortNumeric);
printList("Largest first:");

// Columns count from 1. Patterns know * and ?, and cFindText takes no notice of case.
var found = list.FindItem("nor*", cFindStart, cFindText);
if (found.FindSuccessful)
    WScript.Echo(list.ItemText(found.FindRow, 1) + " is in " + list.ItemText(found.FindRow, found.FindColumn) + ".");
else
    WScript.Echo("There is no such city.");

function printList(title) {
    WScript.Echo(title);
    for (var row = 1; row <= list.RowsCount; ++row)
        WScript.Echo("  " + list.ItemText(row, 1) + ", " + list.ItemText(row, 2) + ": " + list.ItemText(row, 3));
}
