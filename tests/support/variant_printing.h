/// \file
/// How failing tests show a Variant.
#pragma once

#include "values/text.h"
#include "values/variant.h"

#include <ostream>

namespace lumtex {

inline void PrintTo(const Variant& value, std::ostream* stream) {
    if (value.isObject())
        *stream << "(reference)";
    else if (value.isString())
        *stream << '"' << toUtf8(value.toText()) << '"';
    else if (value.isNull() || value.isMissing() || value.isEmpty())
        *stream << (value.isNull() ? "Null" : value.isEmpty() ? "Empty" : "Missing");
    else
        *stream << toUtf8(value.toText());
}

} // namespace lumtex
