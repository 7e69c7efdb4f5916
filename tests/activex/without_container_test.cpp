/// A list that a program makes without a container, and gives a window later.
#include "event_sink.h"
#include "sheet.h"
#include "small_container.h"

namespace lumtex::testing {
namespace {

constexpr DISPID click = 1;
constexpr DISPID mouseUp = 5;
constexpr DISPID mouseDown = 7;

class WithoutContainer : public ListFixture {
  protected:
    WithoutContainer() {
        win32::demand(point->Advise(&sink, &cookie));
        get(L"RowsCount");
    }
    ~WithoutContainer() override {
        point->Unadvise(cookie);
        point = {};
    }

    HWND window() { return win32::toHWND(get(L"hwnd").toLong()); }
    std::vector<std::uint32_t> printed() {
        RECT area{};
        GetClientRect(window(), &area);
        Sheet sheet(area.right, area.bottom);
        SendMessageW(window(), WM_PRINT, reinterpret_cast<WPARAM>(sheet.dc), PRF_CLIENT | PRF_CHILDREN);
        return sheet.colors();
    }

    EventSink sink;
    win32::ComRef<IConnectionPoint> point = eventPointOf(control);
    DWORD cookie = 0;
};

TEST_F(WithoutContainer, TheListHasAHiddenWindowOfTheDesignSizeAndRuns) {
    EXPECT_TRUE(IsWindow(window()));
    EXPECT_FALSE(IsWindowVisible(window()));
    RECT area{};
    GetClientRect(window(), &area);
    EXPECT_EQ(area.right, 309);
    EXPECT_EQ(area.bottom, 260);
    fill(1, {u"b", u"a"});
    call(L"Sort", {Long{1}, Long{1}});
    EXPECT_EQ(get(L"ItemText", {Long{1}, Long{1}}), Variant(u"a"));
}

TEST_F(WithoutContainer, ARealParentShowsWhatWasPaintedBefore) {
    ASSERT_NE(programWindow(), nullptr) << "no display";
    let(L"BackColor", {Long{0x0000FF}});
    fill(1, {u"a", u"b"});
    const auto before = printed();
    ASSERT_NE(SetParent(window(), programWindow()), nullptr);
    EXPECT_TRUE(IsWindowVisible(window()));
    EXPECT_EQ(printed(), before);
    UpdateWindow(window());
    // What the screen holds, apart from the bars.
    Sheet screen(200, 200);
    const HDC source = GetDC(window());
    BitBlt(screen.dc, 0, 0, 200, 200, source, 0, 0, SRCCOPY);
    ReleaseDC(window(), source);
    EXPECT_GT(screen.howMany(0xFF0000), 200 * 200 / 2);
    SetParent(window(), HWND_MESSAGE);
}

TEST_F(WithoutContainer, ItsUserReachesTheListThere) {
    ASSERT_NE(programWindow(), nullptr) << "no display";
    fill(1, {u"a", u"b"});
    ASSERT_NE(SetParent(window(), programWindow()), nullptr);
    sink.raised.clear();
    SendMessageW(window(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(20, 30));
    SendMessageW(window(), WM_LBUTTONUP, 0, MAKELPARAM(20, 30));
    EXPECT_EQ(GetFocus(), window());
    for (const DISPID event : {mouseDown, mouseUp, click})
        EXPECT_EQ(std::ranges::count(sink.raised, event), 1) << event;
    SetParent(window(), HWND_MESSAGE);
}

TEST_F(WithoutContainer, ItTakesTheSizeThatTheProgramGivesItsWindow) {
    ASSERT_NE(programWindow(), nullptr) << "no display";
    SetParent(window(), programWindow());
    ASSERT_TRUE(MoveWindow(window(), 5, 6, 123, 77, TRUE));
    SIZEL extent{};
    ASSERT_EQ(control.as<IOleObject>()->GetExtent(DVASPECT_CONTENT, &extent), S_OK);
    EXPECT_NEAR(static_cast<double>(extent.cx), 123.0 * 2540 / 96, 20);
    EXPECT_EQ(printed().size(), 123U * 77U);
    SetParent(window(), HWND_MESSAGE);
}

TEST_F(WithoutContainer, TheEndOfItsParentLeavesTheListUsable) {
    ASSERT_NE(programWindow(), nullptr) << "no display";
    HWND parent = CreateWindowExW(
        0, L"STATIC", L"", WS_CHILD | WS_VISIBLE, 0, 0, 90, 90, programWindow(), nullptr, nullptr, nullptr);
    SetParent(window(), parent);
    DestroyWindow(parent);
    fill(1, {u"a"});
    EXPECT_EQ(get(L"RowsCount"), Variant(Long{1}));
    EXPECT_EQ(get(L"hwnd"), Variant(Long{0}));
}

} // namespace
} // namespace lumtex::testing
