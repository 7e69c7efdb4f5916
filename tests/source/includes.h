/// \file
/// What a file includes.
#pragma once

#include "source_tree.h"

namespace lumtex::source {

/// One `#include` directive.
struct Include {
    std::size_t line = 0; ///< from 1
    std::string name;     ///< between the delimiters
    bool angled = false;  ///< written <name>
};

/// All directives in their order. One whose name is a macro has the macro as its name.
std::vector<Include> includesOf(const SourceFile& file);

/// True for a header of the C++20 library, those it shares with C included.
bool isStandardHeader(std::string_view name);

} // namespace lumtex::source
