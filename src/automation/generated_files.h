/// \file
/// What the component's source holds of generated text.
#pragma once

#include <string>
#include <vector>

namespace lumtex {

struct GeneratedFile {
    std::string fileName; ///< in src/activex
    std::string text;
};

/// The type library's source, and the tables of functions.
std::vector<GeneratedFile> generatedFiles();

} // namespace lumtex
