/// What both sides hold and show.
#include "scripts/member_subject.h"

#include "worlds/win32/ole_font.h"

namespace lumtex::testing {

namespace {

/// As the system has it, which may lack the font that was asked for.
String shownFont(const FontRef& font) {
    const auto systems = win32::toIFont(font).as<IFont>();
    BSTR name = nullptr;
    CY size{};
    systems->get_Name(&name);
    systems->get_Size(&size);
    const String text = u"font " + String(win32::viewBSTR(name)) + u" " + Variant(Long(size.int64)).toText();
    SysFreeString(name);
    return text;
}

String shownObject(const Variant& value) {
    if (const auto* picture = value.as<PictureRef>())
        return *picture ? u"picture " + Variant((*picture)->Width()).toText() + u" x " +
                              Variant((*picture)->Height()).toText()
                        : u"nothing";
    if (const auto* font = value.as<FontRef>())
        return *font ? shownFont(*font) : u"nothing";
    return *value.as<ObjectRef>() ? u"object" : u"nothing";
}

} // namespace

std::string shown(const Variant& value, bool withKind) {
    if (value.isObject())
        return toUtf8(shownObject(value));
    if (value.isEmpty())
        return "Empty";
    // An empty reference comes as Null from the language that knows no other one.
    if (value.isNull())
        return withKind ? "Null" : "nothing";
    if (value.isString())
        return "\"" + toUtf8(value.toText()) + "\"";
    if (const bool* truth = value.as<bool>())
        return *truth ? "True" : "False";
    if (!withKind)
        return "Number " + toUtf8(textFromNumber(value.toDouble()));
    const char* kind = value.as<Integer>() != nullptr  ? "Integer "
                       : value.as<Long>() != nullptr   ? "Long "
                       : value.as<Single>() != nullptr ? "Single "
                                                       : "other kind ";
    return kind + toUtf8(value.toText());
}

void fill(Subject& list) {
    list.let(u"AutoRedraw", {}, false);
    list.call(u"RowsClear", {});
    list.call(u"ColumnsClear", {});
    for (const char16_t* column : {u"one", u"two", u"three"})
        list.call(u"ColumnsAdd", {column});
    for (const char16_t* row : {u"a;1;x", u"b;2;bb", u"Bc;3;z"})
        list.call(u"RowsAdd", {Long{-1}, u";", row});
    list.let(u"ColumnKey", {Long{2}}, u"key");
    list.let(u"ItemChecked", {Long{3}, Long{1}}, true);
    list.let(u"ItemTag", {Long{2}, Long{1}}, u"tag");
    list.let(u"RowChecked", {Long{2}}, true);
    list.let(u"ListIndex", {}, Long{1});
    list.let(u"AutoRedraw", {}, true);
    list.call(u"Redraw", {});
}

std::string stateOf(Subject& list) {
    std::string state;
    for (const char16_t* name : {u"ColumnsCount",
                                 u"RowsCount",
                                 u"ListIndex",
                                 u"RowIndex",
                                 u"TopIndex",
                                 u"NewIndex",
                                 u"RowSelectedCount",
                                 u"ItemsCheckedCount",
                                 u"SortColumnIndex"})
        state += toUtf8(name) + "=" + toUtf8(list.get(name, {}).toText()) + " ";
    const Long columns = list.get(u"ColumnsCount", {}).toLong();
    for (Long column = 1; column <= columns; ++column)
        state += "\n" + toUtf8(list.get(u"ColumnText", {column}).toText()) + " " +
                 toUtf8(list.get(u"ColumnWidth", {column}).toText());
    const Long rows = list.get(u"RowsCount", {}).toLong();
    for (Long row = 1; row <= rows; ++row) {
        state += "\n";
        for (Long column = 1; column <= columns; ++column)
            state += toUtf8(list.get(u"ItemText", {row, column}).toText()) + "|";
    }
    return state;
}

} // namespace lumtex::testing
