/// \file
/// The documents of the tree, as the tests of them read them.
#pragma once

#include "folders.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace lumtex::testing {

inline const std::filesystem::path docsFolder = std::filesystem::path(sourceFolder()) / "docs";

/// Empty where there is no such file.
inline std::string contentOf(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// The source of an example.
inline std::string sourceOf(const std::string& example) {
    return contentOf(docsFolder / "examples" / (example + ".cpp"));
}

} // namespace lumtex::testing
