/// \file
/// The files of a folder.
#pragma once

#include "list_builder.h"

#include <filesystem>

namespace lumtex::gallery {

/// Folders first, then files, by name; with size, type and date. Throws Failure where the folder cannot be
/// read.
void readDirectory(const std::filesystem::path& folder, ListBuilder& builder);

} // namespace lumtex::gallery
