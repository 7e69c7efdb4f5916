#include "played_list.h"
#include "test_object.h"

#include <sstream>

namespace lumtex::testing {

class Forwards : public PlayedList {};

TEST_F(Forwards, ADoubleClickTellsTheCellOfTheLastPress) {
    fill(3);
    hover(cell(2, 2));
    desktop.doubleClick();
    EXPECT_EQ(takenNames(),
              (Lines{"ItemDown",
                     "MouseDown",
                     "MouseUp",
                     "ItemUp",
                     "ItemClick",
                     "Click",
                     "DblClick",
                     "ItemDblClick",
                     "MouseUp",
                     "ItemUp",
                     "ItemClick"}));
    list.UserControl_DblClick();
    EXPECT_EQ(taken(), (Lines{"DblClick", "ItemDblClick Row=2 Column=2"}));
}

TEST_F(Forwards, TheHostHearsOfADoubleClickBeforeTheEditorOpens) {
    fill(3);
    click(cell(2, 2));
    bool openInEvent = true;
    events.on("ItemDblClick", [&] {
        openInEvent = inside.editor().Visible();
        list.letItemAllowEdit(2, 2, true);
    });
    list.UserControl_DblClick();
    EXPECT_FALSE(openInEvent);
    EXPECT_TRUE(inside.editor().Visible()) << "the permission came in the event";
}

TEST_F(Forwards, ADoubleClickBeforeAnyCellWasPressedTellsNoCell) {
    fill(3);
    list.UserControl_DblClick();
    EXPECT_EQ(taken(), Lines{"DblClick"});
    inside.letLastClick(-1, 0);
    list.UserControl_DblClick();
    EXPECT_EQ(taken(), Lines{"DblClick"});
}

// Wanted: opens the editor by the cell's permission alone, whatever AllowEdit says.
TEST_F(Forwards, ADoubleClickOpensTheEditorByTheCellsPermissionAlone) {
    fill(3);
    ASSERT_FALSE(list.AllowEdit());
    list.letItemAllowEdit(2, 2, true);
    hover(cell(1, 1));
    desktop.doubleClick();
    EXPECT_FALSE(inside.editor().Visible());
    hover(cell(2, 2));
    desktop.doubleClick();
    EXPECT_TRUE(inside.editor().Visible());
    EXPECT_EQ(inside.editor().Text(), u"2b");
    EXPECT_EQ(desktop.focused(), list.hwndEdit());
}

TEST_F(Forwards, TheSixDragEventsGoOnAsTheyCome) {
    const DragData data = std::make_shared<TestObject>();
    Long Effect = 1;
    Integer Button = 1;
    Integer Shift = 2;
    Single X = 3;
    Single Y = 4;
    Integer State = 5;
    bool DefaultCursors = true;
    Integer DataFormat = 13;
    UserControl& control = list;
    control.UserControl_OLECompleteDrag(Effect);
    control.UserControl_OLEDragDrop(data, Effect, Button, Shift, X, Y);
    control.UserControl_OLEDragOver(data, Effect, Button, Shift, X, Y, State);
    control.UserControl_OLEGiveFeedback(Effect, DefaultCursors);
    control.UserControl_OLESetData(data, DataFormat);
    control.UserControl_OLEStartDrag(data, Effect);
    EXPECT_EQ(taken(),
              (Lines{"OLECompleteDrag Effect=1",
                     "OLEDragDrop Data=True Effect=1 Button=1 Shift=2 X=3 Y=4",
                     "OLEDragOver Data=True Effect=1 Button=1 Shift=2 X=3 Y=4 State=5",
                     "OLEGiveFeedback Effect=1 DefaultCursors=True",
                     "OLESetData Data=True DataFormat=13",
                     "OLEStartDrag Data=True AllowedEffects=1"}));
}

/// Raises each argument that it may change by one.
class AnsweringEvents final : public lmListViewEvents {
  public:
    void OLECompleteDrag(Long& Effect) override { raise(Effect); }
    void OLEDragDrop(
        DragData& /*Data*/, Long& Effect, Integer& Button, Integer& Shift, Single& X, Single& Y) override {
        raise(Effect, Button, Shift, X, Y);
    }
    void OLEDragOver(DragData& /*Data*/,
                     Long& Effect,
                     Integer& Button,
                     Integer& Shift,
                     Single& X,
                     Single& Y,
                     Integer& State) override {
        raise(Effect, Button, Shift, X, Y, State);
    }
    void OLEGiveFeedback(Long& Effect, bool& DefaultCursors) override {
        raise(Effect);
        DefaultCursors = false;
    }
    void OLESetData(DragData& /*Data*/, Integer& DataFormat) override { raise(DataFormat); }
    void OLEStartDrag(DragData& /*Data*/, Long& AllowedEffects) override { raise(AllowedEffects); }

  private:
    template <class... Numbers>
    static void raise(Numbers&... numbers) {
        (++numbers, ...);
    }
};

TEST_F(Forwards, WhatAHostChangesComesBackToThePlatform) {
    AnsweringEvents answering;
    lmListView answered(desktop, host, answering);
    UserControl& control = answered;
    const DragData data = std::make_shared<TestObject>();
    Long Effect = 0;
    Integer Button = 10;
    Integer Shift = 20;
    Single X = 30;
    Single Y = 40;
    Integer State = 50;
    const auto shown = [&] {
        std::ostringstream text;
        text << Effect << ' ' << Button << ' ' << Shift << ' ' << X << ' ' << Y << ' ' << State;
        return text.str();
    };
    control.UserControl_OLEDragDrop(data, Effect, Button, Shift, X, Y);
    EXPECT_EQ(shown(), "1 11 21 31 41 50");
    control.UserControl_OLEDragOver(data, Effect, Button, Shift, X, Y, State);
    EXPECT_EQ(shown(), "2 12 22 32 42 51");
    control.UserControl_OLECompleteDrag(Effect);
    EXPECT_EQ(Effect, 3);
    bool DefaultCursors = true;
    control.UserControl_OLEGiveFeedback(Effect, DefaultCursors);
    EXPECT_EQ(Effect, 4);
    EXPECT_FALSE(DefaultCursors);
    Integer DataFormat = 1;
    control.UserControl_OLESetData(data, DataFormat);
    EXPECT_EQ(DataFormat, 2);
    control.UserControl_OLEStartDrag(data, Effect);
    EXPECT_EQ(Effect, 5);
}

TEST_F(Forwards, OnlyTheAutomaticDragModeAllowsCopyAndMove) {
    for (const Integer mode : {0, 1, 2, 3}) {
        list.letOLEDragMode(mode);
        Long AllowedEffects = 1;
        list.UserControl_OLEStartDrag(nullptr, AllowedEffects);
        EXPECT_EQ(AllowedEffects, mode == 2 ? 3 : 1) << mode;
    }
}

} // namespace lumtex::testing
