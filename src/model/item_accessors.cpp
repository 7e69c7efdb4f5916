/// Reading and writing one field of one cell.
#include "model/list_view_records.h"
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
                throw RuntimeError(ErrorNumber::typeMismatch);
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
    StringView name, const Variant& Row, const Variant& Column, T FontSpec::*field, Passed<T> value) {
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

// The types of the fields that one-line accessors read and write.

template bool ListViewRecords::fontGet(StringView, const Variant&, const Variant&, bool FontSpec::*);
template Single ListViewRecords::fontGet(StringView, const Variant&, const Variant&, Single FontSpec::*);
template String ListViewRecords::fontGet(StringView, const Variant&, const Variant&, String FontSpec::*);
template void ListViewRecords::fontLet(StringView, const Variant&, const Variant&, bool FontSpec::*, bool);
template void
ListViewRecords::fontLet(StringView, const Variant&, const Variant&, Single FontSpec::*, Single);
template void
ListViewRecords::fontLet(StringView, const Variant&, const Variant&, String FontSpec::*, StringView);
template bool ListViewRecords::styleGet(StringView, const Variant&, const Variant&, bool CellStyle::*);
template OLE_COLOR
ListViewRecords::styleGet(StringView, const Variant&, const Variant&, OLE_COLOR CellStyle::*);
template cItemAlign
ListViewRecords::styleGet(StringView, const Variant&, const Variant&, cItemAlign CellStyle::*);
template Variant
ListViewRecords::styleGet(StringView, const Variant&, const Variant&, Held<Variant> CellStyle::*);
template void
ListViewRecords::styleLet(StringView, const Variant&, const Variant&, bool CellStyle::*, const bool&);
template void ListViewRecords::styleLet(
    StringView, const Variant&, const Variant&, OLE_COLOR CellStyle::*, const OLE_COLOR&);
template void ListViewRecords::styleLet(
    StringView, const Variant&, const Variant&, cItemAlign CellStyle::*, const cItemAlign&);
template void ListViewRecords::styleLet(
    StringView, const Variant&, const Variant&, Held<Variant> CellStyle::*, const Variant&);

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
            throw RuntimeError(ErrorNumber::typeMismatch);
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
