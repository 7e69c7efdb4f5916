/// A host may do anything in the control's own events.
#include "event_story.h"

namespace lumtex::testing {
namespace {

using CallingInEvents = SilentComponent;

TEST_F(CallingInEvents, AnyEventMayBeAnsweredWithAnyCall) {
    for (const DISPID event : raisedByTheStory)
        for (const HostCode& code : hostCodes) {
            SCOPED_TRACE(std::string("event ") + std::to_string(event) + ", the host " + code.name);
            Story story;
            bool answered = false;
            story.answer(event, [&] {
                answered = true;
                code.run(story);
            });
            story.run();
            EXPECT_TRUE(answered);
            if (!story.isOver()) {
                story.call(L"RowsClear");
                story.call(L"ColumnsClear");
                story.call(L"ColumnsAdd", {u"column"});
                story.call(L"RowsAdd", {Long{-1}, u",", u"text"});
                EXPECT_EQ(story.get(L"RowsCount"), Variant(Long{1}));
                EXPECT_EQ(story.get(L"ItemText", {Long{1}, Long{1}}), Variant(u"text"));
            }
            story.end();
            EXPECT_EQ(story.container().references, 1U);
            EXPECT_EQ(story.sink().references, 1U);
        }
}

} // namespace
} // namespace lumtex::testing
