/// A list in a real window, driven by the system's own input.
#include "win32_list.h"

namespace lumtex::testing {
namespace {

using Lines = std::vector<std::string>;

TEST_F(Win32List, IsAVisibleChildOfTheProgramsWindow) {
    EXPECT_EQ(GetParent(win32::toHWND(listWindow())), program->get());
    EXPECT_TRUE(IsWindowVisible(win32::toHWND(listWindow())));
    RECT area{};
    GetWindowRect(win32::toHWND(listWindow()), &area);
    EXPECT_EQ(area.left, 150);
    EXPECT_EQ(area.top, 150);
    EXPECT_EQ(area.right - area.left, 300);
    EXPECT_EQ(area.bottom - area.top, 200);
}

TEST_F(Win32List, TellsTheWholeRoadOfAClick) {
    fill(5);
    moveTo(30, 35);
    EXPECT_EQ(take(), Lines{"MouseMove Button=0 Shift=0 X=30 Y=35"});
    moveTo(30, 55);
    mouse.press();
    EXPECT_EQ(take(),
              (Lines{"MouseMove Button=0 Shift=0 X=30 Y=55",
                     "ItemDown Row=2 Column=1",
                     "MouseDown Button=1 Shift=0 X=30 Y=55"}));
    EXPECT_EQ(list->ListIndex(), 1);
    mouse.release();
    EXPECT_EQ(take(),
              (Lines{"MouseMove Button=0 Shift=0 X=30 Y=55",
                     "MouseUp Button=1 Shift=0 X=30 Y=55",
                     "ItemUp Row=2 Column=1",
                     "ItemClick Row=2 Column=1",
                     "Click"}));
}

TEST_F(Win32List, TakesTheFocusWithAPressAndThenTheKeys) {
    fill(5);
    moveTo(30, 35);
    mouse.press();
    mouse.release();
    EXPECT_EQ(GetFocus(), win32::toHWND(listWindow()));
    take();
    strike(runtime, VK_DOWN);
    EXPECT_EQ(take(), (Lines{"KeyDown KeyCode=40 Shift=0", "KeyUp KeyCode=40 Shift=0"}));
    EXPECT_EQ(list->ListIndex(), 1);
    strike(runtime, 'A');
    EXPECT_EQ(take(),
              (Lines{"KeyDown KeyCode=65 Shift=0", "KeyPress KeyAscii=97", "KeyUp KeyCode=65 Shift=0"}));
}

TEST_F(Win32List, TellsOfMovesOutsideWhileAButtonIsDown) {
    fill(5);
    moveTo(30, 35);
    mouse.press();
    take();
    moveTo(-10, -20);
    EXPECT_EQ(take(), Lines{"MouseMove Button=1 Shift=0 X=-10 Y=-20"});
    mouse.release();
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_EQ(take(), Lines{"MouseUp Button=1 Shift=0 X=-10 Y=-20"});
}

TEST_F(Win32List, ShowsOnTheScreenWhatIsOnItsSurface) {
    fill(5);
    list->Redraw();
    runtime.DoEvents();
    const Bitmap drawn = list->window().surface().image();
    HDC screen = GetDC(win32::toHWND(listWindow()));
    int differences = 0;
    for (int y = 0; y < 180; y += 7) {
        for (int x = 0; x < 280; x += 5) {
            const COLORREF shown = GetPixel(screen, x, y);
            const std::uint32_t pixel = drawn.at(x, y);
            const COLORREF expected = RGB((pixel >> 16U) & 0xFFU, (pixel >> 8U) & 0xFFU, pixel & 0xFFU);
            differences += shown != expected ? 1 : 0;
        }
    }
    ReleaseDC(win32::toHWND(listWindow()), screen);
    EXPECT_EQ(differences, 0);
}

TEST_F(Win32List, OpensItsEditorAndTakesWhatIsTyped) {
    fill(5);
    list->SetEdit(Long{2}, Long{1});
    runtime.DoEvents();
    HWND editor = win32::toHWND(list->hwndEdit());
    ASSERT_TRUE(IsWindowVisible(editor));
    EXPECT_EQ(GetFocus(), editor);
    take();
    strike(runtime, 'N');
    strike(runtime, 'O');
    strike(runtime, VK_RETURN);
    EXPECT_EQ(list->ItemText(Long{2}, Long{1}), u"no");
    EXPECT_FALSE(IsWindowVisible(editor));
    // The key goes up in the list, which has the focus by then.
    EXPECT_EQ(take(), (Lines{"ItemChanged Row=2 Column=1 NewValue=no", "KeyUp KeyCode=13 Shift=0"}));
}

TEST_F(Win32List, DropsTheEditWhenAnotherWindowTakesTheFocus) {
    fill(5);
    list->SetEdit(Long{2}, Long{1});
    strike(runtime, 'N');
    SetFocus(program->get());
    runtime.DoEvents();
    EXPECT_FALSE(IsWindowVisible(win32::toHWND(list->hwndEdit())));
    EXPECT_EQ(list->ItemText(Long{2}, Long{1}), u"x");
}

TEST_F(Win32List, LivesOnWithoutItsWindowWhenTheProgramTakesThatAway) {
    fill(5);
    moveTo(30, 35);
    mouse.press();
    DestroyWindow(win32::toHWND(listWindow()));
    EXPECT_EQ(listWindow(), 0);
    list->letItemText(Long{1}, Long{1}, u"still here");
    list->Redraw();
    list->SetEdit(Long{1}, Long{1});
    list->window().letVisible(false);
    list->window().place(0, 0, 50, 60);
    runtime.DoEvents();
    EXPECT_EQ(list->ItemText(Long{1}, Long{1}), u"still here");
    EXPECT_EQ(list->window().Width(), 50);
}

TEST_F(Win32List, TakesASizeThatItsContainerGives) {
    fill(5);
    SetWindowPos(win32::toHWND(listWindow()), nullptr, 10, 20, 250, 150, SWP_NOZORDER);
    EXPECT_EQ(list->window().Left(), 10);
    EXPECT_EQ(list->window().Top(), 20);
    EXPECT_EQ(list->window().surface().scaleWidth(), 250);
    EXPECT_EQ(list->window().surface().scaleHeight(), 150);
}

TEST_F(Win32List, CanBeDestroyedInOneOfItsOwnEvents) {
    // The window alone goes; the list's object is its host's, which lets go of it later.
    fill(5);
    moveTo(30, 35);
    events.on("MouseDown", [this] { DestroyWindow(win32::toHWND(listWindow())); });
    mouse.press();
    EXPECT_EQ(listWindow(), 0);
    mouse.release();
    list.reset();
    EXPECT_TRUE(runtime.boxes.empty());
}

} // namespace
} // namespace lumtex::testing
