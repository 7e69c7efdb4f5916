/// Reading and writing one field of one cell.
#include "model/item_access.h"
#include "values/runtime_error.h"

namespace lumtex {

template <class T>
ValueOf<T>
ListViewRecords::styleGet(StringView name, const Variant& Row, const Variant& Column, T CellStyle::*field) {
    return itemGet<ValueOf<T>>(
        name, Row, Column, [&](const Cell& cell) { return cell.item().style().*field; });
}

template <class T>
void ListViewRecords::styleLet(StringView name,
                               const Variant& Row,
                               const Variant& Column,
                               T CellStyle::*field,
                               const ValueOf<T>& value) {
    itemLet(name, Row, Column, [&](const Cell& cell) {
        if constexpr (std::is_same_v<ValueOf<T>, Variant>) {
            if (value.isUnsupported())
                throw RuntimeError(typeMismatch);
        }
        cell.item().restyle([&](CellStyle& style) { style.*field = value; });
    });
}

template <class T>
T ListViewRecords::fontGet(StringView name, const Variant& Row, const Variant& Column, T FontSpec::*field) {
    return itemGet<T>(name, Row, Column, [&](const Cell& cell) { return cell.item().style().font.*field; });
}

template <class T>
void ListViewRecords::fontLet(
    StringView name, const Variant& Row, const Variant& Column, T FontSpec::*field, const T& value) {
    itemLet(name, Row, Column, [&](const Cell& cell) {
        cell.item().restyle([&](CellStyle& style) { style.font.*field = value; });
    });
}

template <class T>
ValueOf<T>
ListViewRecords::extraGet(StringView name, const Variant& Row, const Variant& Column, T CellExtras::*field) {
    return itemGet<ValueOf<T>>(name, Row, Column, [&](const Cell& cell) {
        const CellExtras* extras = cell.items.extras(cell.index);
        return extras != nullptr ? static_cast<const ValueOf<T>&>(extras->*field) : ValueOf<T>{};
    });
}

// clang-format off
bool ListViewRecords::ItemFontBold(const Variant& Row, const Variant& Column) { return fontGet(u"ItemFontBold", Row, Column, &FontSpec::Bold); }
void ListViewRecords::letItemFontBold(const Variant& Row, const Variant& Column, bool bold) { fontLet(u"ItemFontBold", Row, Column, &FontSpec::Bold, bold); }
bool ListViewRecords::ItemFontItalic(const Variant& Row, const Variant& Column) { return fontGet(u"ItemFontItalic", Row, Column, &FontSpec::Italic); }
void ListViewRecords::letItemFontItalic(const Variant& Row, const Variant& Column, bool italic) { fontLet(u"ItemFontItalic", Row, Column, &FontSpec::Italic, italic); }
bool ListViewRecords::ItemFontUnderline(const Variant& Row, const Variant& Column) { return fontGet(u"ItemFontUnderline", Row, Column, &FontSpec::Underline); }
void ListViewRecords::letItemFontUnderline(const Variant& Row, const Variant& Column, bool underline) { fontLet(u"ItemFontUnderline", Row, Column, &FontSpec::Underline, underline); }
bool ListViewRecords::ItemFontStrikethrough(const Variant& Row, const Variant& Column) { return fontGet(u"ItemFontStrikethrough", Row, Column, &FontSpec::Strikethrough); }
void ListViewRecords::letItemFontStrikethrough(const Variant& Row, const Variant& Column, bool strikethrough) { fontLet(u"ItemFontStrikethrough", Row, Column, &FontSpec::Strikethrough, strikethrough); }
Single ListViewRecords::ItemFontSize(const Variant& Row, const Variant& Column) { return fontGet(u"ItemFontSize", Row, Column, &FontSpec::Size); }
void ListViewRecords::letItemFontSize(const Variant& Row, const Variant& Column, Single points) { fontLet(u"ItemFontSize", Row, Column, &FontSpec::Size, points); }
String ListViewRecords::ItemFontName(const Variant& Row, const Variant& Column) { return fontGet(u"ItemFontName", Row, Column, &FontSpec::Name); }
void ListViewRecords::letItemFontName(const Variant& Row, const Variant& Column, StringView name) { fontLet(u"ItemFontName", Row, Column, &FontSpec::Name, String(name)); }
OLE_COLOR ListViewRecords::ItemForeColor(const Variant& Row, const Variant& Column) { return styleGet(u"ItemForeColor", Row, Column, &CellStyle::ForeColor); }
void ListViewRecords::letItemForeColor(const Variant& Row, const Variant& Column, OLE_COLOR color) { styleLet(u"ItemForeColor", Row, Column, &CellStyle::ForeColor, color); }
bool ListViewRecords::ItemAllowEdit(const Variant& Row, const Variant& Column) { return styleGet(u"ItemAllowEdit", Row, Column, &CellStyle::AllowEdit); }
void ListViewRecords::letItemAllowEdit(const Variant& Row, const Variant& Column, bool allow) { styleLet(u"ItemAllowEdit", Row, Column, &CellStyle::AllowEdit, allow); }
cItemAlign ListViewRecords::ItemAlignment(const Variant& Row, const Variant& Column) { return styleGet(u"ItemAlignment", Row, Column, &CellStyle::Alignment); }
void ListViewRecords::letItemAlignment(const Variant& Row, const Variant& Column, cItemAlign alignment) { styleLet(u"ItemAlignment", Row, Column, &CellStyle::Alignment, alignment); }
cItemAlign ListViewRecords::ItemIconAlignment(const Variant& Row, const Variant& Column) { return styleGet(u"ItemIconAlignment", Row, Column, &CellStyle::IconAlignment); }
void ListViewRecords::letItemIconAlignment(const Variant& Row, const Variant& Column, cItemAlign alignment) { styleLet(u"ItemIconAlignment", Row, Column, &CellStyle::IconAlignment, alignment); }
Variant ListViewRecords::ItemBackColor(const Variant& Row, const Variant& Column) { return styleGet(u"ItemBackColor", Row, Column, &CellStyle::BackColor); }
void ListViewRecords::letItemBackColor(const Variant& Row, const Variant& Column, const Variant& color) { styleLet(u"ItemBackColor", Row, Column, &CellStyle::BackColor, color); }
Variant ListViewRecords::ItemForeColorSelect(const Variant& Row, const Variant& Column) { return styleGet(u"ItemForeColorSelect", Row, Column, &CellStyle::ForeColorSelect); }
void ListViewRecords::letItemForeColorSelect(const Variant& Row, const Variant& Column, const Variant& color) { styleLet(u"ItemForeColorSelect", Row, Column, &CellStyle::ForeColorSelect, color); }
Variant ListViewRecords::ItemBackColorSelect(const Variant& Row, const Variant& Column) { return styleGet(u"ItemBackColorSelect", Row, Column, &CellStyle::BackColorSelect); }
void ListViewRecords::letItemBackColorSelect(const Variant& Row, const Variant& Column, const Variant& color) { styleLet(u"ItemBackColorSelect", Row, Column, &CellStyle::BackColorSelect, color); }
// clang-format on

Variant ListViewRecords::ItemForeColorDis(const Variant& Row, const Variant& Column) {
    return itemGet<Variant>(
        u"ItemForeColorDis", Row, Column, [](const Cell& cell) { return cell.item().style().ForeColorDis; });
}

void ListViewRecords::letItemForeColorDis(const Variant& Row, const Variant& Column, const Variant& color) {
    itemLet(u"ItemForeColorDis", Row, Column, [&](const Cell& cell) {
        const OLE_COLOR converted = color.toColor();
        cell.item().restyle([&](CellStyle& style) { style.ForeColorDis = converted; });
    });
}

Variant ListViewRecords::ItemBackColorDis(const Variant& Row, const Variant& Column) {
    return itemGet<Variant>(
        u"ItemBackColorDis", Row, Column, [](const Cell& cell) { return cell.item().style().BackColorDis; });
}

void ListViewRecords::letItemBackColorDis(const Variant& Row, const Variant& Column, const Variant& color) {
    itemLet(u"ItemBackColorDis", Row, Column, [&](const Cell& cell) {
        const OLE_COLOR converted = color.toColor();
        cell.item().restyle([&](CellStyle& style) { style.BackColorDis = converted; });
    });
}

String ListViewRecords::ItemText(const Variant& Row, const Variant& Column) {
    return itemGet<String>(u"ItemText", Row, Column, [](const Cell& cell) { return cell.item().Text(); });
}

void ListViewRecords::letItemText(const Variant& Row, const Variant& Column, StringView text) {
    itemLet(u"ItemText", Row, Column, [&](const Cell& cell) { cell.item().letText(text); });
}

Single ListViewRecords::ItemTextWidth(const Variant& Row, const Variant& Column) {
    return itemGet<Single>(
        u"ItemTextWidth", Row, Column, [](const Cell& cell) { return cell.item().TextWidth(); });
}

bool ListViewRecords::ItemEnabled(const Variant& Row, const Variant& Column) {
    return styleGet(u"ItemEnabled", Row, Column, &CellStyle::Enabled);
}

// Wanted: no repaint, so that a whole row can be switched and painted once.
void ListViewRecords::letItemEnabled(const Variant& Row, const Variant& Column, bool enabled) {
    Procedure p = procedure(u"ItemEnabled");
    p.step([&] {
        records.cellAt(Row, Column).item().restyle([&](CellStyle& style) { style.Enabled = enabled; });
    });
}

Variant ListViewRecords::ItemTag(const Variant& Row, const Variant& Column) {
    return itemGet<Variant>(
        u"ItemTag", Row, Column, [](const Cell& cell) { return cell.items.tag(cell.index); });
}

// Wanted: no repaint here either.
void ListViewRecords::letItemTag(const Variant& Row, const Variant& Column, const Variant& tag) {
    Procedure p = procedure(u"ItemTag");
    p.step([&] {
        const Cell cell = records.cellAt(Row, Column);
        if (tag.isUnsupported())
            throw RuntimeError(typeMismatch);
        cell.items.letTag(cell.index, tag);
    });
}

PictureRef ListViewRecords::ItemIcon(const Variant& Row, const Variant& Column) {
    return extraGet(u"ItemIcon", Row, Column, &CellExtras::Icon);
}

void ListViewRecords::setItemIcon(const Variant& Row, const Variant& Column, PictureRef icon) {
    itemLet(u"ItemIcon", Row, Column, [&](const Cell& cell) {
        if (icon || cell.items.extras(cell.index) != nullptr)
            cell.items.needExtras(cell.index).Icon = std::move(icon);
    });
}

PictureRef ListViewRecords::ItemIconSelected(const Variant& Row, const Variant& Column) {
    return extraGet(u"ItemIconSelected", Row, Column, &CellExtras::IconSelected);
}

void ListViewRecords::setItemIconSelected(const Variant& Row, const Variant& Column, PictureRef icon) {
    itemLet(u"ItemIconSelected", Row, Column, [&](const Cell& cell) {
        if (icon || cell.items.extras(cell.index) != nullptr)
            cell.items.needExtras(cell.index).IconSelected = std::move(icon);
    });
}

String ListViewRecords::ItemToolTip(const Variant& Row, const Variant& Column) {
    return extraGet(u"ItemToolTip", Row, Column, &CellExtras::ToolTip);
}

void ListViewRecords::letItemToolTip(const Variant& Row, const Variant& Column, StringView toolTip) {
    itemLet(u"ItemToolTip", Row, Column, [&](const Cell& cell) {
        cell.items.needExtras(cell.index).ToolTip = toolTip;
    });
}

} // namespace lumtex
