#include "guards/error.h"
#include "list_fixture.h"
#include "test_object.h"

namespace lumtex::testing {

using ControlCore = ListFixture;

TEST_F(ControlCore, AClearedListHasNoRowsAlthoughItsArrayHasAnElement) {
    addColumns({50});
    addRows(3);
    inside.clearRows();
    EXPECT_EQ(list.RowsCount(), 0);
    EXPECT_EQ(inside.rows().size(), 1U);
    EXPECT_TRUE(inside.ArrDim(Long{0}));
}

TEST_F(ControlCore, ArrDimTellsWhetherAnArrayExists) {
    EXPECT_FALSE(inside.ArrDim(Long{0}));
    EXPECT_FALSE(inside.ArrDim(Long{1}));
    addColumns({50});
    EXPECT_FALSE(inside.ArrDim(Long{0}));
    EXPECT_TRUE(inside.ArrDim(Long{1}));
    addRows(1);
    EXPECT_TRUE(inside.ArrDim(Long{0}));
    EXPECT_FALSE(inside.ArrDim(Long{2})) << "any other number";
    inside.clearColumns();
    EXPECT_TRUE(inside.ArrDim(Long{1}));
}

TEST_F(ControlCore, WithoutRowsListIndexReadsNoneWhateverIsStored) {
    inside.properties().ListIndex = 5;
    EXPECT_EQ(list.ListIndex(), -1);
}

TEST_F(ControlCore, InADesignerItPaintsWhateverAutoRedrawSays) {
    list.letAutoRedraw(false);
    EXPECT_EQ(paintsOf([&] { inside.CheckForRedraw(); }), 0);
    host.userMode = false;
    EXPECT_EQ(paintsOf([&] { inside.CheckForRedraw(); }), 1);
}

TEST_F(ControlCore, AContainerThatCannotTellItsModeIsARunningProgram) {
    list.letAutoRedraw(false);
    host.modeFails = true;
    EXPECT_EQ(paintsOf([&] { inside.CheckForRedraw(); }), 0);
    EXPECT_EQ(reportCount(), 0U);
}

// Wanted: each read yields to the host once.
TEST_F(ControlCore, ListIndexYieldsOncePerRead) {
    int yields = 0;
    desktop.onYield([&] { ++yields; });
    desktop.onYield([&] { ++yields; });
    list.ListIndex();
    EXPECT_EQ(yields, 1);
}

TEST_F(ControlCore, TheBlankRowOfAClearedListReadsFalseAndItsCellsFail) {
    addColumns({50});
    addRows(2);
    inside.clearRows();
    EXPECT_FALSE(list.RowEnabled(1));
    EXPECT_EQ(reportCount(), 0U);
    EXPECT_EQ(list.ItemText(1, 1), u"");
    EXPECT_EQ(lastReport(), "9 ItemText");
}

TEST_F(ControlCore, TheBlankColumnOfClearedColumnsAnswersWithAFreshOne) {
    addColumns({50});
    inside.clearColumns();
    EXPECT_EQ(list.ColumnsCount(), 0);
    EXPECT_EQ(list.ColumnText(1), u"");
    EXPECT_EQ(reportCount(), 0U);
    ASSERT_NE(inside.columns()[0], nullptr);
    EXPECT_FALSE(inside.columns()[0]->AdjustItemIcons) << "all zero, empty and false";
}

// Wanted: a text is a key, and no cell has a key, so that a numeric text fails too.
TEST_F(ControlCore, ANumericTextIsARowButNeverAColumn) {
    addColumns({50, 50, 50});
    addRows(2, u"a,b,c");
    addRows(1, u"d,e,f");
    EXPECT_EQ(list.ItemText(u"3", 1), u"d");
    EXPECT_EQ(reportCount(), 0U);
    EXPECT_EQ(list.ItemText(1, u"3"), u"");
    EXPECT_EQ(lastReport(), "5 ItemText");
}

struct BadIndex {
    const char* name;
    Variant row;
    Variant column;
    const char* report;
};

TEST_F(ControlCore, ABadIndexIsReportedUnderTheMembersNameAndChangesNothing) {
    addColumns({50, 50});
    addRows(2, u"a,b");
    const Variant first = Long{1};
    const BadIndex table[] = {
        {"row 0", Long{0}, first, "9 ItemText"},
        {"row past the end", Long{3}, first, "9 ItemText"},
        {"negative row", Long{-1}, first, "9 ItemText"},
        {"lowest row", std::numeric_limits<Long>::min(), first, "6 ItemText"},
        {"row past 32 bits", 3e9, first, "6 ItemText"},
        {"row that is no number", u"x", first, "13 ItemText"},
        {"row Null", Null{}, first, "94 ItemText"},
        {"row Empty", Variant(), first, "9 ItemText"},
        {"row missing", Missing{}, first, "13 ItemText"},
        {"row an object", ObjectRef(std::make_shared<TestObject>()), first, "13 ItemText"},
        {"column 0", first, Long{0}, "9 ItemText"},
        {"column past the end", first, Long{3}, "9 ItemText"},
        {"column as text", first, u"a", "5 ItemText"},
        {"column Null", first, Null{}, "94 ItemText"},
    };
    for (const BadIndex& bad : table) {
        desktop.runtime().boxes.clear();
        EXPECT_EQ(list.ItemText(bad.row, bad.column), u"") << bad.name;
        ASSERT_EQ(reportCount(), 1U) << bad.name;
        EXPECT_EQ(lastReport(), bad.report) << bad.name;
        list.letItemText(bad.row, bad.column, u"changed");
        EXPECT_EQ(lastReport(), bad.report) << bad.name;
    }
    EXPECT_EQ(list.ItemText(1, 1), u"a");
    EXPECT_EQ(list.ItemText(2, 2), u"b");
}

TEST_F(ControlCore, AnIndexIsRoundedHalfToEvenAfterOneIsTaken) {
    addColumns({50});
    for (const char16_t* text : {u"a", u"b", u"c", u"d"})
        addRows(1, text);
    EXPECT_EQ(list.ItemText(1.5, 1), u"a") << "0.5 rounds to 0";
    EXPECT_EQ(list.ItemText(2.5, 1), u"c") << "1.5 rounds to 2";
    EXPECT_EQ(list.ItemText(u"3.5", 1), u"c") << "2.5 rounds to 2";
}

TEST_F(ControlCore, ANewCellHasItsStartValues) {
    addColumns({50});
    list.letDefaultItemForeColor(0x010203);
    addRows(1, u"text");
    EXPECT_EQ(list.ItemText(1, 1), u"text");
    EXPECT_EQ(list.ItemForeColor(1, 1), 0x010203U);
    EXPECT_EQ(list.ItemBackColor(1, 1), Variant(u"def"));
    EXPECT_EQ(list.ItemForeColorSelect(1, 1), Variant(u"def"));
    EXPECT_EQ(list.ItemBackColorSelect(1, 1), Variant(u"def"));
    EXPECT_EQ(list.ItemForeColorDis(1, 1).toColor(), 0x80000011U);
    EXPECT_EQ(list.ItemBackColorDis(1, 1).toColor(), 0x8000000FU);
    EXPECT_EQ(list.ItemIcon(1, 1), nullptr);
    EXPECT_EQ(list.ItemIconSelected(1, 1), nullptr);
    EXPECT_EQ(list.ItemAlignment(1, 1), cItemLeft);
    EXPECT_EQ(list.ItemIconAlignment(1, 1), cItemLeft);
    EXPECT_FALSE(list.ItemAllowEdit(1, 1));
    EXPECT_TRUE(list.ItemEnabled(1, 1));
    EXPECT_FALSE(list.ItemFontBold(1, 1));
    EXPECT_FALSE(list.ItemFontItalic(1, 1));
    EXPECT_FALSE(list.ItemFontUnderline(1, 1));
    EXPECT_FALSE(list.ItemFontStrikethrough(1, 1));
    EXPECT_EQ(list.ItemFontSize(1, 1), 9.75F);
    EXPECT_EQ(list.ItemFontName(1, 1), u"Verdana");
    EXPECT_TRUE(list.ItemTag(1, 1).isEmpty());
    EXPECT_EQ(list.ItemObject(1, 1), nullptr);
    EXPECT_FALSE(list.ItemChecked(1, 1));
    EXPECT_EQ(list.ItemToolTip(1, 1), u"");
}

TEST_F(ControlCore, TheCellsTextWidthIsZeroUntilPainted) {
    addColumns({50});
    list.letAutoRedraw(false);
    addRows(1, u"text");
    EXPECT_EQ(list.ItemTextWidth(1, 1), 0);
    list.Redraw();
    EXPECT_EQ(list.ItemTextWidth(1, 1), surface().textWidth(u"text"));
}

TEST_F(ControlCore, CheckForRedrawHonoursAutoRedrawAndDesignMode) {
    EXPECT_EQ(paintsOf([&] { inside.CheckForRedraw(); }), 1);
    list.letAutoRedraw(false);
    EXPECT_EQ(paintsOf([&] { inside.CheckForRedraw(); }), 0);
    host.userMode = false;
    EXPECT_EQ(paintsOf([&] { inside.CheckForRedraw(); }), 1);
    inside.holdPainting(true);
    EXPECT_EQ(paintsOf([&] { inside.CheckForRedraw(); }), 1) << "the design view ignores the flag";
    host.userMode = true;
    list.letAutoRedraw(true);
    EXPECT_EQ(paintsOf([&] { inside.CheckForRedraw(); }), 0) << "the run-time pass does not";
}

TEST_F(ControlCore, TimersWaitWithTheirIntervalOfOneMillisecond) {
    for (Timer* timer : {&inside.mouseInTimer(), &inside.mouseActionTimer()}) {
        EXPECT_EQ(timer->Interval(), 1);
        EXPECT_FALSE(timer->Enabled());
    }
}

TEST_F(ControlCore, AnInstanceWithoutSavedStateHasItsInteractionFieldsAtZero) {
    TestHost otherHost;
    RecordingEvents otherEvents;
    lmListView other(desktop, otherHost, otherEvents);
    other.UserControl_InitProperties();
    ListViewInspector look(other);
    EXPECT_TRUE(says(look.header(), "pressed=1 divider=1"));
    EXPECT_TRUE(says(look.sort(), "column=1"));
    EXPECT_TRUE(says(look.selection(), "anchor=1 selects=no"));
}

TEST_F(ControlCore, CopiesOfARecordShareTheirCells) {
    addColumns({50});
    addRows(1, u"a");
    RowRecord copy = inside.rows()[0];
    copy.items[0].letText(u"b");
    EXPECT_EQ(list.ItemText(1, 1), u"b");
    addColumns({50});
    EXPECT_EQ(copy.items.count(), 2U) << "a cell added through one shows in all";
    EXPECT_TRUE(copy.items.sharesWith(inside.rows()[0].items));
}

TEST_F(ControlCore, SilencedFailuresStaySilentAndGoOn) {
    addColumns({50});
    Error().letSilentError(true);
    EXPECT_EQ(list.ItemText(9, 9), u"");
    list.letItemText(9, 9, u"x");
    Error().letSilentError(false);
    EXPECT_EQ(reportCount(), 0U);
}

} // namespace lumtex::testing
