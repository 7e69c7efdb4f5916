/// How every header begins.
#include "source_tree.h"

#include <algorithm>

#include <gtest/gtest.h>

namespace lumtex::source {
namespace {

/// The first lines are a docstring that says what the file is.
std::vector<Finding> headerWithoutDocstring(const SourceFile& file) {
    constexpr std::string_view mark = "/// ";
    const auto line = [&](std::size_t i) { return i < file.lines.size() ? file.lines[i] : std::string(); };
    if (line(0) != "/// \\file")
        return {{file.path, 1, "does not begin with /// \\file"}};
    if (!line(1).starts_with(mark) || line(1).size() == mark.size())
        return {{file.path, 2, "does not say what the file is"}};
    return {};
}

std::vector<Finding> headerWithoutGuard(const SourceFile& file) {
    const auto guards = std::count(file.lines.begin(), file.lines.end(), "#pragma once");
    if (guards == 1)
        return {};
    return {{file.path, 1, "has " + std::to_string(guards) + " lines #pragma once"}};
}

std::vector<SourceFile> headers() {
    std::vector<SourceFile> files = readTree("src", {".h", ".h.in"});
    for (SourceFile& file : readTree("tests", {".h"}))
        files.push_back(std::move(file));
    return files;
}

TEST(Headers, BeginWithADocstringOfTheFile) {
    EXPECT_EQ(offenders(headers(), headerWithoutDocstring), "");
}

TEST(Headers, WithoutADocstringAreCaught) {
    EXPECT_EQ(report(headerWithoutDocstring({"a.h", "#pragma once\n"})),
              "a.h:1: does not begin with /// \\file\n");
    EXPECT_EQ(report(headerWithoutDocstring({"b.h", "/// \\file\n#pragma once\n"})),
              "b.h:2: does not say what the file is\n");
    EXPECT_EQ(report(headerWithoutDocstring({"c.h", "/// \\file\n/// \n"})),
              "c.h:2: does not say what the file is\n");
    EXPECT_EQ(report(headerWithoutDocstring({"d.h", ""})), "d.h:1: does not begin with /// \\file\n");
}

TEST(Headers, AreGuardedOnce) {
    EXPECT_EQ(offenders(headers(), headerWithoutGuard), "");
}

TEST(Headers, WithoutOrWithTwoGuardsAreCaught) {
    EXPECT_EQ(report(headerWithoutGuard({"a.h", "/// #pragma once\nint a;\n"})),
              "a.h:1: has 0 lines #pragma once\n");
    EXPECT_EQ(report(headerWithoutGuard({"b.h", "#pragma once\n#pragma once\n"})),
              "b.h:1: has 2 lines #pragma once\n");
}

} // namespace
} // namespace lumtex::source
