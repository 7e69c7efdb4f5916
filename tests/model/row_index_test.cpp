#include "list_fixture.h"

#include <limits>

namespace lumtex::testing {
namespace {

class Indices : public ListFixture {
  protected:
    lmListView& freshList() {
        fresh_ = std::make_unique<lmListView>(desktop, host, events);
        fresh_->UserControl_InitProperties();
        return *fresh_;
    }

  private:
    std::unique_ptr<lmListView> fresh_;
};

// Wanted: every index is wrong as soon as the array exists, and without one the test itself fails.
TEST_F(Indices, EveryRowIndexIsWrongOnceThereWasARow) {
    EXPECT_FALSE(list.WrongIndex(1));
    EXPECT_EQ(lastReport(), "9 WrongIndex");
    EXPECT_FALSE(list.WrongIndex(-1)) << "the bound is asked for first";
    EXPECT_EQ(reportCount(), 2U);
    list.letListIndex(-2);
    EXPECT_EQ(lastReport(), "9 ListIndex");
    addColumns({50});
    addRows(2);
    const std::size_t reports = reportCount();
    for (const Variant& index : {Variant(Long{0}), Variant(Long{1}), Variant(Long{99}), Variant(u"x")})
        EXPECT_TRUE(list.WrongIndex(index));
    list.RowsClear();
    EXPECT_TRUE(list.WrongIndex(1));
    EXPECT_EQ(reportCount(), reports);
}

// Wanted: the same for columns.
TEST_F(Indices, EveryColumnIndexIsWrongOnceThereWasAColumn) {
    EXPECT_TRUE(list.WrongColumnIndex(u"x"));
    EXPECT_TRUE(list.WrongColumnIndex(Null{}));
    EXPECT_EQ(reportCount(), 0U);
    EXPECT_FALSE(list.WrongColumnIndex(1));
    EXPECT_FALSE(list.WrongColumnIndex(0)) << "the bound is asked for first";
    EXPECT_EQ(reportCount(), 2U);
    EXPECT_EQ(lastReport(), "9 WrongColumnIndex");
    addColumns({50});
    EXPECT_TRUE(list.WrongColumnIndex(1));
    EXPECT_TRUE(list.WrongColumnIndex(u"x"));
}

TEST_F(Indices, RowIndexIsListIndexCountedFromOne) {
    addColumns({50});
    addRows(3);
    EXPECT_EQ(list.RowIndex(), 0);
    list.letRowIndex(2);
    EXPECT_EQ(list.ListIndex(), 1);
    list.letListIndex(2);
    EXPECT_EQ(list.RowIndex(), 3);
    list.letRowIndex(0);
    EXPECT_EQ(list.ListIndex(), -1);
}

TEST_F(Indices, ARowIndexOutsideTheListRaisesTheEventCountedFromZero) {
    addColumns({50});
    addRows(3);
    list.letRowIndex(4);
    EXPECT_EQ(events.log, (std::vector<std::string>{"ErrorWrongIndex Index=3"}));
    EXPECT_EQ(list.ListIndex(), -1);
}

TEST_F(Indices, ARowIndexThatCannotBeLoweredIsReportedAndTheIndexStays) {
    addColumns({50});
    addRows(3);
    list.letListIndex(1);
    list.letRowIndex(std::numeric_limits<Long>::min());
    EXPECT_EQ(lastReport(), "6 RowIndex");
    EXPECT_EQ(list.ListIndex(), 1);
    EXPECT_TRUE(events.log.empty());
}

// Wanted: a place counted from 1 against a top row counted from 0.
TEST_F(Indices, RowIndexScrollsItsRowIntoView) {
    addColumns({50});
    addRows(50);
    list.CheckScroll();
    const Long visible = inside.VisibleItems();
    list.letRowIndex(visible + 1);
    EXPECT_EQ(list.TopIndex(), visible);
    list.letTopIndex(20);
    list.letRowIndex(20);
    EXPECT_EQ(list.TopIndex(), 20) << "the row just above the view stays hidden";
    list.letRowIndex(19);
    EXPECT_EQ(list.TopIndex(), 18);
    list.letRowIndex(18);
    EXPECT_EQ(list.TopIndex(), 18);
}

class RowsInView : public ListFixture {
  protected:
    RowsInView() {
        list.letRowsDynamic(false);
        addColumns({50});
        addRows(50);
        visible = inside.VisibleItems();
    }

    Long visible = 0;
};

TEST_F(RowsInView, ListIndexScrollsARowBelowTheViewToTheTopFromTheSecondTimeOn) {
    inside.letIndexScroll(false);
    list.letListIndex(visible);
    EXPECT_EQ(list.TopIndex(), 0) << "the first time after loading";
    list.letListIndex(visible - 1);
    EXPECT_EQ(list.TopIndex(), 0) << "the last row that shows";
    list.letListIndex(visible);
    EXPECT_EQ(list.TopIndex(), visible) << "the first that does not";
    list.letListIndex(visible - 1);
    EXPECT_EQ(list.TopIndex(), visible) << "above the view";
    list.letTopIndex(10);
    list.letListIndex(10 + visible - 1);
    EXPECT_EQ(list.TopIndex(), 10);
    list.letListIndex(10 + visible);
    EXPECT_EQ(list.TopIndex(), 10 + visible);
}

TEST_F(RowsInView, ListIndexSelectsItsRowAloneUnlessThatIsHeldOff) {
    list.letMultiSelect(true);
    list.letRowSelected(2, true);
    inside.letIndexSelect(true);
    list.letListIndex(4);
    EXPECT_TRUE(list.RowSelected(5));
    EXPECT_EQ(list.RowSelectedCount(), 1);
    inside.letIndexSelect(false);
    list.letListIndex(6);
    EXPECT_FALSE(list.RowSelected(7));
    EXPECT_EQ(list.RowSelectedCount(), 1);
}

TEST_F(RowsInView, RowSelectedScrollsFromTheRowAboveTheViewAndFromItsLastRow) {
    const auto topAfter = [&](Long row) {
        list.letTopIndex(10);
        list.letRowSelected(row, true);
        return list.TopIndex();
    };
    EXPECT_EQ(topAfter(10), 9) << "just above";
    EXPECT_EQ(topAfter(11), 10) << "the first in view";
    EXPECT_EQ(topAfter(10 + visible - 1), 10);
    EXPECT_EQ(topAfter(10 + visible), 10 + visible - 1) << "the last in view";
    list.letTopIndex(10);
    list.letRowSelected(1, false);
    EXPECT_EQ(list.TopIndex(), 10) << "taking a selection away scrolls nowhere";
}

TEST_F(Indices, AListThatNeverHadRowsReportsItsMissingBoundAndRefusesTheIndex) {
    lmListView& fresh = freshList();
    fresh.letListIndex(0);
    EXPECT_EQ(lastReport(), "9 ListIndex");
    EXPECT_EQ(events.log, (std::vector<std::string>{"ErrorWrongIndex Index=0"}));
    EXPECT_EQ(fresh.ListIndex(), -1);
    EXPECT_EQ(fresh.ItemsCheckedCount(), 0);
    EXPECT_EQ(lastReport(), "9 ItemsCheckedCount");
}

} // namespace
} // namespace lumtex::testing
