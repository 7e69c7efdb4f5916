/// \file
/// What the tree holds of generated text, beside the reference.
#pragma once

#include <string>
#include <vector>

namespace lumtex {

struct GeneratedFile {
    std::string path; ///< from the top of the tree
    std::string text;
};

/// The type library's source, the tables of functions, the manifest, and the header for hosts in C++.
std::vector<GeneratedFile> generatedFiles();

} // namespace lumtex
