/// Reading and writing one field of one column.
#include "model/list_view_records.h"

namespace lumtex {

namespace {

/// What a Boolean becomes in a number.
constexpr Single numberOf(bool value) {
    return value ? -1.0F : 0.0F;
}

} // namespace

template <class T>
ValueOf<T> ListViewRecords::columnGet(StringView name, const Variant& Index, T ColumnHeader::*field) {
    Procedure p = procedure(name);
    return p.value<ValueOf<T>>([&]() -> ValueOf<T> { return records.columnAt(zeroBased(Index)).*field; });
}

template <class T, class Value>
void ListViewRecords::columnLet(StringView name,
                                const Variant& Index,
                                T ColumnHeader::*field,
                                Value&& value) {
    Procedure p = procedure(name);
    p.step([&] { records.columnAt(zeroBased(Index)).*field = std::forward<Value>(value); });
    CheckForRedraw();
}

// clang-format off
String ListViewRecords::ColumnText(const Variant& Index) { return columnGet(u"ColumnText", Index, &ColumnHeader::Text); }
void ListViewRecords::letColumnText(const Variant& Index, StringView text) { columnLet(u"ColumnText", Index, &ColumnHeader::Text, text); }
PictureRef ListViewRecords::ColumnIcon(const Variant& Index) { return columnGet(u"ColumnIcon", Index, &ColumnHeader::Icon); }
void ListViewRecords::setColumnIcon(const Variant& Index, PictureRef icon) { columnLet(u"ColumnIcon", Index, &ColumnHeader::Icon, std::move(icon)); }
PictureRef ListViewRecords::ColumnIconHover(const Variant& Index) { return columnGet(u"ColumnIconHover", Index, &ColumnHeader::IconHover); }
void ListViewRecords::setColumnIconHover(const Variant& Index, PictureRef icon) { columnLet(u"ColumnIconHover", Index, &ColumnHeader::IconHover, std::move(icon)); }
PictureRef ListViewRecords::ColumnIconDown(const Variant& Index) { return columnGet(u"ColumnIconDown", Index, &ColumnHeader::IconDown); }
void ListViewRecords::setColumnIconDown(const Variant& Index, PictureRef icon) { columnLet(u"ColumnIconDown", Index, &ColumnHeader::IconDown, std::move(icon)); }
Single ListViewRecords::ColumnLeft(const Variant& Index) { return columnGet(u"ColumnLeft", Index, &ColumnHeader::Left); }
Single ListViewRecords::ColumnWidth(const Variant& Index) { return columnGet(u"ColumnWidth", Index, &ColumnHeader::Width); }
void ListViewRecords::letColumnWidth(const Variant& Index, Single width) { columnLet(u"ColumnWidth", Index, &ColumnHeader::Width, width); }
String ListViewRecords::ColumnTag(const Variant& Index) { return columnGet(u"ColumnTag", Index, &ColumnHeader::Tag); }
void ListViewRecords::letColumnTag(const Variant& Index, StringView tag) { columnLet(u"ColumnTag", Index, &ColumnHeader::Tag, tag); }
String ListViewRecords::ColumnKey(const Variant& Index) { return columnGet(u"ColumnKey", Index, &ColumnHeader::Key); }
void ListViewRecords::letColumnKey(const Variant& Index, StringView key) { columnLet(u"ColumnKey", Index, &ColumnHeader::Key, key); }
cColumnHeaderAlign ListViewRecords::ColumnAlignment(const Variant& Index) { return columnGet(u"ColumnAlignment", Index, &ColumnHeader::Alignment); }
void ListViewRecords::letColumnAlignment(const Variant& Index, cColumnHeaderAlign alignment) { columnLet(u"ColumnAlignment", Index, &ColumnHeader::Alignment, alignment); }
cColumnHeaderAlign ListViewRecords::ColumnIconAlignment(const Variant& Index) { return columnGet(u"ColumnIconAlignment", Index, &ColumnHeader::IconAlignment); }
void ListViewRecords::letColumnIconAlignment(const Variant& Index, cColumnHeaderAlign alignment) { columnLet(u"ColumnIconAlignment", Index, &ColumnHeader::IconAlignment, alignment); }
OLE_COLOR ListViewRecords::ColumnForeColor(const Variant& Index) { return columnGet(u"ColumnForeColor", Index, &ColumnHeader::ForeColor); }
void ListViewRecords::letColumnForeColor(const Variant& Index, OLE_COLOR color) { columnLet(u"ColumnForeColor", Index, &ColumnHeader::ForeColor, color); }
OLE_COLOR ListViewRecords::ColumnForeColorHover(const Variant& Index) { return columnGet(u"ColumnForeColorHover", Index, &ColumnHeader::ForeColorHover); }
void ListViewRecords::letColumnForeColorHover(const Variant& Index, OLE_COLOR color) { columnLet(u"ColumnForeColorHover", Index, &ColumnHeader::ForeColorHover, color); }
OLE_COLOR ListViewRecords::ColumnForeColorDown(const Variant& Index) { return columnGet(u"ColumnForeColorDown", Index, &ColumnHeader::ForeColorDown); }
void ListViewRecords::letColumnForeColorDown(const Variant& Index, OLE_COLOR color) { columnLet(u"ColumnForeColorDown", Index, &ColumnHeader::ForeColorDown, color); }
bool ListViewRecords::ColumnAllowSorting(const Variant& Index) { return columnGet(u"ColumnAllowSorting", Index, &ColumnHeader::AllowSorting); }
void ListViewRecords::letColumnAllowSorting(const Variant& Index, bool allow) { columnLet(u"ColumnAllowSorting", Index, &ColumnHeader::AllowSorting, allow); }
bool ListViewRecords::ColumnCheckBoxes(const Variant& Index) { return columnGet(u"ColumnCheckBoxes", Index, &ColumnHeader::CheckBoxes); }
void ListViewRecords::letColumnCheckBoxes(const Variant& Index, bool checkBoxes) { columnLet(u"ColumnCheckBoxes", Index, &ColumnHeader::CheckBoxes, checkBoxes); }
bool ListViewRecords::ColumnAdjustItemIcons(const Variant& Index) { return columnGet(u"ColumnAdjustItemIcons", Index, &ColumnHeader::AdjustItemIcons); }
void ListViewRecords::letColumnAdjustItemIcons(const Variant& Index, bool adjust) { columnLet(u"ColumnAdjustItemIcons", Index, &ColumnHeader::AdjustItemIcons, adjust); }
// clang-format on

// Wanted: the two sizes pass through a Boolean on the interface, both ways.
bool ListViewRecords::ColumnItemIconH(const Variant& Index) {
    return columnGet(u"ColumnItemIconH", Index, &ColumnHeader::ItemIconH) != 0;
}

void ListViewRecords::letColumnItemIconH(const Variant& Index, bool height) {
    columnLet(u"ColumnItemIconH", Index, &ColumnHeader::ItemIconH, numberOf(height));
}

bool ListViewRecords::ColumnItemIconW(const Variant& Index) {
    return columnGet(u"ColumnItemIconW", Index, &ColumnHeader::ItemIconW) != 0;
}

void ListViewRecords::letColumnItemIconW(const Variant& Index, bool width) {
    columnLet(u"ColumnItemIconW", Index, &ColumnHeader::ItemIconW, numberOf(width));
}

} // namespace lumtex
