/// How files are named.
#include "source_tree.h"

#include <regex>

#include <gtest/gtest.h>

namespace lumtex::source {
namespace {

std::vector<Finding> nameNotInSnakeCase(const SourceFile& file) {
    static const std::regex snakeCase(R"([a-z0-9_]+\.(h|h\.in|cpp))");
    if (std::regex_match(file.path.substr(file.path.rfind('/') + 1), snakeCase))
        return {};
    return {{file.path, 1, "is not named in snake_case"}};
}

TEST(FileNames, AreInSnakeCase) {
    EXPECT_EQ(offenders(readTree("src", {".h", ".h.in", ".cpp"}), nameNotInSnakeCase), "");
    EXPECT_EQ(offenders(readTree("tests", {".h", ".cpp"}), nameNotInSnakeCase), "");
}

TEST(FileNames, WithCapitalsOrDashesAreCaught) {
    EXPECT_EQ(report(nameNotInSnakeCase({"src/model/list_view.h", ""})), "");
    EXPECT_EQ(report(nameNotInSnakeCase({"src/model/ListView.h", ""})),
              "src/model/ListView.h:1: is not named in snake_case\n");
    EXPECT_EQ(report(nameNotInSnakeCase({"tests/model/list-view.cpp", ""})),
              "tests/model/list-view.cpp:1: is not named in snake_case\n");
}

} // namespace
} // namespace lumtex::source
