/// \file
/// The shape that all accessors of cells share; for the files that define them.
#pragma once

#include "model/list_view_records.h"

namespace lumtex {

template <class T, class Read>
T ListViewRecords::itemGet(StringView name, const Variant& Row, const Variant& Column, Read read) {
    Procedure p = procedure(name);
    return p.value<T>([&]() -> T { return read(records.cellAt(Row, Column)); });
}

template <class Write>
void ListViewRecords::itemLet(StringView name, const Variant& Row, const Variant& Column, Write write) {
    Procedure p = procedure(name);
    p.step([&] { write(records.cellAt(Row, Column)); });
    CheckForRedraw();
}

} // namespace lumtex
