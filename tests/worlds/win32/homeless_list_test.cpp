/// A list that is made before there is a place for it.
#include "surface_pair.h"
#include "win32_list.h"
#include "window_pictures.h"

namespace lumtex::testing {
namespace {

/// A list of a world without a container.
class HomelessList : public ::testing::Test {
  protected:
    HomelessList() {
        list.UserControl_ReadProperties(MemoryPropertyBag{});
        list.window().place(20, 30, 300, 200);
        list.ColumnsAdd(u"a", nullptr, nullptr, nullptr, cColumnLeft, 900);
        for (int row = 0; row < 60; ++row)
            list.RowsAdd(Long{-1}, u",", u"text");
        list.Redraw();
    }
    HWND window() { return win32::toHWND(list.window().hWnd()); }

    NotedRuntime runtime{GetModuleHandleW(nullptr)};
    win32::Win32World world{GetModuleHandleW(nullptr), nullptr, &runtime};
    TestHost host;
    RecordingEvents events;
    lmListView list{world, host, events};
};

TEST_F(HomelessList, IsThereAndNotSeen) {
    EXPECT_TRUE(IsWindow(window()));
    EXPECT_FALSE(IsWindowVisible(window()));
    EXPECT_EQ(list.RowsCount(), 60);
    SendMessageW(window(), WM_KEYDOWN, VK_DOWN, 0);
    EXPECT_EQ(list.ListIndex(), 0);
    EXPECT_TRUE(runtime.boxes.empty());
}

TEST_F(HomelessList, ShowsWhatItHasOnceItGetsAParentAndLivesOnWhenItLosesIt) {
    const ProgramWindow program;
    ASSERT_NE(program.get(), nullptr) << "no display";
    SetParent(window(), program.get());
    runtime.DoEvents();
    EXPECT_TRUE(IsWindowVisible(window()));
    RECT area{};
    GetWindowRect(window(), &area);
    MapWindowPoints(nullptr, program.get(), reinterpret_cast<POINT*>(&area), 2);
    EXPECT_EQ(area.left, 20);
    EXPECT_EQ(area.top, 30);
    EXPECT_TRUE(samePixels(screenPicture(window()), printedPicture(window())));
    SetFocus(window());
    EXPECT_EQ(GetFocus(), window());
    strike(runtime, VK_DOWN);
    EXPECT_EQ(list.ListIndex(), 0);
    SetParent(window(), HWND_MESSAGE);
    EXPECT_FALSE(IsWindowVisible(window()));
    list.RowsClear();
    list.Redraw();
    EXPECT_EQ(list.RowsCount(), 0);
    EXPECT_EQ(runtime.boxes, std::vector<String>{});
}

} // namespace
} // namespace lumtex::testing
