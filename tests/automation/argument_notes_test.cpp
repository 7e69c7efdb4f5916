/// Every argument of the public interface is explained.
#include "automation/argument_notes.h"
#include "automation/class_table.h"
#include "values/text.h"

#include <gtest/gtest.h>

namespace lumtex::testing {
namespace {

bool saysSomething(const automation::ArgumentNote* note) {
    return note != nullptr && (note->base != automation::CountsFrom::nowhere || *note->text != 0);
}

TEST(ArgumentNotes, TellOfEachParameterOfEachMember) {
    for (const automation::ClassDescription& description : automation::classTable())
        for (const automation::Member& member : description.members)
            for (const automation::Parameter& parameter : member.parameters())
                EXPECT_TRUE(saysSomething(noteOn(member, parameter)))
                    << toUtf8(member.name) << ": " << toUtf8(parameter.name);
}

TEST(ArgumentNotes, TellOfEachArgumentOfEachEvent) {
    for (const automation::EventDescription& event : automation::eventTable)
        for (const automation::EventArgument& argument : event.arguments())
            EXPECT_TRUE(saysSomething(noteOn(event, argument)))
                << toUtf8(event.name) << ": " << toUtf8(argument.name);
}

TEST(ArgumentNotes, SayOfEachArgumentByReferenceWhatBecomesOfAChange) {
    const auto tells = [](const automation::ArgumentNote* note, std::initializer_list<const char*> words) {
        return note != nullptr && std::ranges::any_of(words, [&](const char* word) {
                   return std::string_view(note->text).find(word) != std::string_view::npos;
               });
    };
    for (const automation::EventDescription& event : automation::eventTable)
        for (const automation::EventArgument& argument : event.arguments())
            if (argument.byReference && argument.name != u"Cancel") {
                EXPECT_TRUE(tells(noteOn(event, argument),
                                  {"A change does", "What a handler leaves", "never raised"}))
                    << toUtf8(event.name) << ": " << toUtf8(argument.name);
            }
    for (const automation::Member& member : automation::memberTable())
        for (const automation::Parameter& parameter : member.parameters())
            if (parameter.byReference) {
                EXPECT_TRUE(tells(noteOn(member, parameter), {"By reference"}))
                    << toUtf8(member.name) << ": " << toUtf8(parameter.name);
            }
}

TEST(ArgumentNotes, OfAMemberGoBeforeThoseOfAll) {
    const auto noteOf = [](StringView name) {
        const auto all = automation::memberTable();
        const auto member = std::ranges::find(all, name, &automation::Member::name);
        return noteOn(*member, member->parameters()[0]);
    };
    EXPECT_EQ(noteOf(u"RowsAdd")->base, automation::CountsFrom::zero);
    EXPECT_EQ(noteOf(u"RowsRemove")->base, automation::CountsFrom::one);
    EXPECT_EQ(noteOf(u"ColumnsRemove")->base, automation::CountsFrom::nowhere);
}

TEST(ArgumentNotes, KnowTheMembersThatGiveAnIndex) {
    std::string bases;
    for (const automation::Member& member : automation::memberTable())
        if (const automation::CountsFrom base = baseOf(member); base != automation::CountsFrom::nowhere)
            bases += toUtf8(member.name) + (base == automation::CountsFrom::zero ? "=0 " : "=1 ");
    EXPECT_EQ(bases,
              "NewIndex=0 ListIndex=0 RowIndex=1 TopIndex=0 ColumnIndex=1 SortColumnIndex=1 FindItem=1 ");
}

} // namespace
} // namespace lumtex::testing
