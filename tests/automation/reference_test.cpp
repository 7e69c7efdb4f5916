#include "automation/enumeration_table.h"
#include "automation/member_table.h"
#include "automation/reference.h"
#include "folders.h"
#include "values/text.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>

#include <gtest/gtest.h>

namespace lumtex::testing {
namespace {

const std::filesystem::path folder = std::filesystem::path(sourceFolder()) / "docs" / "reference";

std::string contentOf(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

/// The page with its blocks of C++ empty, as the tables give it.
std::string withoutCode(const std::string& page) {
    std::istringstream lines(page);
    std::string text;
    bool inCode = false;
    for (std::string line; std::getline(lines, line);) {
        inCode = inCode && line != "```";
        if (!inCode)
            text += line + "\n";
        inCode = inCode || line == "```cpp";
    }
    return text;
}

TEST(Reference, InTheTreeIsTheOneThatTheTablesGive) {
    std::set<std::string> expected;
    for (const automation::ReferencePage& page : automation::referencePages()) {
        expected.insert(page.fileName);
        EXPECT_EQ(withoutCode(contentOf(folder / page.fileName)), page.text)
            << page.fileName << ": run scripts/reference";
    }
    std::set<std::string> found;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        found.insert(entry.path().filename().string());
    EXPECT_EQ(found, expected);
}

TEST(Reference, HasAPageForEachMemberThatNamesItsParameters) {
    const auto pages = automation::referencePages();
    for (const automation::Member& member : automation::memberTable()) {
        const auto page =
            std::ranges::find(pages, toUtf8(member.name) + ".md", &automation::ReferencePage::fileName);
        ASSERT_NE(page, pages.end()) << toUtf8(member.name);
        EXPECT_NE(page->text.find(toUtf8(member.help.in(words::Language::english))), std::string::npos);
        for (const automation::Parameter& parameter : member.parameters())
            EXPECT_NE(page->text.find("| `" + toUtf8(parameter.name) + "` |"), std::string::npos)
                << page->text;
    }
}

TEST(Reference, ListsEveryEnumerationThatAMemberUses) {
    std::set<StringView> known;
    for (const automation::Enumeration& enumeration : automation::enumerationTable)
        known.insert(enumeration.name);
    EXPECT_EQ(known.size(), 13U);
    const auto check = [&](const automation::TypeInfo& type) {
        if (type.code == automation::TypeCode::enumeration) {
            EXPECT_TRUE(known.contains(type.name)) << toUtf8(type.name);
        }
    };
    for (const automation::Member& member : automation::memberTable()) {
        check(member.type);
        for (const automation::Parameter& parameter : member.parameters())
            check(parameter.type);
    }
}

} // namespace
} // namespace lumtex::testing
