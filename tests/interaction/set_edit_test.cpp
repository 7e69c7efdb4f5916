#include "played_list.h"

namespace lumtex::testing {

class SetEdit : public PlayedList {
  protected:
    void edit(const Variant& row, const Variant& column) { list.SetEdit(row, column); }
};

TEST_F(SetEdit, PutsTheBoxOverTheCell) {
    fill(3, {60, 70});
    edit(2, 2);
    const headless::HeadlessTextBox& box = inside.editor();
    EXPECT_TRUE(box.Visible());
    EXPECT_TRUE(box.TabStop());
    EXPECT_EQ(box.Top(), rowTop(2));
    EXPECT_EQ(box.Height(), 20);
    EXPECT_EQ(box.Left(), 61) << "one pixel right of the stored Left";
    EXPECT_EQ(box.Width(), 69) << "the column less one pixel";
    EXPECT_EQ(desktop.focused(), list.hwndEdit());
    EXPECT_EQ(box.Text(), u"2b");
    EXPECT_EQ(box.SelStart(), 0);
    EXPECT_EQ(box.SelLength(), 2);
    EXPECT_TRUE(says(inside.edit(), "active=yes row=2 column=2"));
    EXPECT_EQ(takenNames(), Lines{});
}

TEST_F(SetEdit, CountsTheScrolledPixels) {
    fill(3, {200, 200});
    inside.horizontal().letValue(35);
    edit(1, 2);
    EXPECT_EQ(inside.editor().Left(), 200 - 35 + 1);
}

TEST_F(SetEdit, TrustsTheStoredLeftOfTheColumn) {
    fill(3);
    inside.columns()[1]->Left = 30 * 15;
    edit(1, 2);
    EXPECT_EQ(inside.editor().Left(), 31);
}

// Wanted: the background is not copied.
TEST_F(SetEdit, DressesTheBoxAsTheCell) {
    fill(2);
    list.letItemFontBold(1, 1, true);
    list.letItemFontItalic(1, 1, true);
    list.letItemFontUnderline(1, 1, true);
    list.letItemFontName(1, 1, u"Courier");
    list.letItemFontSize(1, 1, 14);
    list.letItemFontStrikethrough(1, 1, true);
    list.letItemForeColor(1, 1, 0x123456);
    list.letItemBackColor(1, 1, OLE_COLOR{0x654321});
    edit(1, 1);
    const FontSpec& font = inside.editor().font();
    EXPECT_TRUE(font.Bold);
    EXPECT_TRUE(font.Italic);
    EXPECT_TRUE(font.Underline);
    EXPECT_TRUE(font.Strikethrough);
    EXPECT_EQ(font.Name, u"Courier");
    EXPECT_EQ(font.Size, 14);
    EXPECT_EQ(inside.editor().ForeColor(), 0x123456U);
    edit(2, 1);
    EXPECT_FALSE(inside.editor().font().Bold);
    EXPECT_EQ(inside.editor().ForeColor(), 0U);
}

/// The procedures that reported, in order.
class SetEditReports : public SetEdit {
  protected:
    Lines reports() {
        Lines names;
        while (reportCount() > 0) {
            names.insert(names.begin(), lastReport());
            desktop.runtime().boxes.pop_back();
        }
        return names;
    }
};

TEST_F(SetEditReports, AnInvalidCellFailsInEachStatementInOrderAndTheNumbersAreStored) {
    fill(2);
    edit(1, 9);
    EXPECT_EQ(reports(),
              (Lines{"9 ItemFontBold",
                     "9 ItemFontItalic",
                     "9 ItemFontUnderline",
                     "9 ItemFontName",
                     "9 ItemFontSize",
                     "9 ItemFontStrikethrough",
                     "9 ItemForeColor",
                     "9 ItemText",
                     "9 SetEdit",
                     "9 SetEdit"}));
    EXPECT_TRUE(says(inside.edit(), "row=1 column=9"));
    EXPECT_TRUE(inside.editor().Visible());
}

TEST_F(SetEditReports, WhatIsNoNumberLeavesTheRememberedCell) {
    fill(2);
    inside.letLastClick(1, 0);
    edit(u"x", 1);
    EXPECT_EQ(reports().front(), "13 SetEdit");
    EXPECT_TRUE(says(inside.edit(), "row=2 column=1"));
    EXPECT_EQ(list.TopIndex(), 0);
}

// Wanted: a number counted from 1 against a top row counted from 0, and the way down goes past the row.
TEST_F(SetEdit, BringsTheRowIntoViewByItsOddNumbers) {
    struct Row {
        const char* name;
        Long top;
        Long row;
        Long after;
    };
    fill(40);
    const Long visible = inside.VisibleItems();
    const Row rows[] = {
        {"above", 20, 10, 10},
        {"the row above the top one", 20, 20, 20},
        {"the top row", 20, 21, 20},
        {"the last one that shows", 20, 20 + visible, 20},
        {"the next one", 20, 21 + visible, 21 + 2 * visible},
        {"far below", 0, 38, 39},
    };
    for (const Row& row : rows) {
        list.letTopIndex(row.top);
        edit(row.row, 1);
        EXPECT_EQ(list.TopIndex(), row.after) << row.name;
    }
}

TEST_F(SetEdit, OnARowNeverPaintedHasNeitherTopNorHeight) {
    list.letAutoRedraw(false);
    fill(40);
    list.letRowsDynamic(true);
    edit(3, 1);
    EXPECT_EQ(inside.editor().Top(), 0);
    EXPECT_EQ(inside.editor().Height(), 0);
}

TEST_F(SetEdit, UsesThePlaceOfTheLastPaintAfterItsOwnScrolling) {
    fill(40);
    list.letAutoRedraw(false);
    list.letTopIndex(10);
    list.Redraw();
    const Single painted = rowTop(11);
    edit(11, 1);
    EXPECT_EQ(inside.editor().Top(), painted);
    edit(3, 1);
    EXPECT_EQ(list.TopIndex(), 3);
    EXPECT_EQ(inside.editor().Top(), inside.rows()[2].Top);
}

TEST_F(SetEdit, AsksForNoPermission) {
    fill(2);
    ASSERT_FALSE(list.AllowEdit());
    ASSERT_FALSE(list.ItemAllowEdit(1, 1));
    edit(1, 1);
    EXPECT_TRUE(inside.editor().Visible());
}

TEST_F(SetEdit, TypingReplacesTheTextAndEnterStoresIt) {
    fill(2);
    edit(2, 1);
    desktop.type(u"hello");
    EXPECT_EQ(text(2, 1), "2a");
    desktop.type(u"\r");
    EXPECT_EQ(text(2, 1), "hello");
    EXPECT_EQ(taken(), Lines{"ItemChanged Row=2 Column=1 NewValue=hello"});
    EXPECT_FALSE(inside.editor().Visible());
    EXPECT_FALSE(inside.editor().TabStop());
    EXPECT_TRUE(says(inside.edit(), "active=no"));
}

TEST_F(SetEdit, EscapeHasNoMeaning) {
    fill(2);
    edit(2, 1);
    desktop.type(u"x\x1B");
    EXPECT_TRUE(inside.editor().Visible());
    EXPECT_EQ(text(2, 1), "2a");
}

TEST_F(SetEdit, AfterEnterAPressInTheListStoresNothingMore) {
    fill(2);
    edit(2, 1);
    desktop.type(u"x\r");
    taken();
    press(cell(1, 2));
    EXPECT_EQ(takenNames(), (Lines{"ItemDown", "MouseDown"}));
}

TEST_F(SetEdit, AFocusThatMovesAwayThrowsTheTypingAway) {
    fill(2);
    edit(2, 1);
    desktop.type(u"x");
    list.window().setFocus();
    EXPECT_FALSE(inside.editor().Visible());
    EXPECT_EQ(text(2, 1), "2a");
    EXPECT_EQ(inside.editor().Text(), u"x");
    EXPECT_EQ(takenNames(), Lines{});
}

TEST_F(SetEdit, APaintOfASelectedRowTakesTheBoxAlong) {
    fill(40);
    list.letListIndex(4);
    edit(5, 1);
    EXPECT_EQ(inside.editor().Top(), rowTop(5));
    list.letTopIndex(2);
    EXPECT_TRUE(inside.editor().Visible());
    EXPECT_EQ(inside.editor().Top(), rowTop(5) + 1);
    list.letListIndex(-1);
    list.letTopIndex(0);
    EXPECT_EQ(inside.editor().Top(), headerHeight() + 2 * rowHeight + 1) << "no selected row, no move";
}

TEST_F(SetEdit, OpensAgainOverAnotherCellWithoutStoring) {
    fill(2);
    edit(1, 1);
    desktop.type(u"lost");
    edit(2, 2);
    EXPECT_EQ(inside.editor().Text(), u"2b");
    EXPECT_EQ(text(1, 1), "1a");
    EXPECT_EQ(takenNames(), Lines{});
}

} // namespace lumtex::testing
