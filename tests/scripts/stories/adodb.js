// A recordset of the system, without a database behind it, fills the list.
var adInteger = 3, adVarWChar = 202, adDouble = 5;
var records = new ActiveXObject("ADODB.Recordset");

function put(number, name, height) {
    records.Fields(0).Value = number;
    records.Fields(1).Value = name;
    records.Fields(2).Value = height;
    records.MoveNext();
}
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

records.Fields.Append("No", adInteger, 4);
records.Fields.Append("Mountain", adVarWChar, 40);
records.Fields.Append("Height", adDouble, 8);
records.Open();
// All of them first: this system's recordset forgets the values of earlier records when it grows.
records.AddNew();
records.AddNew();
records.AddNew();
records.MoveFirst();
put(1, "Piz Bernina", 4048.6);
put(2, "Zugspitze", 2962);
put(3, "Ararat", 5137);

var list = new ActiveXObject("LumtexListView.lmListView");
list.ColumnsAdd("old");
list.RowsAdd(-1, ",", "gone");
list.Recordset = records;
show();
WScript.Echo("at the end: " + records.EOF);
list.Sort(3, 2, 1);
show();
records.Close();
WScript.Echo("done");
