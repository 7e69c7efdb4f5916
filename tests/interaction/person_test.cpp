/// What a person does at the desktop in memory, a list notices.
#include "list_fixture.h"
#include "worlds/headless/person.h"

namespace lumtex::testing {
namespace {

class AtTheDesktop : public ListFixture {
  protected:
    AtTheDesktop() {
        list.UserControl_ReadProperties(MemoryPropertyBag{});
        addColumns({100, 100});
        addRows(20, u"a,b");
        list.CheckScroll();
        list.Redraw();
        events.log.clear();
    }
    bool heard(const std::string& line) const { return std::ranges::count(events.log, line) == 1; }

    headless::Person person{desktop};
};

TEST_F(AtTheDesktop, AClickReachesTheCellUnderIt) {
    person.click(list.window(), 150, 50);
    EXPECT_TRUE(heard("ItemClick Row=2 Column=2"));
    EXPECT_EQ(list.RowIndex(), 2);
}

// Wanted: the list looks by a timer where the pointer is, so that a press that comes with its move hits
// nothing.
TEST_F(AtTheDesktop, APressThatTakesNoTimeReachesNoCell) {
    desktop.click(list.window(), 150, 50);
    EXPECT_FALSE(heard("ItemClick Row=2 Column=2"));
}

TEST_F(AtTheDesktop, ADoubleClickOpensTheEditorAndTextGoesThere) {
    list.letItemAllowEdit(2, 2, true);
    person.doubleClick(list.window(), 150, 50);
    person.type(u"new");
    person.key(keys::enter);
    EXPECT_TRUE(heard("ItemChanged Row=2 Column=2 NewValue=new"));
}

TEST_F(AtTheDesktop, ADragMovesTheEdgeOfAColumn) {
    person.drag(list.window(), {100, 10}, {140, 10});
    EXPECT_EQ(list.ColumnWidth(1), 140 * 15);
}

TEST_F(AtTheDesktop, ATurnOfTheWheelScrolls) {
    person.wheel(list.window(), 50, 50, -2);
    EXPECT_EQ(list.TopIndex(), 2); // a row a notch
}

} // namespace
} // namespace lumtex::testing
