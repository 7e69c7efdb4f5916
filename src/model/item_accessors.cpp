/// Reading and writing one field of one cell.
#include "model/item_access.h"

namespace lumtex {

template <class T>
T lmListView::styleGet(StringView name, const Variant& Row, const Variant& Column, T CellStyle::*field) {
    return itemGet<T>(name, Row, Column, [&](const Cell& cell) { return cell.item().style().*field; });
}

template <class T>
void lmListView::styleLet(
    StringView name, const Variant& Row, const Variant& Column, T CellStyle::*field, const T& value) {
    itemLet(name, Row, Column, [&](const Cell& cell) {
        cell.item().restyle([&](CellStyle& style) { style.*field = value; });
    });
}

template <class T>
T lmListView::fontGet(StringView name, const Variant& Row, const Variant& Column, T FontSpec::*field) {
    return itemGet<T>(name, Row, Column, [&](const Cell& cell) { return cell.item().style().font.*field; });
}

template <class T>
void lmListView::fontLet(
    StringView name, const Variant& Row, const Variant& Column, T FontSpec::*field, const T& value) {
    itemLet(name, Row, Column, [&](const Cell& cell) {
        cell.item().restyle([&](CellStyle& style) { style.font.*field = value; });
    });
}

template <class T>
T lmListView::extraGet(StringView name, const Variant& Row, const Variant& Column, T CellExtras::*field) {
    return itemGet<T>(name, Row, Column, [&](const Cell& cell) {
        const CellExtras* extras = cell.items.extras(cell.index);
        return extras != nullptr ? extras->*field : T{};
    });
}

// clang-format off
bool lmListView::ItemFontBold(const Variant& Row, const Variant& Column) { return fontGet(u"ItemFontBold", Row, Column, &FontSpec::Bold); }
void lmListView::letItemFontBold(const Variant& Row, const Variant& Column, bool bold) { fontLet(u"ItemFontBold", Row, Column, &FontSpec::Bold, bold); }
bool lmListView::ItemFontItalic(const Variant& Row, const Variant& Column) { return fontGet(u"ItemFontItalic", Row, Column, &FontSpec::Italic); }
void lmListView::letItemFontItalic(const Variant& Row, const Variant& Column, bool italic) { fontLet(u"ItemFontItalic", Row, Column, &FontSpec::Italic, italic); }
bool lmListView::ItemFontUnderline(const Variant& Row, const Variant& Column) { return fontGet(u"ItemFontUnderline", Row, Column, &FontSpec::Underline); }
void lmListView::letItemFontUnderline(const Variant& Row, const Variant& Column, bool underline) { fontLet(u"ItemFontUnderline", Row, Column, &FontSpec::Underline, underline); }
bool lmListView::ItemFontStrikethrough(const Variant& Row, const Variant& Column) { return fontGet(u"ItemFontStrikethrough", Row, Column, &FontSpec::Strikethrough); }
void lmListView::letItemFontStrikethrough(const Variant& Row, const Variant& Column, bool strikethrough) { fontLet(u"ItemFontStrikethrough", Row, Column, &FontSpec::Strikethrough, strikethrough); }
Single lmListView::ItemFontSize(const Variant& Row, const Variant& Column) { return fontGet(u"ItemFontSize", Row, Column, &FontSpec::Size); }
void lmListView::letItemFontSize(const Variant& Row, const Variant& Column, Single points) { fontLet(u"ItemFontSize", Row, Column, &FontSpec::Size, points); }
String lmListView::ItemFontName(const Variant& Row, const Variant& Column) { return fontGet(u"ItemFontName", Row, Column, &FontSpec::Name); }
void lmListView::letItemFontName(const Variant& Row, const Variant& Column, StringView name) { fontLet(u"ItemFontName", Row, Column, &FontSpec::Name, String(name)); }
OLE_COLOR lmListView::ItemForeColor(const Variant& Row, const Variant& Column) { return styleGet(u"ItemForeColor", Row, Column, &CellStyle::ForeColor); }
void lmListView::letItemForeColor(const Variant& Row, const Variant& Column, OLE_COLOR color) { styleLet(u"ItemForeColor", Row, Column, &CellStyle::ForeColor, color); }
bool lmListView::ItemAllowEdit(const Variant& Row, const Variant& Column) { return styleGet(u"ItemAllowEdit", Row, Column, &CellStyle::AllowEdit); }
void lmListView::letItemAllowEdit(const Variant& Row, const Variant& Column, bool allow) { styleLet(u"ItemAllowEdit", Row, Column, &CellStyle::AllowEdit, allow); }
cItemAlign lmListView::ItemAlignment(const Variant& Row, const Variant& Column) { return styleGet(u"ItemAlignment", Row, Column, &CellStyle::Alignment); }
void lmListView::letItemAlignment(const Variant& Row, const Variant& Column, cItemAlign alignment) { styleLet(u"ItemAlignment", Row, Column, &CellStyle::Alignment, alignment); }
cItemAlign lmListView::ItemIconAlignment(const Variant& Row, const Variant& Column) { return styleGet(u"ItemIconAlignment", Row, Column, &CellStyle::IconAlignment); }
void lmListView::letItemIconAlignment(const Variant& Row, const Variant& Column, cItemAlign alignment) { styleLet(u"ItemIconAlignment", Row, Column, &CellStyle::IconAlignment, alignment); }
Variant lmListView::ItemBackColor(const Variant& Row, const Variant& Column) { return styleGet(u"ItemBackColor", Row, Column, &CellStyle::BackColor); }
void lmListView::letItemBackColor(const Variant& Row, const Variant& Column, const Variant& color) { styleLet(u"ItemBackColor", Row, Column, &CellStyle::BackColor, color); }
Variant lmListView::ItemForeColorSelect(const Variant& Row, const Variant& Column) { return styleGet(u"ItemForeColorSelect", Row, Column, &CellStyle::ForeColorSelect); }
void lmListView::letItemForeColorSelect(const Variant& Row, const Variant& Column, const Variant& color) { styleLet(u"ItemForeColorSelect", Row, Column, &CellStyle::ForeColorSelect, color); }
Variant lmListView::ItemBackColorSelect(const Variant& Row, const Variant& Column) { return styleGet(u"ItemBackColorSelect", Row, Column, &CellStyle::BackColorSelect); }
void lmListView::letItemBackColorSelect(const Variant& Row, const Variant& Column, const Variant& color) { styleLet(u"ItemBackColorSelect", Row, Column, &CellStyle::BackColorSelect, color); }
// clang-format on

Variant lmListView::ItemForeColorDis(const Variant& Row, const Variant& Column) {
    return itemGet<Variant>(
        u"ItemForeColorDis", Row, Column, [](const Cell& cell) { return cell.item().style().ForeColorDis; });
}

void lmListView::letItemForeColorDis(const Variant& Row, const Variant& Column, const Variant& color) {
    itemLet(u"ItemForeColorDis", Row, Column, [&](const Cell& cell) {
        const OLE_COLOR converted = color.toColor();
        cell.item().restyle([&](CellStyle& style) { style.ForeColorDis = converted; });
    });
}

Variant lmListView::ItemBackColorDis(const Variant& Row, const Variant& Column) {
    return itemGet<Variant>(
        u"ItemBackColorDis", Row, Column, [](const Cell& cell) { return cell.item().style().BackColorDis; });
}

void lmListView::letItemBackColorDis(const Variant& Row, const Variant& Column, const Variant& color) {
    itemLet(u"ItemBackColorDis", Row, Column, [&](const Cell& cell) {
        const OLE_COLOR converted = color.toColor();
        cell.item().restyle([&](CellStyle& style) { style.BackColorDis = converted; });
    });
}

String lmListView::ItemText(const Variant& Row, const Variant& Column) {
    return itemGet<String>(u"ItemText", Row, Column, [](const Cell& cell) { return cell.item().Text(); });
}

void lmListView::letItemText(const Variant& Row, const Variant& Column, StringView text) {
    itemLet(u"ItemText", Row, Column, [&](const Cell& cell) { cell.item().letText(text); });
}

Single lmListView::ItemTextWidth(const Variant& Row, const Variant& Column) {
    return itemGet<Single>(
        u"ItemTextWidth", Row, Column, [](const Cell& cell) { return cell.item().TextWidth(); });
}

bool lmListView::ItemEnabled(const Variant& Row, const Variant& Column) {
    return styleGet(u"ItemEnabled", Row, Column, &CellStyle::Enabled);
}

// Wanted: no repaint, so that a whole row can be switched and painted once.
void lmListView::letItemEnabled(const Variant& Row, const Variant& Column, bool enabled) {
    procedure(u"ItemEnabled").step([&] {
        cellAt(Row, Column).item().restyle([&](CellStyle& style) { style.Enabled = enabled; });
    });
}

Variant lmListView::ItemTag(const Variant& Row, const Variant& Column) {
    return extraGet(u"ItemTag", Row, Column, &CellExtras::Tag);
}

// Wanted: no repaint here either.
void lmListView::letItemTag(const Variant& Row, const Variant& Column, const Variant& tag) {
    procedure(u"ItemTag").step([&] {
        const Cell cell = cellAt(Row, Column);
        cell.items.needExtras(cell.index).Tag = tag;
    });
}

PictureRef lmListView::ItemIcon(const Variant& Row, const Variant& Column) {
    return extraGet(u"ItemIcon", Row, Column, &CellExtras::Icon);
}

void lmListView::setItemIcon(const Variant& Row, const Variant& Column, PictureRef icon) {
    itemLet(u"ItemIcon", Row, Column, [&](const Cell& cell) {
        cell.items.needExtras(cell.index).Icon = std::move(icon);
    });
}

PictureRef lmListView::ItemIconSelected(const Variant& Row, const Variant& Column) {
    return extraGet(u"ItemIconSelected", Row, Column, &CellExtras::IconSelected);
}

void lmListView::setItemIconSelected(const Variant& Row, const Variant& Column, PictureRef icon) {
    itemLet(u"ItemIconSelected", Row, Column, [&](const Cell& cell) {
        cell.items.needExtras(cell.index).IconSelected = std::move(icon);
    });
}

String lmListView::ItemToolTip(const Variant& Row, const Variant& Column) {
    return extraGet(u"ItemToolTip", Row, Column, &CellExtras::ToolTip);
}

void lmListView::letItemToolTip(const Variant& Row, const Variant& Column, StringView toolTip) {
    itemLet(u"ItemToolTip", Row, Column, [&](const Cell& cell) {
        cell.items.needExtras(cell.index).ToolTip = toolTip;
    });
}

} // namespace lumtex
