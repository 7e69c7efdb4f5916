/// \file
/// What one key of the property bag stands for.
#pragma once

#include "model/list_view.h"
#include "values/variant_conversion.h"

#include <type_traits>

namespace lumtex {

struct PropertyKey {
    StringView name;   ///< the property's own
    Variant byDefault; ///< for reading and for writing
    Variant (*get)(const lmListView& list);
    void (*let)(lmListView& list, const Variant& value);
};

} // namespace lumtex
