/// \file
/// The public record as data.
#pragma once

#include "automation/type_info.h"
#include "words/phrase.h"

#include <array>

namespace lumtex::automation {

struct RecordField {
    StringView name;
    TypeInfo type;
};

inline constexpr words::Phrase findResultsHelp = words::phrase(u"record", u"FindResults");

/// The fields of `FindResults`, in their order.
constexpr auto findResultsFields = std::to_array<RecordField>({
    {u"FindSuccessful", typeOf<decltype(FindResults::FindSuccessful)>()},
    {u"FindRow", typeOf<decltype(FindResults::FindRow)>()},
    {u"FindColumn", typeOf<decltype(FindResults::FindColumn)>()},
});

} // namespace lumtex::automation
