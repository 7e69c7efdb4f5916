/// \file
/// The values of the rows of the property table, for the files that save, restore and begin with them.
#pragma once

#include "model/property_table.h"
#include "values/variant_conversion.h"

namespace lumtex {

template <class Row>
Variant lmListView::startOf(const Row& row) const {
    using Value = ValueOf<std::remove_cvref_t<decltype(properties.*row.field)>>;
    switch (row.start.kind) {
    case Start::Kind::shortNumber:
        return static_cast<Integer>(row.start.value);
    case Start::Kind::containersFont:
        return lblFont;
    case Start::Kind::sixteenPixels:
        return scaleY(listWindow->surface(), defaultRowHeight, Unit::pixels, Unit::twips);
    case Start::Kind::jumpLines:
        return knownProgram ? Long{4} : Long{1};
    case Start::Kind::noPicture:
        return PictureRef{};
    case Start::Kind::number:
        break;
    }
    if constexpr (std::is_arithmetic_v<Value> || std::is_enum_v<Value>)
        return toVariant(static_cast<Value>(row.start.value));
    return {};
}

template <class Row>
void lmListView::assign(const Row& row, const Variant& value) {
    using Value = ValueOf<std::remove_cvref_t<decltype(properties.*row.field)>>;
    if constexpr (std::is_null_pointer_v<decltype(row.let)>)
        store(row.field, fromVariant<Value>(value));
    else
        (this->*row.let)(fromVariant<Value>(value));
}

} // namespace lumtex
