/// What no host should send: nothing crashes, the failure is reported, and the rest stays as it was.
#include "list_fixture.h"

#include <limits>

namespace lumtex::testing {
namespace {

class BadInput : public ListFixture {
  protected:
    BadInput() {
        addColumns({50, 50});
        addRows(2, u"a,b");
    }
};

TEST_F(BadInput, ATextOfTenMillionUnitsIsKeptAndPainted) {
    const String huge(10'000'000, u'\u0416');
    list.letAutoRedraw(false);
    list.letItemText(1, 2, huge);
    EXPECT_EQ(list.ItemText(1, 2).size(), huge.size());
    EXPECT_TRUE(list.ItemText(1, 2) == huge);
    list.RowsAdd(Long{0}, u",", huge);
    EXPECT_TRUE(list.ItemText(1, 1) == huge);
    EXPECT_EQ(list.ItemText(1, 2), u"");
    list.letColumnText(1, huge);
    EXPECT_TRUE(list.ColumnText(1) == huge);
    EXPECT_EQ(reportCount(), 0U);
}

TEST_F(BadInput, ARowOfAMillionSeparatorsFillsTheCellsThatThereAre) {
    list.RowsAdd(Long{-1}, u",", String(1'000'000, u','));
    EXPECT_EQ(list.ItemText(3, 1), u"");
    EXPECT_EQ(list.ItemText(3, 2), u"");
    EXPECT_EQ(inside.rows()[2].items.count(), 2U);
}

TEST_F(BadInput, ZeroCharactersAndHalfPairsAreTextLikeAnyOther) {
    const String zero(u"a\0b", 3);
    const String half{0xDC00, u'x', 0xD800};
    for (const String& text : {zero, half}) {
        list.letItemText(1, 1, text);
        list.letItemToolTip(1, 1, text);
        list.letItemTag(1, 1, Variant(text));
        list.letItemFontName(1, 1, text);
        list.letColumnText(1, text);
        list.letColumnKey(1, text);
        EXPECT_EQ(list.ItemText(1, 1), text);
        EXPECT_EQ(list.ItemToolTip(1, 1), text);
        EXPECT_EQ(list.ItemTag(1, 1), Variant(text));
        EXPECT_EQ(list.ItemFontName(1, 1), text);
        EXPECT_EQ(list.ColumnText(1), text);
        EXPECT_EQ(list.ColumnKey(1), text);
    }
    EXPECT_EQ(reportCount(), 0U);
}

TEST_F(BadInput, ASeparatorMayBeLongerThanTheTextAndHoldZeros) {
    list.RowsAdd(Long{-1}, String(u"\0\0", 2), String(u"x\0\0y", 4));
    EXPECT_EQ(list.ItemText(3, 1), u"x");
    EXPECT_EQ(list.ItemText(3, 2), u"y");
    list.RowsAdd(Long{-1}, String(1000, u','), u"x,y");
    EXPECT_EQ(list.ItemText(4, 1), u"x,y");
}

TEST_F(BadInput, AFontThatNoMachineCanDrawIsKeptAndPaintedSomehow) {
    for (const Single size : {0.0F,
                              -12.0F,
                              1e30F,
                              std::numeric_limits<Single>::infinity(),
                              std::numeric_limits<Single>::quiet_NaN()}) {
        list.letItemFontSize(1, 1, size);
        const Single kept = list.ItemFontSize(1, 1);
        EXPECT_TRUE(kept == size || (kept != kept && size != size));
        EXPECT_EQ(list.ItemText(2, 2), u"b");
    }
}

TEST_F(BadInput, EnumerationsTakeAnyNumberAndPaintingCopes) {
    for (const Long number : {-1, 3, std::numeric_limits<Long>::min(), std::numeric_limits<Long>::max()}) {
        list.letItemAlignment(1, 1, static_cast<cItemAlign>(number));
        list.letItemIconAlignment(1, 1, static_cast<cItemAlign>(number));
        list.letColumnAlignment(1, static_cast<cColumnHeaderAlign>(number));
        list.letColumnIconAlignment(1, static_cast<cColumnHeaderAlign>(number));
        list.letTextPosition(1, static_cast<cTextPosition>(number));
        list.letColorStyle(static_cast<cColorStyle>(number));
        list.letStyle(static_cast<cListViewStyle>(number));
        EXPECT_EQ(list.ItemAlignment(1, 1), number);
        EXPECT_EQ(list.ColumnAlignment(1), number);
        EXPECT_EQ(list.TextPosition(1), number);
        EXPECT_EQ(list.ColorStyle(), number);
    }
    EXPECT_EQ(list.RowsCount(), 2);
}

TEST_F(BadInput, ACellsColourMayBeAnythingAndOnlyPaintingMindsIt) {
    list.letAutoRedraw(false);
    for (const Variant& colour :
         {Variant(Null{}), Variant{}, Variant(u"red"), Variant(1e300), Variant(-1.5)}) {
        list.letItemBackColor(1, 1, colour);
        EXPECT_EQ(list.ItemBackColor(1, 1), colour);
    }
    EXPECT_EQ(reportCount(), 0U);
}

TEST_F(BadInput, ADisabledColourOutOfRangeIsReportedAndTheOldOneStays) {
    list.letItemForeColorDis(1, 1, Long{0x123456});
    struct Case {
        Variant colour;
        const char* report;
    };
    for (const auto& [colour, report] : {Case{Null{}, "94 ItemForeColorDis"},
                                         Case{u"def", "13 ItemForeColorDis"},
                                         Case{1e10, "6 ItemForeColorDis"},
                                         Case{Missing{}, "13 ItemForeColorDis"}}) {
        list.letItemForeColorDis(1, 1, colour);
        EXPECT_EQ(lastReport(), report);
        EXPECT_EQ(list.ItemForeColorDis(1, 1), Variant(Long{0x123456}));
    }
}

TEST_F(BadInput, TheCountOfCheckedCellsTakesAnyColumn) {
    list.letItemChecked(1, 1, true);
    for (const Long column : {std::numeric_limits<Long>::min(), -1, 0, 3, std::numeric_limits<Long>::max()})
        EXPECT_EQ(list.ItemsCheckedCount(column), 1);
    EXPECT_EQ(reportCount(), 0U);
}

} // namespace
} // namespace lumtex::testing
