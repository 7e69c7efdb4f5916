/// A week in the life of a list, on a clock that is moved in great steps.
#include "played_list.h"

#include <malloc.h>

namespace lumtex::testing {
namespace {

using std::chrono::hours;
using std::chrono::milliseconds;

class AWeek : public PlayedList {
  protected:
    /// What a user and his host do in three hours.
    void work(int round) {
        const Single x = static_cast<Single>(10 + round % 100);
        hover({x, 12});
        click(cell(list.TopIndex() + 1 + round % 5, 1));
        desktop.wheel(round % 2 == 0 ? -120 : 120);
        // Over the upper arrow, the thumb and the lower arrow: a press that is held, and the look that ends.
        for (const Single y : {10.0F, 30.0F, 190.0F}) {
            desktop.press(list.window(), 292, y);
            desktop.advance(milliseconds(500));
            desktop.release();
        }
        edit(round);
        if (round % 10 == 0)
            reload();
        desktop.move({900, 700});
        desktop.jump(hours(3));
        desktop.run();
        // What the tests themselves note.
        events.log = {};
        desktop.runtime().boxes = {};
        host.changed = {};
    }
    void edit(int round) {
        list.SetEdit(Long{1 + round % 50}, Long{1 + round % 2});
        desktop.type(u"text of this round");
        if (round % 3 == 0)
            list.StopEdit();
        else
            desktop.key(keys::enter);
    }
    /// Settings to a bag and back, rows anew, sorted.
    void reload() {
        MemoryPropertyBag bag;
        list.UserControl_WriteProperties(bag);
        list.RowsClear();
        list.ColumnsClear();
        list.UserControl_ReadProperties(bag);
        fill(50);
        list.CheckScroll();
        list.Redraw();
        list.Sort(1, cAscending, cSortNumeric);
    }
    static std::size_t memory() { return mallinfo2().uordblks; }
};

TEST_F(AWeek, NeedsNoMoreMemoryAtItsEndThanOnItsSecondDay) {
    constexpr int roundsADay = 8;
    fill(50);
    list.CheckScroll();
    list.Redraw();
    int round = 0;
    for (; round < 2 * roundsADay; ++round)
        work(round);
    const std::size_t early = memory();
    for (; round < 7 * roundsADay; ++round)
        work(round);
    EXPECT_GE(desktop.time(), hours(7 * 24));
    EXPECT_LE(memory(), early + 4096) << "bytes";
    EXPECT_EQ(list.RowsCount(), 50);
    EXPECT_TRUE(says(inside.painting(), "held=no"));
    EXPECT_TRUE(says(inside.mouse(), "inside=no"));
    EXPECT_TRUE(desktop.idle());
}

} // namespace
} // namespace lumtex::testing
