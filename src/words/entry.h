/// \file
/// One line of a catalogue.
#pragma once

#include "values/text.h"

namespace lumtex::words {

struct Entry {
    StringView scope; ///< what kind of thing it is said of, or whose member
    StringView name;
    StringView text;

    constexpr bool hasKeyOf(const Entry& other) const { return scope == other.scope && name == other.name; }
    /// In order of scope, then of name.
    constexpr bool isBefore(const Entry& other) const {
        return scope != other.scope ? scope < other.scope : name < other.name;
    }
};

} // namespace lumtex::words
