/// \file
/// Paths as hosts write them, as files of the machine.
#pragma once

#include "values/types.h"

#include <filesystem>

namespace lumtex::worlds {

/// "\" becomes the machine's own separator.
std::filesystem::path nativePath(StringView path);

/// Throws RuntimeError 76 if the folder of `file` does not exist.
void demandFolderOf(const std::filesystem::path& file);

} // namespace lumtex::worlds
