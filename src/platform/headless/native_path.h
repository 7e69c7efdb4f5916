/// \file
/// Paths as hosts write them, on the machine that the simulated desktop runs on.
#pragma once

#include "platform/types.h"

#include <filesystem>

namespace lumtex {

/// "\" becomes the machine's own separator.
std::filesystem::path nativePath(StringView path);

/// Throws RuntimeError 76 if the folder of `file` does not exist.
void demandFolderOf(const std::filesystem::path& file);

} // namespace lumtex
