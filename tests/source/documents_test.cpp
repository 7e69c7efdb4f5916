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

/// What a page may quote of a file: what stands between its marks, or all of it, with ends of lines as pages
/// have them.
std::vector<std::string> quotable(SourceFile file) {
    for (std::string& line : file.lines)
        if (line.ends_with('\r'))
            line.pop_back();
    const std::vector<std::string> marked = between(file, "// [readme", "// readme]");
    return marked.empty() ? file.lines : marked;
}

/// Whether the lines of a block stand in a text one below the other, all of them equally far to the right. A
/// program that has marks is quoted as a whole.
bool quotes(const std::vector<std::string>& block, const SourceFile& file) {
    const std::vector<std::string> text = quotable(file);
    if (text.size() != file.lines.size())
        return block == text;
    const auto first = block.empty() ? std::string() : block.front();
    for (std::size_t start = 0; start + block.size() <= text.size() && !first.empty(); ++start) {
        if (!text[start].ends_with(first))
            continue;
        const std::string margin = text[start].substr(0, text[start].size() - first.size());
        const bool allThere = margin.find_first_not_of(' ') == std::string::npos &&
                              std::equal(block.begin(),
                                         block.end(),
                                         text.begin() + static_cast<std::ptrdiff_t>(start),
                                         [&](const std::string& quoted, const std::string& line) {
                                             return line == (quoted.empty() ? quoted : margin + quoted);
                                         });
        if (allThere)
            return true;
    }
    return false;
}

/// Blocks of a program that say not whose lines they are (`<!-- from FILE -->`), or say so and differ.
std::vector<Finding> misquotes(const SourceFile& page) {
    static const std::regex begin("```(cpp|vbscript|vb)");
    static const std::regex source("<!-- from (.+) -->");
    std::vector<Finding> findings;
    for (std::size_t i = 0; i < page.lines.size(); ++i) {
        if (!std::regex_match(page.lines[i], begin))
            continue;
        const auto end =
            std::find(page.lines.begin() + static_cast<std::ptrdiff_t>(i), page.lines.end(), "```");
        const std::vector<std::string> block(page.lines.begin() + static_cast<std::ptrdiff_t>(i) + 1, end);
        std::smatch from;
        if (i == 0 || !std::regex_match(page.lines[i - 1], from, source))
            findings.push_back({page.path, i + 1, "comes from no file"});
        else if (end == page.lines.end() || !quotes(block, readFile(from[1])))
            findings.push_back({page.path, i + 1, "does not stand in " + from[1].str()});
    }
    return findings;
}

/// Files of the tree that commands name and that are not there.
std::vector<Finding> missingScripts(const SourceFile& page) {
    static const std::regex script(R"((^|[\s`(])((scripts/|\./)[a-z0-9.-]*[a-z0-9])(?=[\s`,.;:)]|$))");
    std::vector<Finding> findings;
    for (std::size_t i = 0; i < page.lines.size(); ++i)
        for (std::sregex_iterator match(page.lines[i].begin(), page.lines[i].end(), script), none;
             match != none;
             ++match)
            if (const std::string name = (*match)[2];
                !name.ends_with("/cities") &&
                !std::filesystem::exists(testing::sourceFolder() + ("/" + name)))
                findings.push_back({page.path, i + 1, "there is no " + name});
    return findings;
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

TEST(Readme, QuotesProgramsThatAreRun) {
    const SourceFile readme = readFile("README.md");
    EXPECT_EQ(report(misquotes(readme)), "");
    for (const char* program : {"tests/install/qt/cities.cpp", // built with what is installed
                                "tests/examples/readme_example.cpp",
                                "samples/vbscript/cities.vbs",
                                "samples/visual-basic/CitiesForm.frm",
                                "samples/cpp-host/minimal.cpp"})
        EXPECT_EQ(std::count(
                      readme.lines.begin(), readme.lines.end(), "<!-- from " + std::string(program) + " -->"),
                  1)
            << program;
}

TEST(Readme, IsCaughtWhereItsCodeComesFromNowhereOrDiffers) {
    const auto found = [](const std::string& block) {
        return report(misquotes({"README.md", "<!-- from tests/source/file_name_test.cpp -->\n" + block}));
    };
    const SourceFile whole = readFile("tests/source/file_name_test.cpp");
    const std::string first = whole.lines[1];
    const std::string second = whole.lines[2];
    const std::string differs = "README.md:2: does not stand in tests/source/file_name_test.cpp\n";
    EXPECT_EQ(found("```cpp\n" + first + "\n" + second + "\n```\n"), "");
    EXPECT_EQ(found("```cpp\n" + second + "\n" + first + "\n```\n"), differs);
    EXPECT_EQ(found("```cpp\n" + first + " \n" + second + "\n```\n"), differs);
    EXPECT_EQ(found("```cpp\n```\n"), differs) << "nothing is quoted";
    EXPECT_EQ(found("```cpp\n" + first + "\n" + second + "\n"), differs) << "the block does not end";
    EXPECT_EQ(report(misquotes({"README.md", "Text\n```vb\nDim Row\n```\n"})),
              "README.md:2: comes from no file\n");
}

TEST(Readme, QuotesAProgramWithMarksAsAWhole) {
    const SourceFile program("a.cpp", "// [readme\nint a;\n\nint b;\n// readme]\nint c;\n");
    EXPECT_TRUE(quotes({"int a;", "", "int b;"}, program));
    EXPECT_FALSE(quotes({"int a;"}, program));
    EXPECT_FALSE(quotes({"int c;"}, program));
}

TEST(Readme, QuotesLinesFurtherToTheLeft) {
    const SourceFile program("a.cpp", "{\n    int a;\n\n        int b;\n}\n");
    EXPECT_TRUE(quotes({"int a;", "", "    int b;"}, program));
    EXPECT_FALSE(quotes({"int a;", "", "int b;"}, program));
    EXPECT_FALSE(quotes({"a;"}, program));
}

TEST(Documents, NameScriptsThatAreThere) {
    EXPECT_EQ(offenders(documents(), missingScripts), "");
}

TEST(Documents, ThatNameNoScriptAreCaught) {
    const SourceFile sample("README.md", "Run `scripts/setup`, then ./check.\n./chek\nor (scripts/mend).\n");
    EXPECT_EQ(report(missingScripts(sample)),
              "README.md:2: there is no ./chek\nREADME.md:3: there is no scripts/mend\n");
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
