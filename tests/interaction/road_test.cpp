#include "log_comparison.h"
#include "played_list.h"

namespace lumtex::testing {

/// Whole gestures, with every event that a host sees, in order.
class RoadOfOneClick : public PlayedList {};

TEST_F(RoadOfOneClick, OnACell) {
    fill(3);
    click(cell(3, 1));
    EXPECT_TRUE(sameLog(takenNames(), {"ItemDown", "MouseDown", "MouseUp", "ItemUp", "ItemClick", "Click"}));
}

TEST_F(RoadOfOneClick, OnACellUnderClickOnIndexChange) {
    fill(3);
    list.letClickOnIndexChange(true);
    click(cell(3, 1));
    EXPECT_TRUE(
        sameLog(takenNames(), {"Click", "ItemDown", "MouseDown", "MouseUp", "ItemUp", "ItemClick", "Click"}));
}

TEST_F(RoadOfOneClick, OnACheckBox) {
    fill(3);
    click({10, rowTop(2) + 8});
    EXPECT_TRUE(sameLog(
        takenNames(),
        {"ItemCheck", "ItemChecked", "ItemDown", "MouseDown", "MouseUp", "ItemUp", "ItemClick", "Click"}));
}

TEST_F(RoadOfOneClick, OnACheckBoxThatTheHostCancels) {
    fill(3);
    events.cancelCheck = true;
    click({10, rowTop(2) + 8});
    EXPECT_TRUE(sameLog(takenNames(),
                        {"ItemCheck", "ItemDown", "MouseDown", "MouseUp", "ItemUp", "ItemClick", "Click"}));
}

TEST_F(RoadOfOneClick, ThatOpensTheEditorAndOneThatStoresIt) {
    fill(3);
    list.letAllowEdit(true);
    list.letItemAllowEdit(2, 2, true);
    click(cell(2, 2));
    taken();
    click(cell(2, 2));
    EXPECT_TRUE(sameLog(takenNames(), {"MouseDown", "MouseUp", "ItemUp", "ItemClick", "Click"}));
    desktop.type(u"new");
    EXPECT_TRUE(sameLog(takenNames(), {})) << "keys go to the box";
    click(cell(1, 1));
    EXPECT_TRUE(sameLog(takenNames(),
                        {"ItemChanged", "ItemDown", "MouseDown", "MouseUp", "ItemUp", "ItemClick", "Click"}));
    EXPECT_EQ(text(2, 2), "new");
}

TEST_F(RoadOfOneClick, OnASortableHeader) {
    fill(3);
    list.letColumnAllowSorting(1, true);
    click(header(1));
    EXPECT_TRUE(sameLog(takenNames(), {"MouseDown", "ColumnClick", "SortDone", "MouseUp", "Click"}));
}

TEST_F(RoadOfOneClick, PaintsTheNewSelectionBeforeItemDown) {
    fill(3);
    std::uint32_t seen = 0;
    events.on("ItemDown", [&] { seen = pixel(50, static_cast<Long>(rowTop(3) + 17)); });
    press(cell(3, 1));
    EXPECT_EQ(seen, rgbOf(inside.aktValueColor()));
}

TEST_F(RoadOfOneClick, StateStandsBeforeEachEventIsRaised) {
    fill(3);
    Lines seen;
    for (const char* name :
         {"ItemCheck", "ItemChecked", "ItemDown", "MouseDown", "MouseUp", "ItemUp", "ItemClick"}) {
        events.on(name, [&, name] {
            seen.push_back(std::string(name) + " " + selection() +
                           " checked=" + (list.ItemChecked(2, 1) ? "1" : "0") +
                           " held=" + (says(inside.selection(), "selects=yes") ? "0" : "1") + " last " +
                           inside.edit().substr(0, inside.edit().find(' ')));
        });
    }
    click({10, rowTop(2) + 8});
    EXPECT_TRUE(sameLog(seen,
                        {"ItemCheck index=2 selected=2 checked=0 held=1 last row=1",
                         "ItemChecked index=2 selected=2 checked=1 held=1 last row=1",
                         "ItemDown index=2 selected=2 checked=1 held=1 last row=2",
                         "MouseDown index=2 selected=2 checked=1 held=0 last row=2",
                         "MouseUp index=2 selected=2 checked=1 held=0 last row=2",
                         "ItemUp index=2 selected=2 checked=1 held=0 last row=2",
                         "ItemClick index=2 selected=2 checked=1 held=0 last row=2"}));
}

TEST_F(RoadOfOneClick, EventsInsideAYieldStandIndented) {
    fill(3);
    hover(cell(1, 1));
    // The press yields when it reads the current row; another key comes in just there.
    desktop.onYield([&] { desktop.postKeyDown('X'); });
    list.window().setFocus();
    desktop.postPress();
    desktop.run();
    EXPECT_TRUE(sameLog(takenNames(), {"  KeyDown", "  KeyPress", "ItemDown", "MouseDown"}));
}

} // namespace lumtex::testing
