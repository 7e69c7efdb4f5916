/// The forms and handlers among the samples name what the control has, as the control has it. Their hosts run
/// on Windows alone.
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
    std::ifstream file(std::filesystem::path(sourceFolder()) / "samples" / name, std::ios::binary);
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

const automation::EventDescription* eventNamed(const std::string& name) {
    for (const automation::EventDescription& event : automation::eventTable)
        if (toUtf8(event.name) == name)
            return &event;
    return nullptr;
}

/// The same without types, as in scripts.
std::string namesText(const automation::EventDescription& event) {
    std::string text;
    for (const automation::EventArgument& argument : event.arguments())
        text += (text.empty() ? "" : ", ") + toUtf8(argument.name);
    return text;
}

std::string inCapitals(std::string_view text) {
    std::string capitals(text);
    std::transform(capitals.begin(), capitals.end(), capitals.begin(), [](char c) {
        return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    });
    return capitals;
}

constexpr const char* forms[] = {"visual-basic/CitiesForm.frm", "office/CitiesForm.txt"};
constexpr const char* page = "hta/cities.hta";

TEST(FormSample, CallsMembersThatTheListHas) {
    for (const char* form : {forms[0], forms[1], page}) {
        const auto calls = allOf(contentOf(form), R"(\b[Cc]ities\.(?!lst)(\w+))");
        ASSERT_GT(calls.size(), 10U) << form;
        for (const auto& call : calls)
            EXPECT_NE(memberNamed(call[1]), nullptr) << form << ": " << call[1];
    }
}

TEST(FormSample, HandlesEventsWithTheirOwnArguments) {
    for (const char* form : forms) {
        const auto handlers = allOf(contentOf(form), R"(Private Sub Cities_(\w+)\((.*)\))");
        ASSERT_GE(handlers.size(), 3U) << form;
        for (const auto& handler : handlers) {
            const automation::EventDescription* event = eventNamed(handler[1]);
            ASSERT_NE(event, nullptr) << form << ": " << handler[1];
            EXPECT_EQ(handler[2], parameterText(*event)) << form << ": " << handler[1];
        }
    }
}

TEST(FormSample, HandlesEventsInScriptsByTheirNames) {
    for (const char* script : {page, "vbscript/events.vbs", "jscript/events.js"}) {
        const auto handlers =
            allOf(contentOf(script), R"((?:Sub|function) (?:cities|list)_(\w+)(?:\((.*)\))?)");
        ASSERT_GE(handlers.size(), 3U) << script;
        for (const auto& handler : handlers) {
            const automation::EventDescription* event = eventNamed(handler[1]);
            ASSERT_NE(event, nullptr) << script << ": " << handler[1];
            EXPECT_EQ(handler[2], namesText(*event)) << script << ": " << handler[1];
        }
    }
}

TEST(FormSample, UsesEnumeratorsThatExist) {
    std::set<std::string> known;
    for (const automation::Enumeration& enumeration : automation::enumerationTable)
        for (const automation::Enumerator& enumerator : enumeration.enumerators())
            known.insert(toUtf8(enumerator.name));
    for (const char* form : {forms[0], forms[1], page}) {
        const auto used = allOf(contentOf(form), R"(\b(c[A-Z][a-z]\w+)\b)");
        ASSERT_GT(used.size(), 5U) << form;
        for (const auto& enumerator : used)
            EXPECT_TRUE(known.contains(enumerator[1])) << form << ": " << enumerator[1];
    }
}

TEST(FormSample, SetsPropertiesThatTheListKeeps) {
    const std::string form = contentOf(forms[0]);
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
    const std::string reference = "{" + inCapitals(automation::uuidOf("LumtexListView")) + "}#" +
                                  std::to_string(automation::typeLibraryMajor) + "." +
                                  std::to_string(automation::typeLibraryMinor) + "#0";
    for (const char* file : {forms[0], "visual-basic/Cities.vbp"})
        EXPECT_NE(contentOf(file).find(reference), std::string::npos) << file;
}

TEST(FormSample, NamesTheClassInAPageByItsIdentifier) {
    EXPECT_NE(contentOf(page).find("clsid:" + inCapitals(automation::uuidOf("lmListView"))),
              std::string::npos);
}

} // namespace
} // namespace lumtex::testing
