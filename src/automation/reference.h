/// \file
/// The interface reference, written from the tables.
#pragma once

#include <string>
#include <vector>

namespace lumtex::automation {

struct ReferencePage {
    std::string fileName; ///< in the folder of the reference, without a path
    std::string text;     ///< Markdown in UTF-8; the block behind the name of an example is empty
};

/// A page for each member of the list and for each other class, one for the events, one for the enumerations,
/// and README.md as their index.
std::vector<ReferencePage> referencePages();

} // namespace lumtex::automation
