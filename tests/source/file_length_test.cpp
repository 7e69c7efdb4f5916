/// No file grows into two behaviours.
#include "source_tree.h"

#include <gtest/gtest.h>

namespace lumtex::source {
namespace {

/// Past this many lines a file is taken to hold two behaviours.
constexpr std::size_t mostLines = 500;

std::vector<Finding> tooLong(const SourceFile& file) {
    if (file.lines.size() <= mostLines)
        return {};
    return {{file.path, mostLines + 1, "has " + std::to_string(file.lines.size()) + " lines"}};
}

TEST(FileLength, NoFileOfTheProductIsPast500Lines) {
    EXPECT_EQ(offenders(readTree("src", {".h", ".cpp"}), tooLong), "");
}

TEST(FileLength, AFileOf501LinesIsCaught) {
    std::string text(mostLines, '\n');
    EXPECT_EQ(report(tooLong({"src/sample.cpp", text})), "");
    text += "\n";
    EXPECT_EQ(report(tooLong({"src/sample.cpp", text})), "src/sample.cpp:501: has 501 lines\n");
}

} // namespace
} // namespace lumtex::source
