/// \file
/// Where the tree lies that these tests were built from.
#pragma once

#include <string>

namespace lumtex::testing {

/// The folder of the whole project, and `tests` in it. Programs under Wine see them below drive Z.
///
/// Functions, because one file alone shall depend on the place: all others compile to the same everywhere,
/// and compilers' caches find them again.
std::string sourceFolder();
std::string testFolder();

} // namespace lumtex::testing
