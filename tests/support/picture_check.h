/// \file
/// Whole pictures against references, pixel by pixel.
#pragma once

#include "values/bitmap.h"

#include <filesystem>
#include <string>

#include <gtest/gtest.h>

namespace lumtex::testing {

/// Where references lie, where failures are shown, and which references this run may replace.
struct PictureFolders {
    std::filesystem::path references;
    std::filesystem::path failures;
    /// Names of pictures to accept, with "*" for any characters; empty accepts none.
    std::string accepted;
};

/// tests/golden and out/golden of the source tree; accepts what LUMTEX_ACCEPT_PICTURES names.
PictureFolders usualPictureFolders();

/// A line of the tests. Clang 14 knows no std::source_location.
struct SourcePlace {
    const char* file;
    int line;
};

/// Does `actual`, which must be opaque, equal the reference `name`.png?
///
/// One that differs or is missing fails and leaves `name`.png among the failures: actual, expected and
/// difference side by side. An accepted one is written as the reference and fails all the same, so that no
/// run that accepts can be taken for one that passed. A name belongs to one place in the tests; asking for
/// it at a second one fails.
::testing::AssertionResult showsPicture(const std::string& name,
                                        const Bitmap& actual,
                                        const PictureFolders& folders = usualPictureFolders(),
                                        SourcePlace where = {__builtin_FILE(), __builtin_LINE()});

} // namespace lumtex::testing
