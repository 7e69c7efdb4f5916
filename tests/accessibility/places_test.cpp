/// Where elements lie, and what lies at a place.
#include "spoken_list.h"

namespace lumtex::testing {
namespace {

using namespace accessibility;

class Places : public SpokenList {
  protected:
    /// The element at the middle of where `element` says it is.
    std::string hit(const Element& element) {
        const std::optional<Rect> place = spoken.place(element);
        if (!place)
            return "none";
        return named(spoken.at((place->Left + place->Right) / 2, (place->Top + place->Bottom) / 2));
    }
};

TEST_F(Places, AreThoseOfTheLastPass) {
    addCities();
    const Long head = inside.core().painting->ColumnHeight();
    EXPECT_EQ(place(theList), "0,0 300x200");
    EXPECT_EQ(place(theHeaders), "0,0 300x" + std::to_string(head));
    EXPECT_EQ(place(headerElement(2)), "100,0 60x" + std::to_string(head));
    EXPECT_EQ(place(rowElement(1)), "0," + std::to_string(head) + " 280x20");
    EXPECT_EQ(place(rowElement(3)), "0," + std::to_string(head + 40) + " 280x20");
    EXPECT_EQ(place(cellElement(2, 2)), "100," + std::to_string(head + 20) + " 60x20");
    EXPECT_EQ(place(cellElement(2, 3)), "160," + std::to_string(head + 20) + " 120x20");
}

TEST_F(Places, AreWhereThePressFindsThem) {
    addCities();
    for (const Element& element : {cellElement(1, 1), cellElement(3, 3), headerElement(1), headerElement(3)})
        EXPECT_EQ(hit(element), named(element));
    const std::optional<Rect> cell = spoken.place(cellElement(2, 3));
    ASSERT_TRUE(cell);
    desktop.move(window(), static_cast<Single>(cell->Left), static_cast<Single>(cell->Bottom - 1));
    desktop.advance(std::chrono::milliseconds(2));
    desktop.click();
    EXPECT_EQ(list.RowIndex(), 2);
    EXPECT_EQ(list.ColumnIndex(), 3);
}

TEST_F(Places, AreNoneBehindTheEdgesAndUnderTheBars) {
    addCities();
    addRows(30, u"Porto,868,Portugal");
    list.letColumnWidth(3, 6000);
    settle();
    EXPECT_EQ(place(rowElement(33)), "none");
    EXPECT_NE(states(rowElement(33)).find("offscreen"), std::string::npos);
    const std::optional<Rect> bar = spoken.place(verticalBar);
    const std::optional<Rect> foot = spoken.place(horizontalBar);
    ASSERT_TRUE(bar && foot);
    EXPECT_EQ(spoken.place(rowElement(2))->Right, bar->Left);
    Long last = 1;
    while (spoken.place(rowElement(last + 1)))
        ++last;
    EXPECT_EQ(spoken.place(rowElement(last))->Bottom, foot->Top);
    for (Long number = 1; number <= 3; ++number)
        for (const Element& of : {verticalBar, horizontalBar})
            EXPECT_EQ(hit(spoken.child(of, number)), named(spoken.child(of, number)));
    EXPECT_EQ(named(spoken.at(bar->Left + 1, bar->Bottom - 20)), "vertical bar");
    EXPECT_EQ(named(spoken.at(299, 199)), "list") << "the corner between the bars";
}

TEST_F(Places, FollowTheBars) {
    addCities();
    addRows(30, u"Porto,868,Portugal");
    list.letColumnWidth(3, 6000);
    settle();
    const std::string first = place(rowElement(1));
    list.letTopIndex(5);
    list.Redraw();
    EXPECT_EQ(place(rowElement(1)), "none");
    EXPECT_EQ(place(rowElement(6)), first);
    EXPECT_TRUE(spoken.scrollTo(headerElement(3)));
    EXPECT_EQ(place(cellElement(6, 1)), "none");
    EXPECT_EQ(hit(cellElement(6, 3)), "cell 6,3");
    EXPECT_TRUE(spoken.scrollTo(cellElement(1, 1)));
    EXPECT_EQ(place(rowElement(1)), first);
    EXPECT_EQ(hit(cellElement(1, 1)), "cell 1,1");
}

TEST_F(Places, OfHiddenColumnsAreNone) {
    addCities();
    list.letColumnWidth(2, 0);
    settle();
    EXPECT_EQ(place(cellElement(1, 2)), "none");
    EXPECT_EQ(states(cellElement(1, 2)), "invisible selectable");
    EXPECT_EQ(states(headerElement(2)), "invisible");
    EXPECT_EQ(spoken.place(cellElement(1, 3))->Left, 100);
}

TEST_F(Places, OfACheckBoxAreItsPixels) {
    addCities();
    list.letStyle(cCheckBoxes);
    list.letColumnCheckBoxes(2, true);
    list.letItemText(2, 2, u"");
    list.letItemText(1, 2, u"");
    for (const cItemAlign alignment : {cItemLeft, cItemCenter, cItemRight}) {
        list.letItemIconAlignment(2, 2, alignment);
        list.letItemChecked(2, 2, false);
        settle();
        const Bitmap before = desktop.screenshot(window());
        list.letItemChecked(2, 2, true);
        settle();
        const Bitmap after = desktop.screenshot(window());
        Rect changed{10000, 10000, 0, 0};
        for (Long y = 0; y < 200; ++y)
            for (Long x = 0; x < 300; ++x)
                if (before.at(x, y) != after.at(x, y))
                    changed = {std::min(changed.Left, x),
                               std::min(changed.Top, y),
                               std::max(changed.Right, x + 1),
                               std::max(changed.Bottom, y + 1)};
        const std::optional<Rect> box = spoken.place(checkBoxElement(2, 2));
        ASSERT_TRUE(box);
        ASSERT_LT(changed.Left, changed.Right);
        EXPECT_LE(box->Left, changed.Left);
        EXPECT_LE(box->Top, changed.Top);
        EXPECT_GE(box->Right, changed.Right);
        EXPECT_GE(box->Bottom, changed.Bottom);
        EXPECT_EQ(box->Right - box->Left, 13);
        EXPECT_EQ(hit(checkBoxElement(2, 2)), "box 2,2");
    }
}

TEST_F(Places, OfTheEditorAreThoseOfItsBox) {
    addCities();
    list.SetEdit(2, 2);
    EXPECT_EQ(inWords(spoken.place(theEditor)), inWords(std::optional(areaOf(inside.editor()))));
    EXPECT_EQ(hit(theEditor), "editor");
}

TEST_F(Places, SomeAreWindowsOfTheirOwn) {
    addCities();
    EXPECT_EQ(spoken.window(verticalBar), 0) << "there is none";
    for (int row = 0; row < 30; ++row)
        list.RowsAdd(Long{-1}, u",", u"Porto,868,Portugal");
    settle();
    list.SetEdit(2, 2);
    EXPECT_EQ(spoken.window(theList), list.hwnd());
    EXPECT_EQ(spoken.window(verticalBar), inside.vertical().window().hWnd());
    EXPECT_EQ(spoken.window({Kind::lowArrow}), inside.vertical().lowArrow().hWnd());
    EXPECT_EQ(spoken.window({Kind::thumb}), inside.vertical().thumb().hWnd());
    EXPECT_EQ(spoken.window({Kind::highArrow}), inside.vertical().highArrow().hWnd());
    EXPECT_EQ(spoken.window(theEditor), inside.editor().hWnd());
    for (const Element& painted : {rowElement(1), cellElement(1, 1), theHeaders, headerElement(1)})
        EXPECT_EQ(spoken.window(painted), 0) << named(painted);
}

TEST_F(Places, OutsideTheListAreNothing) {
    addCities();
    EXPECT_EQ(spoken.at(-1, 10), nothing);
    EXPECT_EQ(spoken.at(300, 10), nothing);
    EXPECT_EQ(spoken.at(10, 199), theList);
    EXPECT_EQ(spoken.at(290, 5), theHeaders);
    list.window().letVisible(false);
    EXPECT_EQ(place(rowElement(1)), "none");
    EXPECT_EQ(spoken.at(10, 30), nothing);
}

} // namespace
} // namespace lumtex::testing
