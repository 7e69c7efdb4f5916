// A table of results in four orders.
var cAscending = 1, cDescending = 2;
var cSortText = 0, cSortNumeric = 1, cSortDate = 2;
var list = new ActiveXObject("LumtexListView.lmListView");

function show(title) {
    var line = title + ":";
    for (var row = 1; row <= list.RowsCount; ++row)
        line += " " + list.ItemText(row, 1);
    WScript.Echo(line + " (column " + list.SortColumnIndex + ")");
}

list.ColumnsAdd("Runner");
list.ColumnsAdd("Laps");
list.ColumnsAdd("Born");
list.RowsAdd(-1, ",", "Mia,9,1999-05-30");
list.RowsAdd(-1, ",", "Ada,10,2001-01-02");
list.RowsAdd(-1, ",", "Zoe,100,1987-12-24");
show("as filled");
list.Sort(1, cAscending);
show("by name");
list.Sort(2, cAscending);
show("laps as text");
list.Sort(2, cAscending, cSortNumeric);
show("laps as numbers");
list.Sort(3, cDescending, cSortDate);
show("youngest first");
list.Sort(1);
show("without a mode");
list.Sort(-1);
show("mark dropped");
WScript.Echo("done");
