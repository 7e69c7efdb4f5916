/// What the documents promise about the tree.
#include "folders.h"
#include "layers.h"
#include "source_tree.h"

#include <algorithm>
#include <filesystem>
#include <regex>
#include <set>

#include <gtest/gtest.h>

namespace lumtex::source {
namespace {

/// The lines between the first one that is `begin` and the next that is `end`.
std::vector<std::string> between(const SourceFile& file, std::string_view begin, std::string_view end) {
    const auto first = std::find(file.lines.begin(), file.lines.end(), begin);
    if (first == file.lines.end())
        return {};
    const auto last = std::find(first + 1, file.lines.end(), end);
    return last == file.lines.end() ? std::vector<std::string>() : std::vector<std::string>(first + 1, last);
}

/// The first program of a page, or of what stands below a heading.
std::vector<std::string> printedExample(SourceFile readme, std::string_view heading = {}) {
    if (!heading.empty())
        readme.lines.erase(readme.lines.begin(),
                           std::find(readme.lines.begin(), readme.lines.end(), heading));
    return between(readme, "```cpp", "```");
}

std::vector<std::string> compiledExample(const SourceFile& program) {
    return between(program, "// [readme", "// readme]");
}

/// What a heading is reached by: small letters, digits, hyphens for blanks, and nothing else.
std::string anchorOf(const std::string& heading) {
    std::string anchor;
    for (const char c : heading) {
        if (c >= 'A' && c <= 'Z')
            anchor += static_cast<char>(c - 'A' + 'a');
        else if ((c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '-' || c == '_')
            anchor += c;
        else if (c == ' ')
            anchor += '-';
    }
    return anchor;
}

std::set<std::string> anchorsOf(const std::vector<std::string>& lines) {
    std::set<std::string> anchors;
    bool inCode = false;
    for (const std::string& line : lines) {
        if (line.starts_with("```"))
            inCode = !inCode;
        const std::size_t text = line.find_first_not_of('#');
        if (!inCode && text != 0 && text != std::string::npos && line[text] == ' ')
            anchors.insert(anchorOf(line.substr(text + 1)));
    }
    return anchors;
}

/// Links to files of the tree and places in pages, pictures included; those to other sites are left out, and
/// so is code.
std::vector<Finding> brokenLinks(const SourceFile& file) {
    static const std::regex link(R"(\]\(([^)#\s]*)(#[^)\s]*)?[^)]*\))");
    const std::filesystem::path root = testing::sourceFolder();
    const std::filesystem::path folder = (root / file.path).parent_path();
    std::vector<Finding> findings;
    bool inCode = false;
    for (std::size_t i = 0; i < file.lines.size(); ++i) {
        const std::string& line = file.lines[i];
        if (line.starts_with("```"))
            inCode = !inCode;
        if (inCode || line.starts_with("    "))
            continue;
        for (std::sregex_iterator match(line.begin(), line.end(), link), none; match != none; ++match) {
            const std::string target = (*match)[1];
            const std::string place = (*match)[2];
            if (target.find("://") != std::string::npos)
                continue;
            if (!std::filesystem::exists(folder / target)) {
                findings.push_back({file.path, i + 1, "there is no " + target});
                continue;
            }
            if (place.empty() || !(target.empty() || target.ends_with(".md")))
                continue;
            const auto path = (folder / target).lexically_normal().lexically_relative(root);
            const auto anchors =
                anchorsOf(target.empty() ? file.lines : readFile(path.generic_string()).lines);
            if (!anchors.contains(place.substr(1)))
                findings.push_back({file.path, i + 1, "there is no " + target + place});
        }
    }
    return findings;
}

/// Blocks of C++ that no test compiles and that are not marked as pieces either.
std::vector<Finding> uncompiledCode(const SourceFile& file) {
    std::vector<Finding> findings;
    for (std::size_t i = 0; i < file.lines.size(); ++i) {
        if (file.lines[i] != "```cpp")
            continue;
        const std::string before = i == 0 ? "" : file.lines[i - 1];
        if (!before.starts_with("<!-- example ") && before != "<!-- fragment -->")
            findings.push_back({file.path, i + 1, "neither an example nor a fragment"});
    }
    return findings;
}

std::vector<SourceFile> documents() {
    std::vector<SourceFile> files = readTree("docs", {".md"});
    for (const char* name : {"README.md", "CONTRIBUTING.md", "CHANGELOG.md", "SECURITY.md"})
        files.push_back(readFile(name));
    return files;
}

TEST(Readme, ShowsTheVeryExampleThatIsCompiled) {
    const auto compiled = compiledExample(readFile("tests/examples/readme_example.cpp"));
    ASSERT_FALSE(compiled.empty());
    EXPECT_EQ(printedExample(readFile("README.md")), compiled);
}

TEST(Readme, ShowsTheVeryWindowThatIsBuiltWithTheInstalledLibrary) {
    const auto compiled = compiledExample(readFile("tests/install/qt/cities.cpp"));
    ASSERT_FALSE(compiled.empty());
    EXPECT_LT(compiled.size(), 20U);
    EXPECT_EQ(printedExample(readFile("README.md"), "## A first window, with Qt"), compiled);
}

TEST(Readme, IsCaughtWhereItsExampleDiffersOrIsMissing) {
    const SourceFile program("a.cpp", "// [readme\nint a;\n\nint b;\n// readme]\nint c;\n");
    const auto compiled = compiledExample(program);
    EXPECT_EQ(compiled, (std::vector<std::string>{"int a;", "", "int b;"}));
    EXPECT_EQ(printedExample({"README.md", "Text\n```cpp\nint a;\n\nint b;\n```\nmore\n"}), compiled);
    EXPECT_NE(printedExample({"README.md", "```cpp\nint a;\nint b;\n```\n"}), compiled);
    EXPECT_NE(printedExample({"README.md", "```cpp\nint a;\n\nint b;\n"}), compiled)
        << "the block does not end";
    EXPECT_NE(printedExample({"README.md", "int a;\n"}), compiled);
}

TEST(Documents, LinkToFilesThatAreThere) {
    EXPECT_EQ(offenders(documents(), brokenLinks), "");
}

TEST(Documents, WithBrokenLinksAreCaught) {
    const SourceFile sample(
        "docs/sample.md",
        "See [the build](../CMakeLists.txt) and [nothing](nothing.md), or\n"
        "![a picture](images/none.png#small), [a site](https://example.org/x.md), [below](#below).\n");
    EXPECT_EQ(report(brokenLinks(sample)),
              "docs/sample.md:1: there is no nothing.md\n"
              "docs/sample.md:2: there is no images/none.png\n"
              "docs/sample.md:2: there is no #below\n");
}

TEST(Documents, AreSearchedForPlacesByTheirHeadings) {
    const SourceFile sample(
        "docs/sample.md",
        "# Rows, columns and `Cells`\n[here](#rows-columns-and-cells) [there](qt.md#signals) "
        "[nowhere](qt.md#birds)\n```\n# no heading\n```\n[either](#no-heading)\n");
    EXPECT_EQ(report(brokenLinks(sample)),
              "docs/sample.md:2: there is no qt.md#birds\n"
              "docs/sample.md:6: there is no #no-heading\n");
}

/// The README has its own rules above.
TEST(Documents, ShowCodeThatIsCompiledOrSayThatItIsAPiece) {
    EXPECT_EQ(offenders(readTree("docs", {".md"}), uncompiledCode), "");
}

TEST(Documents, WithCodeThatNobodyCompilesAreCaught) {
    const SourceFile sample(
        "docs/sample.md",
        "<!-- example one -->\n```cpp\n```\n<!-- fragment -->\n```cpp\n```\n\n```cpp\n```\n");
    EXPECT_EQ(report(uncompiledCode(sample)), "docs/sample.md:8: neither an example nor a fragment\n");
}

TEST(House, IsDrawnWithEveryLibrary) {
    const std::vector<std::string> drawn = readFile("docs/images/house.svg").lines;
    for (const Layer& layer : layersOf(readFile("src/layers.txt")))
        EXPECT_TRUE(std::any_of(drawn.begin(), drawn.end(), [&](const std::string& line) {
            return line.ends_with(">" + layer.name + "</text>");
        })) << layer.name;
}

} // namespace
} // namespace lumtex::source
