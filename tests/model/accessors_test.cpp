#include "list_fixture.h"
#include "test_object.h"

namespace lumtex::testing {

using Accessors = ListFixture;

// Wanted: the array keeps one blank element; the flag alone tells that there are no rows.
TEST_F(Accessors, ClearingRowsLeavesOneBlankElement) {
    addColumns({50});
    addRows(3, u"a");
    list.letItemChecked(1, 1, true);
    list.RowsClear();
    EXPECT_EQ(list.RowsCount(), 0);
    EXPECT_EQ(inside.rows().size(), 1U);
    EXPECT_EQ(list.ItemsCheckedCount(), 0);
    EXPECT_FALSE(list.RowEnabled(1));
}

// Wanted: rows and their cells stay as they are, with their old count of cells.
TEST_F(Accessors, ClearingColumnsLeavesTheRowsAlone) {
    addColumns({50, 50});
    addRows(1, u"a,b");
    list.ColumnsClear();
    EXPECT_EQ(list.ColumnsCount(), 0);
    EXPECT_EQ(list.RowsCount(), 1);
    EXPECT_EQ(list.ItemText(1, 2), u"b");
}

TEST_F(Accessors, ACellKeepsItsLookWhenOthersOfTheSameLookChange) {
    addColumns({50});
    addRows(5);
    for (const Long row : {1, 2, 3})
        list.letItemForeColor(row, 1, 5);
    list.letItemForeColor(1, 1, 6);
    list.letItemForeColor(2, 1, 7);
    list.letItemForeColor(4, 1, 8);
    list.letItemForeColor(5, 1, 9);
    EXPECT_EQ(list.ItemForeColor(3, 1), 5U) << "its place among the looks was not given away";
    EXPECT_EQ(list.ItemForeColor(1, 1), 6U);
    EXPECT_EQ(list.ItemForeColor(2, 1), 7U);
}

TEST_F(Accessors, AColumnOutsideTheListIsReported) {
    addColumns({50});
    for (const Long column : {0, 2, -1}) {
        EXPECT_EQ(list.ColumnWidth(column), 0);
        EXPECT_EQ(lastReport(), "9 ColumnWidth") << column;
    }
}

TEST_F(Accessors, ATagThatIsTheEmptyTextIsNeitherEmptyNorLost) {
    addColumns({50});
    addRows(2);
    const Variant emptyText(u"");
    for (const Variant& before : {Variant(), Variant(Long{7}), Variant(u"long before")}) {
        list.letItemTag(1, 1, before);
        EXPECT_EQ(list.ItemTag(1, 1), before);
        list.letItemTag(1, 1, emptyText);
        EXPECT_EQ(list.ItemTag(1, 1), emptyText);
    }
    inside.rows()[0].items.exchangeCell(0, inside.rows()[1].items);
    EXPECT_EQ(list.ItemTag(2, 1), emptyText);
    EXPECT_TRUE(list.ItemTag(1, 1).isEmpty());
    list.letItemTag(2, 1, Variant());
    EXPECT_TRUE(list.ItemTag(2, 1).isEmpty());
}

// Wanted: the two sizes pass through a Boolean on the interface, both ways.
TEST_F(Accessors, IconSizesOfAColumnPassThroughABoolean) {
    addColumns({50});
    EXPECT_TRUE(list.ColumnItemIconH(1));
    list.letColumnItemIconH(1, true);
    EXPECT_EQ(inside.columns()[0]->ItemIconH, -1);
    list.letColumnItemIconW(1, false);
    EXPECT_EQ(inside.columns()[0]->ItemIconW, 0);
    EXPECT_FALSE(list.ColumnItemIconW(1));
}

// Wanted: no repaint, so that a whole row can be switched and painted once.
TEST_F(Accessors, EnablingACellDoesNotRepaintAndEnablingARowDoesOnce) {
    addColumns({50, 50, 50});
    addRows(1, u"a,b,c");
    EXPECT_EQ(paintsOf([&] { list.letItemEnabled(1, 1, false); }), 0);
    EXPECT_FALSE(list.ItemEnabled(1, 1));
    EXPECT_EQ(paintsOf([&] { list.letRowEnabled(1, false); }), 1);
    EXPECT_FALSE(list.ItemEnabled(1, 3));
}

// Wanted: no repaint here either.
TEST_F(Accessors, ATagDoesNotRepaint) {
    addColumns({50});
    addRows(1);
    EXPECT_EQ(paintsOf([&] { list.letItemTag(1, 1, Long{7}); }), 0);
    EXPECT_EQ(list.ItemTag(1, 1), Variant(Long{7}));
}

// Wanted: the stored number is not compared with the count of rows, so a stale one comes back as it stands.
TEST_F(Accessors, AStaleListIndexComesBackAsItStands) {
    addColumns({50});
    addRows(1);
    inside.properties().ListIndex = 41;
    EXPECT_EQ(list.ListIndex(), 41);
}

TEST_F(Accessors, AnIndexThatIsRefusedIsToldAndTheOldOneStays) {
    addColumns({50});
    addRows(5);
    list.letListIndex(1);
    list.letListIndex(7);
    list.letRowEnabled(3, false);
    list.letListIndex(2);
    EXPECT_EQ(list.ListIndex(), 1);
    EXPECT_EQ(events.log, (std::vector<std::string>{"ErrorWrongIndex Index=7", "ErrorWrongIndex Index=2"}));
}

TEST_F(Accessors, CheckedCellsAreCountedOnce) {
    addColumns({50, 50});
    addRows(2, u"a,b");
    list.letItemChecked(1, 1, true);
    EXPECT_EQ(paintsOf([&] { list.letItemChecked(1, 1, true); }), 0);
    list.letItemChecked(2, 2, true);
    EXPECT_EQ(list.ItemsCheckedCount(1), 1);
    EXPECT_EQ(list.ItemsCheckedCount(), 2);
    EXPECT_EQ(list.ItemsCheckedCount(0), 2);
    EXPECT_EQ(list.ItemsCheckedCount(99), 2);
    list.letItemChecked(1, 1, false);
    EXPECT_EQ(list.ItemsCheckedCount(1), 0);
}

TEST_F(Accessors, ASecondSelectedRowNeedsMultiSelect) {
    addColumns({50});
    addRows(3);
    list.letRowSelected(1, true);
    list.letRowSelected(2, true);
    EXPECT_FALSE(list.RowSelected(1));
    list.letMultiSelect(true);
    list.letRowSelected(3, true);
    EXPECT_TRUE(list.RowSelected(2));
}

TEST_F(Accessors, ADisabledColourRefusesTheDefaultAndTheOthersTakeIt) {
    addColumns({50});
    addRows(1);
    for (const Variant& color : {Variant(Long{5}),
                                 Variant(Missing{}),
                                 Variant(Date{2.5}),
                                 Variant(LongLong{std::int64_t{1} << 40}),
                                 Variant(UnsignedLongLong{std::uint64_t{1} << 63}),
                                 Variant(Currency{12345}),
                                 Variant(Decimal{{1, 2, 3}, 4, true})}) {
        list.letItemBackColor(1, 1, color);
        EXPECT_EQ(list.ItemBackColor(1, 1), color) << "kept as it comes, whatever it is worth as a colour";
    }
    list.letItemBackColor(1, 1, u"def");
    EXPECT_EQ(list.ItemBackColor(1, 1), Variant(u"def"));
    list.letItemBackColorDis(1, 1, u"def");
    EXPECT_EQ(lastReport(), "13 ItemBackColorDis");
    EXPECT_EQ(list.ItemBackColorDis(1, 1).toColor(), 0x8000000FU);
}

TEST_F(Accessors, AnObjectWithoutAWindowIsStoredAndOneWithAWindowIsAdopted) {
    addColumns({50});
    addRows(1);
    list.letAutoRedraw(false);
    const auto plain = std::make_shared<TestObject>();
    list.setItemObject(1, 1, plain);
    EXPECT_EQ(list.ItemObject(1, 1), plain);
    EXPECT_EQ(reportCount(), 0U);

    const auto windowed = std::make_shared<TestObject>();
    windowed->properties[u"hwnd"] = Long{12345};
    windowed->methods[u"ZOrder"] = [](std::span<Variant>) { return Variant(); };
    list.setItemObject(1, 1, windowed);
    EXPECT_EQ(windowed->log, std::vector<std::string>{"ZOrder 1"});
    EXPECT_EQ(list.ItemObject(1, 1), windowed);
}

TEST_F(Accessors, AnObjectThatFailsIsToldAsAnEventReportedAndStored) {
    addColumns({50});
    addRows(1);
    list.letAutoRedraw(false);
    const auto broken = std::make_shared<TestObject>();
    broken->properties[u"hwnd"] = Long{12345};
    list.setItemObject(1, 1, broken);
    EXPECT_EQ(events.log,
              std::vector<std::string>{"ListViewError eSub=ItemObject eNumber=438 "
                                       "eDescription=Object doesn't support this property or method"});
    EXPECT_EQ(list.ItemObject(1, 1), broken);
    EXPECT_EQ(reportCount(), 1U);
    EXPECT_EQ(lastReport(), "438 ItemObject");
    list.setItemObject(9, 1, nullptr);
    EXPECT_EQ(events.log.size(), 2U);
    EXPECT_EQ(lastReport(), "9 ItemObject");
}

// Wanted: the host hears of a failure by an event before it is reported, and the next statement runs.
TEST_F(Accessors, TheEventOfAFailingObjectComesAheadOfItsReport) {
    addColumns({50});
    addRows(1);
    list.letAutoRedraw(false);
    std::size_t eventsAtTheReport = 0;
    desktop.runtime().whileBoxIsOpen = [&] { eventsAtTheReport = events.log.size(); };
    list.setItemObject(9, 1, std::make_shared<TestObject>());
    EXPECT_EQ(eventsAtTheReport, 1U);
}

TEST_F(Accessors, WhatNoTagOrColourHoldsIsReportedAndKeepsTheOldOne) {
    addColumns({50});
    addRows(1);
    list.letItemTag(1, 1, u"kept");
    list.letItemTag(1, 1, Unsupported{});
    EXPECT_EQ(lastReport(), "13 ItemTag");
    EXPECT_EQ(list.ItemTag(1, 1), Variant(u"kept"));
    list.letItemBackColor(1, 1, Unsupported{});
    EXPECT_EQ(lastReport(), "13 ItemBackColor");
    EXPECT_EQ(list.ItemBackColor(1, 1), Variant(u"def"));
    EXPECT_EQ(list.ItemText(Unsupported{}, 1), u"");
    EXPECT_EQ(lastReport(), "13 ItemText");
}

} // namespace lumtex::testing
