/// The wheel, taken in front of the list's window.
#include "win32_list.h"

namespace lumtex::testing {
namespace {

using Lines = std::vector<std::string>;

class WheelSubclassing : public Win32List {
  protected:
    HWND listHandle() { return win32::toHWND(listWindow()); }
    HWND ownWindow() { return static_cast<HWND>(GetPropW(listHandle(), L"WheelWnd")); }
    LRESULT turn(int rotation) {
        return SendMessageW(listHandle(), WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(rotation)), 0);
    }
};

TEST_F(WheelSubclassing, LeavesItsThreePropertiesWhereAWindowProcedureFindsThem) {
    ASSERT_NE(ownWindow(), nullptr);
    EXPECT_TRUE(IsChild(listHandle(), ownWindow()));
    EXPECT_NE(GetPropW(ownWindow(), L"WheelPtr"), nullptr);
    EXPECT_EQ(reinterpret_cast<ULONG_PTR>(GetPropW(ownWindow(), L"OldWheelProc")),
              GetClassLongPtrW(listHandle(), GCLP_WNDPROC));
    EXPECT_NE(reinterpret_cast<ULONG_PTR>(GetPropW(ownWindow(), L"OldWheelProc")),
              static_cast<ULONG_PTR>(GetWindowLongPtrW(listHandle(), GWLP_WNDPROC)));
}

TEST_F(WheelSubclassing, ScrollsTheListAndSwallowsTheMessage) {
    fill(50);
    list->letWheelScrollLines(3);
    EXPECT_EQ(turn(-120), 0);
    EXPECT_EQ(list->TopIndex(), 3);
    EXPECT_EQ(turn(120), 0);
    EXPECT_EQ(list->TopIndex(), 0);
    EXPECT_EQ(take(), (Lines{"Scroll", "Scroll"}));
}

TEST_F(WheelSubclassing, LetsAllOtherMessagesPass) {
    fill(5);
    SendMessageW(listHandle(), WM_MOUSEMOVE, 0, MAKELPARAM(30, 35));
    EXPECT_EQ(take(), Lines{"MouseMove Button=0 Shift=0 X=30 Y=35"});
}

TEST_F(WheelSubclassing, IsGoneWithTheList) {
    HWND window = listHandle();
    HWND own = ownWindow();
    list.reset();
    EXPECT_FALSE(IsWindow(own));
    EXPECT_FALSE(IsWindow(window));
}

TEST_F(WheelSubclassing, GivesTheWindowItsProcedureBackWhenItsOwnWindowGoes) {
    DestroyWindow(ownWindow());
    EXPECT_EQ(GetPropW(listHandle(), L"WheelWnd"), nullptr);
    EXPECT_EQ(static_cast<ULONG_PTR>(GetWindowLongPtrW(listHandle(), GWLP_WNDPROC)),
              GetClassLongPtrW(listHandle(), GCLP_WNDPROC));
}

TEST_F(WheelSubclassing, DoesNotHappenInADesigner) {
    TestHost designer;
    designer.userMode = false;
    lmListView designed(world, designer, events);
    designed.UserControl_ReadProperties(MemoryPropertyBag{});
    EXPECT_EQ(GetPropW(win32::toHWND(designed.hwnd()), L"WheelWnd"), nullptr);
}

TEST_F(WheelSubclassing, KeepsTwoListsApart) {
    fill(50);
    TestHost otherHost;
    RecordingEvents otherEvents;
    lmListView other(world, otherHost, otherEvents);
    other.UserControl_ReadProperties(MemoryPropertyBag{});
    EXPECT_NE(GetPropW(win32::toHWND(other.hwnd()), L"WheelWnd"), GetPropW(listHandle(), L"WheelWnd"));
    turn(-120);
    EXPECT_EQ(take(), Lines{"Scroll"});
    EXPECT_TRUE(otherEvents.log.empty());
}

} // namespace
} // namespace lumtex::testing
