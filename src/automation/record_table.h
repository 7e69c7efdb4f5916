/// \file
/// The public record as data.
#pragma once

#include "automation/type_info.h"

#include <array>

namespace lumtex {

struct RecordField {
    StringView name;
    TypeInfo type;
};

/// The fields of `FindResults`, in their order.
constexpr auto findResultsFields = std::to_array<RecordField>({
    {u"FindSuccessful", typeOf<decltype(FindResults::FindSuccessful)>()},
    {u"FindRow", typeOf<decltype(FindResults::FindRow)>()},
    {u"FindColumn", typeOf<decltype(FindResults::FindColumn)>()},
});

} // namespace lumtex
