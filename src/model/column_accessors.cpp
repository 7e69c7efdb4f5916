/// Reading and writing one field of one column.
#include "model/list_view.h"

namespace lumtex {

namespace {

/// What a Boolean becomes in a number.
constexpr Single numberOf(bool value) {
    return value ? -1.0F : 0.0F;
}

} // namespace

template <class T>
T lmListView::columnGet(StringView name, const Variant& Index, T ColumnHeader::*field) {
    return procedure(name).value<T>([&] { return columnAt(zeroBased(Index)).*field; });
}

template <class T, class Value>
void lmListView::columnLet(StringView name, const Variant& Index, T ColumnHeader::*field, Value&& value) {
    procedure(name).step([&] { columnAt(zeroBased(Index)).*field = std::forward<Value>(value); });
    CheckForRedraw();
}

// clang-format off
String lmListView::ColumnText(const Variant& Index) { return columnGet(u"ColumnText", Index, &ColumnHeader::Text); }
void lmListView::letColumnText(const Variant& Index, StringView text) { columnLet(u"ColumnText", Index, &ColumnHeader::Text, text); }
PictureRef lmListView::ColumnIcon(const Variant& Index) { return columnGet(u"ColumnIcon", Index, &ColumnHeader::Icon); }
void lmListView::setColumnIcon(const Variant& Index, PictureRef icon) { columnLet(u"ColumnIcon", Index, &ColumnHeader::Icon, std::move(icon)); }
PictureRef lmListView::ColumnIconHover(const Variant& Index) { return columnGet(u"ColumnIconHover", Index, &ColumnHeader::IconHover); }
void lmListView::setColumnIconHover(const Variant& Index, PictureRef icon) { columnLet(u"ColumnIconHover", Index, &ColumnHeader::IconHover, std::move(icon)); }
PictureRef lmListView::ColumnIconDown(const Variant& Index) { return columnGet(u"ColumnIconDown", Index, &ColumnHeader::IconDown); }
void lmListView::setColumnIconDown(const Variant& Index, PictureRef icon) { columnLet(u"ColumnIconDown", Index, &ColumnHeader::IconDown, std::move(icon)); }
Single lmListView::ColumnLeft(const Variant& Index) { return columnGet(u"ColumnLeft", Index, &ColumnHeader::Left); }
Single lmListView::ColumnWidth(const Variant& Index) { return columnGet(u"ColumnWidth", Index, &ColumnHeader::Width); }
void lmListView::letColumnWidth(const Variant& Index, Single width) { columnLet(u"ColumnWidth", Index, &ColumnHeader::Width, width); }
String lmListView::ColumnTag(const Variant& Index) { return columnGet(u"ColumnTag", Index, &ColumnHeader::Tag); }
void lmListView::letColumnTag(const Variant& Index, StringView tag) { columnLet(u"ColumnTag", Index, &ColumnHeader::Tag, tag); }
String lmListView::ColumnKey(const Variant& Index) { return columnGet(u"ColumnKey", Index, &ColumnHeader::Key); }
void lmListView::letColumnKey(const Variant& Index, StringView key) { columnLet(u"ColumnKey", Index, &ColumnHeader::Key, key); }
cColumnHeaderAlign lmListView::ColumnAlignment(const Variant& Index) { return columnGet(u"ColumnAlignment", Index, &ColumnHeader::Alignment); }
void lmListView::letColumnAlignment(const Variant& Index, cColumnHeaderAlign alignment) { columnLet(u"ColumnAlignment", Index, &ColumnHeader::Alignment, alignment); }
cColumnHeaderAlign lmListView::ColumnIconAlignment(const Variant& Index) { return columnGet(u"ColumnIconAlignment", Index, &ColumnHeader::IconAlignment); }
void lmListView::letColumnIconAlignment(const Variant& Index, cColumnHeaderAlign alignment) { columnLet(u"ColumnIconAlignment", Index, &ColumnHeader::IconAlignment, alignment); }
OLE_COLOR lmListView::ColumnForeColor(const Variant& Index) { return columnGet(u"ColumnForeColor", Index, &ColumnHeader::ForeColor); }
void lmListView::letColumnForeColor(const Variant& Index, OLE_COLOR color) { columnLet(u"ColumnForeColor", Index, &ColumnHeader::ForeColor, color); }
OLE_COLOR lmListView::ColumnForeColorHover(const Variant& Index) { return columnGet(u"ColumnForeColorHover", Index, &ColumnHeader::ForeColorHover); }
void lmListView::letColumnForeColorHover(const Variant& Index, OLE_COLOR color) { columnLet(u"ColumnForeColorHover", Index, &ColumnHeader::ForeColorHover, color); }
OLE_COLOR lmListView::ColumnForeColorDown(const Variant& Index) { return columnGet(u"ColumnForeColorDown", Index, &ColumnHeader::ForeColorDown); }
void lmListView::letColumnForeColorDown(const Variant& Index, OLE_COLOR color) { columnLet(u"ColumnForeColorDown", Index, &ColumnHeader::ForeColorDown, color); }
bool lmListView::ColumnAllowSorting(const Variant& Index) { return columnGet(u"ColumnAllowSorting", Index, &ColumnHeader::AllowSorting); }
void lmListView::letColumnAllowSorting(const Variant& Index, bool allow) { columnLet(u"ColumnAllowSorting", Index, &ColumnHeader::AllowSorting, allow); }
bool lmListView::ColumnCheckBoxes(const Variant& Index) { return columnGet(u"ColumnCheckBoxes", Index, &ColumnHeader::CheckBoxes); }
void lmListView::letColumnCheckBoxes(const Variant& Index, bool checkBoxes) { columnLet(u"ColumnCheckBoxes", Index, &ColumnHeader::CheckBoxes, checkBoxes); }
bool lmListView::ColumnAdjustItemIcons(const Variant& Index) { return columnGet(u"ColumnAdjustItemIcons", Index, &ColumnHeader::AdjustItemIcons); }
void lmListView::letColumnAdjustItemIcons(const Variant& Index, bool adjust) { columnLet(u"ColumnAdjustItemIcons", Index, &ColumnHeader::AdjustItemIcons, adjust); }
// clang-format on

// Wanted: the two sizes pass through a Boolean on the interface, both ways.
bool lmListView::ColumnItemIconH(const Variant& Index) {
    return columnGet(u"ColumnItemIconH", Index, &ColumnHeader::ItemIconH) != 0;
}

void lmListView::letColumnItemIconH(const Variant& Index, bool height) {
    columnLet(u"ColumnItemIconH", Index, &ColumnHeader::ItemIconH, numberOf(height));
}

bool lmListView::ColumnItemIconW(const Variant& Index) {
    return columnGet(u"ColumnItemIconW", Index, &ColumnHeader::ItemIconW) != 0;
}

void lmListView::letColumnItemIconW(const Variant& Index, bool width) {
    columnLet(u"ColumnItemIconW", Index, &ColumnHeader::ItemIconW, numberOf(width));
}

} // namespace lumtex
