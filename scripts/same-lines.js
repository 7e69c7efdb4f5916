// Says whether two texts have the same lines, however these end: cscript same-lines.js EXPECTED FOUND
var files = new ActiveXObject("Scripting.FileSystemObject");

function linesOf(path) {
    var file = files.OpenTextFile(path);
    var text = file.AtEndOfStream ? "" : file.ReadAll();
    file.Close();
    return text.replace(/\r/g, "").replace(/\n+$/, "").split("\n");
}

var expected = linesOf(WScript.Arguments(0));
var found = linesOf(WScript.Arguments(1));
var count = Math.max(expected.length, found.length);
var same = true;
for (var i = 0; i < count && same; ++i) {
    same = expected[i] === found[i];
    if (!same)
        WScript.Echo("line " + (i + 1) + ": expected \"" + expected[i] + "\", found \"" + found[i] + "\"");
}
WScript.Quit(same ? 0 : 1);
