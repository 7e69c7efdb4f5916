/// The classes that hosts create beside the control.
#include "automation/call_by_name.h"
#include "automation/identifiers.h"
#include "error_number.h"
#include "fake_runtime.h"
#include "values/text.h"

#include <set>

#include <gtest/gtest.h>

namespace lumtex::testing {
namespace {

std::string signatureOf(const automation::Member& member) {
    std::string text = toUtf8(member.name) + "(";
    for (const automation::Parameter& parameter : member.parameters())
        text += (text.back() == '(' ? "" : ", ") + toUtf8(parameter.name) + ": " +
                toUtf8(parameter.type.name) + (parameter.optional() ? " optional" : "");
    return text + ")" +
           (member.type.code == automation::TypeCode::none ? "" : ": " + toUtf8(member.type.name)) +
           (member.get != nullptr ? " get" : "") + (member.let != nullptr ? " let" : "") +
           (member.call != nullptr ? " call" : "");
}

std::set<std::string> signaturesOf(const automation::ClassDescription& description) {
    std::set<std::string> all;
    for (const automation::Member& member : description.members)
        all.insert(signatureOf(member));
    return all;
}

TEST(Classes, AreTheControlAndTwoHelpers) {
    std::vector<StringView> names;
    for (const automation::ClassDescription& description : automation::classTable())
        names.push_back(description.name);
    EXPECT_EQ(names, (std::vector<StringView>{u"lmListView", u"SpEv", u"Error"}));
}

TEST(Classes, SpEvHasItsEightMembers) {
    EXPECT_EQ(signaturesOf(automation::spEvClass()),
              (std::set<std::string>{
                  "ActiveXPTheme(): cActiveXPTheme call",
                  "FileExists(sFile: String): Boolean call",
                  "ListRead(List: Object, Filename: String) call",
                  "ListSave(List: Object, Filename: String, TextBeforeListText: String optional, "
                  "TextAfterListText: String optional) call",
                  "MouseButtonPressed(): cMouseButton call",
                  "PlayMusic(Filename: String) call",
                  "TextRead(Filename: String): String call",
                  "TextSave(Filename: String, Text: String) call",
              }));
}

TEST(Classes, ErrorHasItsSwitch) {
    EXPECT_EQ(signaturesOf(automation::errorClass()),
              (std::set<std::string>{"SilentError(): Boolean get let"}));
}

TEST(Classes, NoTwoMembersOfOneShareANumber) {
    for (const automation::ClassDescription& description : automation::classTable()) {
        std::set<Long> numbers;
        for (const automation::Member& member : description.members)
            EXPECT_TRUE(numbers.insert(member.number).second) << toUtf8(member.name);
    }
}

TEST(Classes, TheSwitchIsReachedByName) {
    SilentFlag flag;
    Error error(flag);
    automation::CallByName byName(error);
    byName.let(u"silenterror", {}, true);
    EXPECT_TRUE(flag.silent);
    EXPECT_EQ(byName.get(u"SilentError"), Variant(true));
}

TEST(Classes, AHelperKnowsItsOwnNamesAlone) {
    SilentFlag flag;
    Error error(flag);
    automation::CallByName byName(error);
    EXPECT_EQ(errorNumberOf([&] { byName.call(u"Redraw"); }), ErrorNumber::objectDoesNotSupportMember);
    EXPECT_EQ(automation::findMember(automation::errorClass(), u"TextRead"), nullptr);
    EXPECT_EQ(automation::findMember(automation::spEvClass(), u"textread")->name, u"TextRead");
}

TEST(Classes, TheHelperCallsReachTheRuntime) {
    FakeRuntime runtime;
    SpEv helper(runtime);
    automation::CallByName byName(helper);
    runtime.fileSystem.texts[u"a.txt"] = u"some text";
    std::vector<Variant> there{u"a.txt"};
    EXPECT_EQ(byName.call(u"FileExists", there), Variant(true));
    std::vector<Variant> notThere{u"b.txt"};
    EXPECT_EQ(byName.call(u"FileExists", notThere), Variant(false));
}

TEST(Classes, NoNameStandsTwiceAndNoNumberInOneClass) {
    std::multiset<String> names;
    for (const automation::ClassDescription& description : automation::classTable()) {
        std::set<Long> numbers;
        for (const automation::Member& member : description.members) {
            EXPECT_TRUE(numbers.insert(member.number).second) << toUtf8(member.name);
            names.emplace(member.name);
        }
    }
    EXPECT_EQ(std::set<String>(names.begin(), names.end()).size(), names.size());
}

} // namespace
} // namespace lumtex::testing
