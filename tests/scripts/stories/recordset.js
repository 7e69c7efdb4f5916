// Objects of a script stand in for a recordset, one that works and one that breaks off.
function Cities(limit) {
    var position = 0;
    var names = ["Quito", "Bern", null];

    function valueOf(index) {
        if (position == limit && index == 1) throw new Error("no more heights");
        return index == 0 ? names[position] : 2850 - 1000 * position;
    }
    // A collection is a function here: what it is called with names the element.
    function fields(index) {
        return {
            Name: index == 0 ? "City" : "Height",
            toString: function () { return valueOf(index); },
            valueOf: function () { return valueOf(index); }
        };
    }
    fields.Count = 2;

    this.RecordCount = 3;
    this.fields = function () { return fields; };
    this.MoveFirst = function () { position = 0; };
    this.MoveNext = function () { ++position; };
    this.EOF = function () { return position >= 3; };
}

var list = new ActiveXObject("LumtexListView.lmListView");
function show() {
    var line = "";
    for (var column = 1; column <= list.ColumnsCount; ++column)
        line += list.ColumnText(column) + "|";
    WScript.Echo(line);
    for (var row = 1; row <= list.RowsCount; ++row) {
        line = "";
        for (var column = 1; column <= list.ColumnsCount; ++column)
            line += list.ItemText(row, column) + "|";
        WScript.Echo(line);
    }
}

var source = new Cities(99);
list.Recordset = source;
show();
WScript.Echo("kept: " + (list.Recordset == source));

var reports = new ActiveXObject("LumtexListView.Error");
reports.SilentError = true;
list.Recordset = new Cities(1);
show();
reports.SilentError = false;
WScript.Echo("done");
