#include "automation/member_table.h"
#include "values/text.h"

#include <set>

#include <gtest/gtest.h>

namespace lumtex::testing {

namespace {

std::string textOf(const automation::DefaultValue& value) {
    switch (value.kind) {
    case automation::DefaultValue::Kind::required:
        return "";
    case automation::DefaultValue::Kind::missing:
        return " = Missing";
    case automation::DefaultValue::Kind::nothing:
        return " = Nothing";
    case automation::DefaultValue::Kind::boolean:
        return value.number != 0 ? " = True" : " = False";
    case automation::DefaultValue::Kind::number:
        return " = " + toUtf8(textFromNumber(value.number));
    case automation::DefaultValue::Kind::text:
        break;
    }
    return " = \"" + toUtf8(value.text) + "\"";
}

/// "Name(ByRef A: Long, B: String = \"x\"): Type get let"
std::string signatureOf(const automation::Member& member) {
    std::string text = toUtf8(member.name);
    if (member.isMethod() || member.count > 0) {
        text += "(";
        for (const automation::Parameter& parameter : member.parameters()) {
            text += text.back() == '(' ? "" : ", ";
            text += parameter.byReference ? "ByRef " : "";
            text +=
                toUtf8(parameter.name) + ": " + toUtf8(parameter.type.name) + textOf(parameter.defaultValue);
        }
        text += ")";
    }
    if (member.type.code != automation::TypeCode::none)
        text += ": " + toUtf8(member.type.name);
    text += member.get != nullptr ? " get" : "";
    if (member.let != nullptr)
        text += member.isReference() ? " set" : " let";
    text += member.isMethod() ? " call" : "";
    text += member.hidden ? " hidden" : "";
    return text;
}

/// What hosts were promised, written down a second time on purpose.
// clang-format off
const std::multiset<std::string> promised = {
    "About() call",
    "AllowEdit: Boolean get let",
    "AutoColumnSize(lColumns: Variant = Missing) call",
    "FindItem(ByRef sFind: String, ByRef cBegin: cFindBegin = 1, ByRef cCompare: cFindCompare = 0, ByRef sColumns: String = \"*\", ByRef sRows: String = \"*\"): FindResults call",
    "AutoCheckScroll: Boolean get let",
    "AutoRedraw: Boolean get let",
    "AutoRowColor: Boolean get let",
    "BackColor: OLE_COLOR get let",
    "BackColorDisabled: OLE_COLOR get let",
    "BackgroundPicture: Picture get set",
    "BorderColor: OLE_COLOR get let",
    "BorderVisible: Boolean get let",
    "CheckMouseOver: Boolean get let",
    "CheckScroll() call",
    "ClearListView() call",
    "ClickOnIndexChange: Boolean get let",
    "ContentInput(sFilename: String, bReadItemPropertiesIfExists: Boolean = False): Boolean call",
    "ContentSave(sFilename: String, bSaveItemProperties: Boolean = False): Boolean call",
    "ColorStyle: cColorStyle get let",
    "ColumnAdjustItemIcons(Index: Variant): Boolean get let",
    "ColumnAlignment(Index: Variant): cColumnHeaderAlign get let",
    "ColumnAllowSorting(Index: Variant): Boolean get let",
    "ColumnBackColor: OLE_COLOR get let",
    "ColumnCheckBoxes(Index: Variant): Boolean get let",
    "ColumnDownColor: OLE_COLOR get let",
    "ColumnForeColor(Index: Variant): OLE_COLOR get let",
    "ColumnForeColorDown(Index: Variant): OLE_COLOR get let",
    "ColumnForeColorHover(Index: Variant): OLE_COLOR get let",
    "ColumnHoverColor: OLE_COLOR get let",
    "ColumnIcon(Index: Variant): Picture get set",
    "ColumnIconAlignment(Index: Variant): cColumnHeaderAlign get let",
    "ColumnIconDown(Index: Variant): Picture get set",
    "ColumnIconH: Single get let",
    "ColumnIconHover(Index: Variant): Picture get set",
    "ColumnIconW: Single get let",
    "ColumnIndex: Long get",
    "ColumnItemIconH(Index: Variant): Boolean get let",
    "ColumnItemIconW(Index: Variant): Boolean get let",
    "ColumnKey(Index: Variant): String get let",
    "ColumnLeft(Index: Variant): Single get",
    "ColumnsAdd(aText: Variant, aIcon: Picture = Nothing, aIconHover: Picture = Nothing, aIconDown: Picture = Nothing, aAlignment: cColumnHeaderAlign = 0, aWidth: Single = 1000, aAllowSorting: Boolean = False, aForeColor: OLE_COLOR = 0, aKey: String = \"\", aTag: String = \"\", aForeColorHover: OLE_COLOR = 0, aForeColorDown: OLE_COLOR = 0) call",
    "ColumnsClear() call",
    "ColumnsCount: Long get",
    "ColumnsRemove(Index: Variant) call",
    "ColumnTag(Index: Variant): String get let",
    "ColumnText(Index: Variant): String get let",
    "ColumnTextY: Long get let",
    "ColumnWidth(Index: Variant): Single get let",
    "DefaultColumnFont: Font get set",
    "DefaultColumnForeColor: OLE_COLOR get let",
    "DefaultIconSelectedIsIcon: Boolean get let",
    "DefaultItemFont: Font get set",
    "DefaultItemForeColor: OLE_COLOR get let",
    "DistPicText: Single get let",
    "DrawColumnIcons: Boolean get let",
    "DrawItemIcons: Boolean get let",
    "EmptyColumnFieldColor: OLE_COLOR get let",
    "EmptyColumnFieldWidth: Single get let",
    "Enabled: Boolean get let",
    "FixColumns: Boolean get let",
    "FullRowSelect: Boolean get let",
    "GridLineColor: OLE_COLOR get let",
    "GridLines: Boolean get let",
    "HideColumnHeaders: Boolean get let",
    "HideSelection: Boolean get let",
    "hwnd: Long get",
    "hwndEdit: Long get",
    "IconH: Single get let",
    "IconSelect: Boolean get let",
    "IconW: Single get let",
    "IndentBottom: Single get let",
    "IndentLeft: Single get let",
    "IndentRight: Single get let",
    "IndentTop: Single get let",
    "ItemAlignment(Row: Variant, Column: Variant): cItemAlign get let",
    "ItemAllowEdit(Row: Variant, Column: Variant): Boolean get let",
    "ItemBackColor(Row: Variant, Column: Variant): Variant get let",
    "ItemBackColorDis(Row: Variant, Column: Variant): Variant get let",
    "ItemBackColorSelect(Row: Variant, Column: Variant): Variant get let",
    "ItemChecked(Row: Variant, Column: Variant): Boolean get let",
    "ItemEnabled(Row: Variant, Column: Variant): Boolean get let",
    "ItemFontBold(Row: Variant, Column: Variant): Boolean get let",
    "ItemFontItalic(Row: Variant, Column: Variant): Boolean get let",
    "ItemFontName(Row: Variant, Column: Variant): String get let",
    "ItemFontSize(Row: Variant, Column: Variant): Single get let",
    "ItemFontStrikethrough(Row: Variant, Column: Variant): Boolean get let",
    "ItemFontUnderline(Row: Variant, Column: Variant): Boolean get let",
    "ItemForeColor(Row: Variant, Column: Variant): OLE_COLOR get let",
    "ItemForeColorDis(Row: Variant, Column: Variant): Variant get let",
    "ItemForeColorSelect(Row: Variant, Column: Variant): Variant get let",
    "ItemIcon(Row: Variant, Column: Variant): Picture get set",
    "ItemIconAlignment(Row: Variant, Column: Variant): cItemAlign get let",
    "ItemIconSelected(Row: Variant, Column: Variant): Picture get set",
    "ItemObject(Row: Variant, Column: Variant): Object get set",
    "ItemsCheckedCount(Column: Long = 0): Long call",
    "ItemTag(Row: Variant, Column: Variant): Variant get let",
    "ItemText(Row: Variant, Column: Variant): String get let",
    "ItemTextWidth(Row: Variant, Column: Variant): Single get",
    "ItemToolTip(Row: Variant, Column: Variant): String get let",
    "ListIndex: Long get let",
    "MoveColumnTextAtDown: Boolean get let",
    "MultiSelect: Boolean get let",
    "NewIndex: Long get",
    "OLEDragMode: Long get let",
    "OLEDropMode: Long get let",
    "Recordset: Object get set hidden",
    "Redraw() call",
    "RowChecked(Index: Variant): Boolean get let",
    "RowColorFirst: OLE_COLOR get let",
    "RowColorSecond: OLE_COLOR get let",
    "RowEnabled(Index: Variant): Boolean get let",
    "RowHeight: Single get let",
    "RowIndex: Long get let",
    "RowsAdd(ByRef aIndex: Variant = -1, aSplit: String = \",\", aItemTexts: String = Missing) call",
    "RowsClear() call",
    "RowsCount: Long get",
    "RowsDynamic: Boolean get let",
    "RowSelected(Index: Variant): Boolean get let",
    "RowSelectedCount(): Long call",
    "RowsRemove(ByRef Index: Variant) call",
    "RowsSelectedRemove() call",
    "ScrollArrows: OLE_COLOR get let",
    "ScrollArrowsDown: OLE_COLOR get let",
    "ScrollArrowsHover: OLE_COLOR get let",
    "ScrollBackColor: OLE_COLOR get let",
    "ScrollBar: OLE_COLOR get let",
    "ScrollBarDown: OLE_COLOR get let",
    "ScrollBarHover: OLE_COLOR get let",
    "ScrollButtonJumpLines: Long get let",
    "ScrollButtons: OLE_COLOR get let",
    "ScrollButtonsDown: OLE_COLOR get let",
    "ScrollButtonsHover: OLE_COLOR get let",
    "ScrollColorStyle: cScrollColorStyle get let",
    "Skin: Picture get set",
    "SetEdit(Row: Variant, Column: Variant) call",
    "Sort(ByRef Column: Long, ByRef SortMode: cSortMode = 0, ByRef SortType: cSortType = 0) call",
    "SortColumnIndex: Long get",
    "StopEdit() call",
    "Style: cListViewStyle get let",
    "TextPosition(Index: Variant): cTextPosition get let",
    "TextPositionDefault: cTextPosition get let",
    "TopIndex: Long get let",
    "ValueColor: OLE_COLOR get let",
    "WheelFunction: cWheelFunction get let",
    "WheelScrollLines: Long get let",
    "WrongColumnIndex(Index: Variant): Boolean call",
    "WrongIndex(Index: Variant): Boolean call",
};
// clang-format on

template <class T>
std::vector<T> without(const std::multiset<T>& all, const std::multiset<T>& known) {
    std::vector<T> rest;
    std::set_difference(all.begin(), all.end(), known.begin(), known.end(), std::back_inserter(rest));
    return rest;
}

} // namespace

TEST(MemberTable, HoldsEveryPublicMemberWithItsNameAndTypes) {
    std::multiset<std::string> described;
    for (const automation::Member& member : automation::memberTable())
        described.insert(signatureOf(member));
    EXPECT_EQ(without(promised, described), std::vector<std::string>()) << "promised, and not in the table";
    EXPECT_EQ(without(described, promised), std::vector<std::string>()) << "in the table, and not promised";
}

TEST(MemberTable, GivesEachMemberANumberOfItsOwn) {
    std::set<Long> numbers;
    for (const automation::Member& member : automation::memberTable())
        EXPECT_TRUE(numbers.insert(member.number).second) << toUtf8(member.name);
}

} // namespace lumtex::testing
