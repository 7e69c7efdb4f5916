/// A host may end the control from within the control's own events.
#include "event_story.h"

namespace lumtex::testing {
namespace {

struct NamedEnding {
    Ending ending;
    const char* name;
};
constexpr NamedEnding endings[] = {
    {Ending::lastReference, "lets go of the last reference"},
    {Ending::closed, "closes the control"},
    {Ending::windowDestroyed, "destroys the window around it"},
};

class EndingInEvents : public ::testing::Test {
  protected:
    EndingInEvents() { OleInitialize(nullptr); }
    ~EndingInEvents() override { OleUninitialize(); }

    BoxWatch watch;
    Component component;
};

TEST_F(EndingInEvents, TheStoryRaisesAllEventsOfMouseKeysDropsAndCalls) {
    Story story;
    story.run();
    const std::set<DISPID> raised(story.sink().raised.begin(), story.sink().raised.end());
    EXPECT_EQ(raised, raisedByTheStory);
}

TEST_F(EndingInEvents, NoHandlerDestroysWhatStillRuns) {
    for (const NamedEnding& ending : endings)
        for (const DISPID event : raisedByTheStory) {
            SCOPED_TRACE(std::string("event ") + std::to_string(event) + ", the host " + ending.name);
            {
                Story story;
                story.endAt(event, ending.ending);
                story.run();
                EXPECT_TRUE(story.isOver());
                EXPECT_EQ(story.container().references, 1U);
                EXPECT_EQ(story.sink().references, 1U);
            }
            EXPECT_TRUE(component.canUnload());
        }
}

} // namespace
} // namespace lumtex::testing
