/// \file
/// How a scenario's log names an error report.
#pragma once

#include "values/text.h"

#include <string>

namespace lumtex::testing {

/// "report 13 ItemText" from the text of the box that shows the report.
inline std::string reportLine(StringView boxText) {
    const std::string text = toUtf8(boxText);
    const auto between = [&](const std::string& label, char end) {
        const std::size_t first = text.find(label) + label.size();
        return text.substr(first, text.find(end, first) - first);
    };
    const std::string place = between("Line/Procedure: ", '\r');
    return "report " + between("Error no.: ", '\r') + " " + place.substr(place.find('/') + 1);
}

} // namespace lumtex::testing
