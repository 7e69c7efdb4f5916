/// Pages of the reference lead to those that belong to them.
#include "automation/event_table.h"
#include "automation/member_table.h"
#include "automation/reference.h"
#include "automation/related_pages.h"
#include "values/text.h"

#include <set>

#include <gtest/gtest.h>

namespace lumtex::testing {
namespace {

TEST(RelatedPages, AreMembersAndEventsOfTheList) {
    std::set<StringView> members;
    for (const automation::Member& member : automation::memberTable())
        members.insert(member.name);
    std::set<StringView> events;
    for (const automation::EventDescription& event : automation::eventTable)
        events.insert(event.name);
    for (const automation::Family& family : automation::families()) {
        for (const StringView member : family.members)
            EXPECT_TRUE(members.contains(member)) << toUtf8(member);
        for (const StringView event : family.events)
            EXPECT_TRUE(events.contains(event)) << toUtf8(event);
    }
}

TEST(RelatedPages, StandOnEachPageButThatOfTheAboutBox) {
    for (const automation::ReferencePage& page : automation::referencePages()) {
        const bool ofAMember =
            std::ranges::any_of(automation::memberTable(), [&](const automation::Member& member) {
                return toUtf8(member.name) + ".md" == page.fileName;
            });
        if (ofAMember) {
            EXPECT_EQ(page.text.find("\nSee also ") == std::string::npos, page.fileName == "About.md")
                << page.fileName;
            EXPECT_EQ(page.text.find("](" + page.fileName + ")"), std::string::npos)
                << page.fileName << " leads to itself";
        }
    }
}

} // namespace
} // namespace lumtex::testing
