/// No file grows into two behaviours.
#include "source_tree.h"

#include <algorithm>
#include <string>

#include <gtest/gtest.h>

namespace lumtex::source {
namespace {

/// Past this many lines a file is taken to hold two behaviours.
constexpr std::size_t mostLines = 500;

/// What a table says for many members is as long as the table.
bool isGenerated(const SourceFile& file) {
    constexpr std::size_t head = 5;
    return std::any_of(file.lines.begin(),
                       file.lines.begin() + std::min(head, file.lines.size()),
                       [](const auto& line) { return line.find("do not edit") != std::string::npos; });
}

std::vector<Finding> tooLong(const SourceFile& file) {
    if (file.lines.size() <= mostLines || isGenerated(file))
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

TEST(FileLength, AGeneratedFileIsAsLongAsItsTable) {
    const std::string text(mostLines + 1, '\n');
    EXPECT_EQ(report(tooLong({"src/sample.cpp", "/// Made from a table; do not edit.\n" + text})), "");
    EXPECT_NE(report(tooLong({"src/sample.cpp", text + "/// Made from a table; do not edit.\n"})), "");
}

} // namespace
} // namespace lumtex::source
