/// Presses that reach a list together with the move that leads to them.
#include "win32_list.h"

namespace lumtex::testing {
namespace {

using Lines = std::vector<std::string>;

/// Aims at the middle of the second row.
class Win32EarlyPresses : public Win32List {
  protected:
    Win32EarlyPresses() {
        if (!list)
            return;
        fill(5);
        mouse.moveTo(listWindow(), -40, -40);
        runtime.DoEvents();
        take();
    }

    /// The pointer is there already, but nobody has been told.
    void postMoveAndPress() {
        mouse.moveTo(listWindow(), 30, 55);
        PostMessageW(target(), WM_MOUSEMOVE, 0, at);
        PostMessageW(target(), WM_LBUTTONDOWN, MK_LBUTTON, at);
    }
    /// The log without the moves: the system tells its own one besides.
    Lines takePresses() {
        Lines told = take();
        std::erase_if(told, [](const std::string& line) { return line.starts_with("MouseMove"); });
        return told;
    }
    HWND target() { return win32::toHWND(listWindow()); }

    static constexpr LPARAM at = MAKELPARAM(30, 55);
};

TEST_F(Win32EarlyPresses, OneOfAnotherProgramFindsItsCell) {
    postMoveAndPress();
    runtime.DoEvents();
    EXPECT_EQ(takePresses(), (Lines{"ItemDown Row=2 Column=1", "MouseDown Button=1 Shift=0 X=30 Y=55"}));
    EXPECT_EQ(runtime.boxes, std::vector<String>{});
    SendMessageW(target(), WM_LBUTTONUP, 0, at);
}

TEST_F(Win32EarlyPresses, AWholeClickOfAnotherProgramKeepsItsOrder) {
    postMoveAndPress();
    PostMessageW(target(), WM_LBUTTONUP, 0, at);
    runtime.DoEvents();
    EXPECT_EQ(takePresses(),
              (Lines{"ItemDown Row=2 Column=1",
                     "MouseDown Button=1 Shift=0 X=30 Y=55",
                     "MouseUp Button=1 Shift=0 X=30 Y=55",
                     "ItemUp Row=2 Column=1",
                     "ItemClick Row=2 Column=1",
                     "Click"}));
    EXPECT_EQ(runtime.boxes, std::vector<String>{});
}

TEST_F(Win32EarlyPresses, OneThatIsSentWithItsMoveFindsItsCell) {
    POINT place{30, 55};
    ClientToScreen(target(), &place);
    INPUT inputs[2]{};
    for (INPUT& input : inputs)
        input.type = INPUT_MOUSE;
    // In parts of the screen, of which there are 65536.
    constexpr LONG whole = 65536;
    inputs[0].mi.dx = (place.x * whole + whole / 2) / GetSystemMetrics(SM_CXSCREEN);
    inputs[0].mi.dy = (place.y * whole + whole / 2) / GetSystemMetrics(SM_CYSCREEN);
    inputs[0].mi.dwFlags = MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE;
    inputs[1].mi.dwFlags = MOUSEEVENTF_LEFTDOWN;
    ASSERT_EQ(SendInput(2, inputs, sizeof(INPUT)), 2U);
    runtime.DoEvents();
    EXPECT_EQ(take(),
              (Lines{"MouseMove Button=0 Shift=0 X=30 Y=55",
                     "ItemDown Row=2 Column=1",
                     "MouseDown Button=1 Shift=0 X=30 Y=55"}));
    EXPECT_EQ(runtime.boxes, std::vector<String>{});
    mouse.release();
}

TEST_F(Win32EarlyPresses, AHandsPressFindsItsCellWhereTheProgramWasBusySinceItsMove) {
    mouse.moveTo(listWindow(), 30, 55);
    SendMessageW(target(), WM_MOUSEMOVE, 0, at);
    SendMessageW(target(), WM_LBUTTONDOWN, MK_LBUTTON, at);
    EXPECT_EQ(takePresses(), (Lines{"ItemDown Row=2 Column=1", "MouseDown Button=1 Shift=0 X=30 Y=55"}));
    EXPECT_EQ(runtime.boxes, std::vector<String>{});
    SendMessageW(target(), WM_LBUTTONUP, 0, at);
}

TEST_F(Win32EarlyPresses, AFingerFindsItsCell) {
    mouse.moveTo(listWindow(), 30, 55);
    SendMessageW(target(), WM_MOUSEMOVE, 0, at);
    constexpr LPARAM ofAFinger = 0xFF515780;
    const LPARAM before = SetMessageExtraInfo(ofAFinger);
    SendMessageW(target(), WM_LBUTTONDOWN, MK_LBUTTON, at);
    SetMessageExtraInfo(before);
    EXPECT_EQ(takePresses(), (Lines{"ItemDown Row=2 Column=1", "MouseDown Button=1 Shift=0 X=30 Y=55"}));
    EXPECT_EQ(runtime.boxes, std::vector<String>{});
    SendMessageW(target(), WM_LBUTTONUP, 0, at);
}

} // namespace
} // namespace lumtex::testing
