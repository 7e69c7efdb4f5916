/// \file
/// Comma-separated files.
#pragma once

#include "list_builder.h"

#include <filesystem>

namespace lumtex::gallery {

/// Reads UTF-8, or what is nearly so; the first record names the columns. Fields are separated by whichever
/// of comma, semicolon and tabulator the first line holds most of. Records may differ in length. Throws
/// Failure for a file that is missing, empty, or not text.
void readCsv(const std::filesystem::path& file, ListBuilder& builder);

} // namespace lumtex::gallery
