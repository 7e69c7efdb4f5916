/// The list of packages that set-up, continuous integration and the README share.
#include "source_tree.h"

#include <map>
#include <regex>

#include <gtest/gtest.h>

namespace lumtex::source {
namespace {

/// One package a line, its reason behind a '#'; lines that are empty or all comment in between.
const std::regex packageLine(R"(([a-z0-9][a-z0-9.+-]*)\s+# \S.*)");

std::vector<Finding> lineWithoutNameAndReason(const SourceFile& file) {
    std::vector<Finding> findings;
    for (std::size_t i = 0; i < file.lines.size(); ++i) {
        const std::string& line = file.lines[i];
        if (!line.empty() && !line.starts_with('#') && !std::regex_match(line, packageLine))
            findings.push_back({file.path, i + 1, "is not one package with its reason"});
    }
    return findings;
}

std::vector<Finding> packageNamedTwice(const SourceFile& file) {
    std::map<std::string, std::size_t> firstLines;
    std::vector<Finding> findings;
    for (std::size_t i = 0; i < file.lines.size(); ++i) {
        std::smatch match;
        if (!std::regex_match(file.lines[i], match, packageLine))
            continue;
        const auto [first, isNew] = firstLines.emplace(match[1], i + 1);
        if (!isNew)
            findings.push_back(
                {file.path, i + 1, first->first + " stands in line " + std::to_string(first->second)});
    }
    return findings;
}

TEST(Packages, StandOneALineWithTheirReason) {
    EXPECT_EQ(report(lineWithoutNameAndReason(readFile("packages.txt"))), "");
}

TEST(Packages, WithoutAReasonAreCaught) {
    const SourceFile sample("packages.txt",
                            "# Building\n\ng++   # the compiler\ncmake\nninja-build git # two\n");
    EXPECT_EQ(report(lineWithoutNameAndReason(sample)),
              "packages.txt:4: is not one package with its reason\n"
              "packages.txt:5: is not one package with its reason\n");
}

TEST(Packages, AreNamedOnce) {
    EXPECT_EQ(report(packageNamedTwice(readFile("packages.txt"))), "");
}

TEST(Packages, NamedTwiceAreCaught) {
    const SourceFile sample("packages.txt", "git # clones\ng++ # the compiler\ngit # the history\n");
    EXPECT_EQ(report(packageNamedTwice(sample)), "packages.txt:3: git stands in line 1\n");
}

} // namespace
} // namespace lumtex::source
