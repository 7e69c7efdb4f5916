/// \file
/// The public record as data.
#pragma once

#include "automation/type_info.h"
#include "model/help.h"

#include <array>

namespace lumtex::automation {

struct RecordField {
    StringView name;
    TypeInfo type;
};

inline constexpr Help findResultsHelp{
    u"What FindItem found. Row and column count from 1 in the lists that were searched.",
    u"Was FindItem gefunden hat. Zeile und Spalte zählen ab 1 in den durchsuchten Listen."};

/// The fields of `FindResults`, in their order.
constexpr auto findResultsFields = std::to_array<RecordField>({
    {u"FindSuccessful", typeOf<decltype(FindResults::FindSuccessful)>()},
    {u"FindRow", typeOf<decltype(FindResults::FindRow)>()},
    {u"FindColumn", typeOf<decltype(FindResults::FindColumn)>()},
});

} // namespace lumtex::automation
