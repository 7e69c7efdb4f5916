/// The form among the samples names what the control has, as the control has it.
#include "automation/enumeration_table.h"
#include "automation/event_table.h"
#include "automation/identifiers.h"
#include "automation/member_table.h"
#include "folders.h"
#include "values/text.h"

#include <filesystem>
#include <fstream>
#include <regex>
#include <set>
#include <sstream>

#include <gtest/gtest.h>

namespace lumtex::testing {
namespace {

std::string contentOf(const char* name) {
    std::ifstream file(std::filesystem::path(sourceFolder()) / "samples" / "visual-basic" / name,
                       std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    return std::regex_replace(text.str(), std::regex("\r\n"), "\n");
}

/// The parts of all matches.
std::vector<std::vector<std::string>> allOf(const std::string& text, const char* pattern) {
    const std::regex form(pattern);
    std::vector<std::vector<std::string>> found;
    for (auto match = std::sregex_iterator(text.begin(), text.end(), form); match != std::sregex_iterator();
         ++match)
        found.emplace_back(match->begin(), match->end());
    return found;
}

const automation::Member* memberNamed(const std::string& name) {
    for (const automation::Member& member : automation::memberTable())
        if (toUtf8(member.name) == name)
            return &member;
    return nullptr;
}

std::string parameterText(const automation::EventDescription& event) {
    std::string text;
    for (const automation::EventArgument& argument : event.arguments())
        text += (text.empty() ? "" : ", ") + std::string(argument.byReference ? "" : "ByVal ") +
                toUtf8(argument.name) + " As " + toUtf8(argument.type.name);
    return text;
}

TEST(FormSample, CallsMembersThatTheListHas) {
    const auto calls = allOf(contentOf("CitiesForm.frm"), R"(Cities\.(\w+))");
    ASSERT_GT(calls.size(), 10U);
    for (const auto& call : calls)
        EXPECT_NE(memberNamed(call[1]), nullptr) << call[1];
}

TEST(FormSample, HandlesEventsWithTheirOwnArguments) {
    const auto handlers = allOf(contentOf("CitiesForm.frm"), R"(Private Sub Cities_(\w+)\((.*)\))");
    ASSERT_GE(handlers.size(), 4U);
    for (const auto& handler : handlers) {
        const auto event =
            std::find_if(automation::eventTable.begin(),
                         automation::eventTable.end(),
                         [&](const auto& candidate) { return toUtf8(candidate.name) == handler[1]; });
        ASSERT_NE(event, automation::eventTable.end()) << handler[1];
        EXPECT_EQ(handler[2], parameterText(*event)) << handler[1];
    }
}

TEST(FormSample, UsesEnumeratorsThatExist) {
    std::set<std::string> known;
    for (const automation::Enumeration& enumeration : automation::enumerationTable)
        for (const automation::Enumerator& enumerator : enumeration.enumerators())
            known.insert(toUtf8(enumerator.name));
    const auto used = allOf(contentOf("CitiesForm.frm"), R"(\b(c[A-Z]\w+)\b)");
    ASSERT_GT(used.size(), 5U);
    for (const auto& enumerator : used)
        EXPECT_TRUE(known.contains(enumerator[1])) << enumerator[1];
}

TEST(FormSample, SetsPropertiesThatTheListKeeps) {
    const std::string form = contentOf("CitiesForm.frm");
    const std::size_t from = form.find("Begin LumtexListView.lmListView Cities");
    ASSERT_NE(from, std::string::npos);
    // What the container keeps for every control.
    const std::set<std::string> ofTheContainer = {
        "Height", "Left", "TabIndex", "Top", "Width", "_ExtentX", "_ExtentY"};
    const auto lines = allOf(form.substr(from, form.find("   End", from) - from), R"(\n +(\w+) +=)");
    ASSERT_GT(lines.size(), ofTheContainer.size());
    for (const auto& line : lines) {
        if (ofTheContainer.contains(line[1]))
            continue;
        const automation::Member* member = memberNamed(line[1]);
        ASSERT_NE(member, nullptr) << line[1];
        EXPECT_TRUE(member->let != nullptr && !member->hidden && member->count == 0) << line[1];
    }
}

TEST(FormSample, RefersToTheLibraryByItsIdentifier) {
    std::string library(automation::uuidOf("LumtexListView"));
    std::transform(library.begin(), library.end(), library.begin(), [](char c) {
        return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    });
    const std::string reference = "{" + library + "}#" + std::to_string(automation::typeLibraryMajor) + "." +
                                  std::to_string(automation::typeLibraryMinor) + "#0";
    for (const char* file : {"CitiesForm.frm", "Cities.vbp"})
        EXPECT_NE(contentOf(file).find(reference), std::string::npos) << file;
}

} // namespace
} // namespace lumtex::testing
