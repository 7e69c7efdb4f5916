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

template <class T>
void ListViewRecords::columnLet(StringView name,
                                const Variant& Index,
                                T ColumnHeader::*field,
                                Passed<T> value) {
    Procedure p = procedure(name);
    p.step([&] { records.columnAt(zeroBased(Index)).*field = std::move(value); });
    CheckForRedraw();
}

// The types of the fields that one-line accessors read and write.

template bool ListViewRecords::columnGet(StringView, const Variant&, bool ColumnHeader::*);
template Single ListViewRecords::columnGet(StringView, const Variant&, Single ColumnHeader::*);
template String ListViewRecords::columnGet(StringView, const Variant&, String ColumnHeader::*);
template OLE_COLOR ListViewRecords::columnGet(StringView, const Variant&, OLE_COLOR ColumnHeader::*);
template PictureRef ListViewRecords::columnGet(StringView, const Variant&, Held<PictureRef> ColumnHeader::*);
template cColumnHeaderAlign
ListViewRecords::columnGet(StringView, const Variant&, cColumnHeaderAlign ColumnHeader::*);
template void ListViewRecords::columnLet(StringView, const Variant&, bool ColumnHeader::*, bool);
template void ListViewRecords::columnLet(StringView, const Variant&, Single ColumnHeader::*, Single);
template void ListViewRecords::columnLet(StringView, const Variant&, String ColumnHeader::*, StringView);
template void ListViewRecords::columnLet(StringView, const Variant&, OLE_COLOR ColumnHeader::*, OLE_COLOR);
template void
ListViewRecords::columnLet(StringView, const Variant&, Held<PictureRef> ColumnHeader::*, PictureRef);
template void ListViewRecords::columnLet(StringView,
                                         const Variant&,
                                         cColumnHeaderAlign ColumnHeader::*,
                                         cColumnHeaderAlign);

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
