/// \file
/// The shape that all accessors of cells share; for the files that define them.
#pragma once

#include "model/list_view_records.h"

namespace lumtex {

template <class T, class Read>
T ListViewRecords::itemGet(StringView name, const Variant& Row, const Variant& Column, Read read) {
    return procedure(name).value<T>([&] { return read(cellAt(Row, Column)); });
}

template <class Write>
void ListViewRecords::itemLet(StringView name, const Variant& Row, const Variant& Column, Write write) {
    procedure(name).step([&] { write(cellAt(Row, Column)); });
    CheckForRedraw();
}

} // namespace lumtex
