#include "played_list.h"

namespace lumtex::testing {

class HeaderClick : public PlayedList {
  protected:
    void fillUnsorted() {
        addColumns({60, 60});
        for (const StringView texts : {u"b,2", u"c,1", u"a,3"})
            list.RowsAdd(Long{-1}, u",", texts);
        list.letColumnAllowSorting(1, true);
        list.letColumnAllowSorting(2, true);
        events.log.clear();
    }
};

// Wanted: each click turns the direction, whichever column it falls on.
TEST_F(HeaderClick, TurnsTheDirectionOnWhateverColumn) {
    fillUnsorted();
    const Byte directions[] = {0, 1, 0, 1};
    const Long columns[] = {1, 1, 2, 1};
    for (int i = 0; i < 4; ++i) {
        click(header(columns[i]));
        EXPECT_EQ(inside.sort().sortColumn, columns[i] - 1) << i;
        EXPECT_EQ(inside.sort().sortAscending, directions[i]) << i;
    }
}

} // namespace lumtex::testing
