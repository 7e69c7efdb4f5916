/// Dropping on a window.
#include "dragged_data.h"
#include "worlds/win32/module_lock.h"
#include "worlds/win32/win32_window.h"

#include <cmath>
#include <functional>
#include <string>

#include <gtest/gtest.h>

namespace lumtex::testing {
namespace {

/// Notes what is dragged over it, and answers with an effect.
class Catcher final : public UserControl {
  public:
    void UserControl_OLEDragDrop(
        const DragData& data, Long& effect, Integer& button, Integer& shift, Single& x, Single& y) override {
        note("Drop", data, effect, button, shift, x, y, "");
    }
    void UserControl_OLEDragOver(const DragData& data,
                                 Long& effect,
                                 Integer& button,
                                 Integer& shift,
                                 Single& x,
                                 Single& y,
                                 Integer& state) override {
        note("Over", data, effect, button, shift, x, y, " state " + std::to_string(state));
    }

    std::vector<std::string> log;
    std::optional<Long> answer;
    ObjectRef seen;
    std::function<void()> onDrag = [] {};

  private:
    void note(const std::string& what,
              const DragData& data,
              Long& effect,
              Integer button,
              Integer shift,
              Single x,
              Single y,
              const std::string& end) {
        log.push_back(what + " effect " + std::to_string(effect) + " button " + std::to_string(button) +
                      " shift " + std::to_string(shift) + " at " + std::to_string(std::lround(x)) + "," +
                      std::to_string(std::lround(y)) + end);
        seen = data;
        effect = answer.value_or(effect);
        std::exchange(onDrag, [] {})();
    }
};

class DropTarget : public ::testing::Test {
  protected:
    DropTarget() {
        CoInitialize(nullptr);
        window->place(10, 20, 100, 100);
    }
    ~DropTarget() override {
        window.reset();
        catcher.seen = nullptr;
        EXPECT_EQ(win32::moduleLocks(), 0);
        EXPECT_EQ(dragged.references, 1U);
        CoUninitialize();
    }

    HWND hwnd() const { return win32::toHWND(window->hWnd()); }
    POINTL onScreen(LONG x, LONG y) const {
        POINT at{x, y};
        ClientToScreen(hwnd(), &at);
        return {at.x, at.y};
    }

    Catcher catcher;
    win32::Win32World world{GetModuleHandleW(nullptr)};
    std::unique_ptr<Window> window = world.createWindow(nullptr, catcher);
    DraggedData dragged;
    DWORD effect = DROPEFFECT_COPY | DROPEFFECT_MOVE;
};

TEST_F(DropTarget, OnlyModeOneTakesDrops) {
    for (const Integer mode : {0, 1, 2, 1, 0, -1}) {
        window->letOLEDropMode(mode);
        EXPECT_EQ(static_cast<bool>(dropTargetOf(hwnd())), mode == 1) << mode;
    }
}

TEST_F(DropTarget, ADragTellsWhereItIsAndHowItMoves) {
    window->letOLEDropMode(1);
    const auto target = dropTargetOf(hwnd());
    ASSERT_EQ(target->DragEnter(&dragged, MK_LBUTTON, onScreen(5, 6), &effect), S_OK);
    ASSERT_EQ(target->DragOver(MK_LBUTTON | MK_CONTROL | MK_ALT, onScreen(7, 8), &effect), S_OK);
    ASSERT_EQ(target->DragLeave(), S_OK);
    ASSERT_EQ(target->DragEnter(&dragged, MK_RBUTTON | MK_SHIFT, onScreen(-1, 9), &effect), S_OK);
    ASSERT_EQ(target->Drop(&dragged, MK_SHIFT, onScreen(1, 2), &effect), S_OK);
    EXPECT_EQ(catcher.log,
              (std::vector<std::string>{"Over effect 3 button 1 shift 0 at 5,6 state 0",
                                        "Over effect 3 button 1 shift 6 at 7,8 state 2",
                                        "Over effect 0 button 1 shift 6 at 7,8 state 1",
                                        "Over effect 3 button 2 shift 1 at -1,9 state 0",
                                        "Drop effect 3 button 2 shift 1 at 1,2"}));
}

TEST_F(DropTarget, TheAnswerIsLimitedToWhatTheSourceAllows) {
    window->letOLEDropMode(1);
    const auto target = dropTargetOf(hwnd());
    catcher.answer = DROPEFFECT_MOVE | DROPEFFECT_LINK;
    ASSERT_EQ(target->DragEnter(&dragged, 0, onScreen(0, 0), &effect), S_OK);
    EXPECT_EQ(effect, DWORD{DROPEFFECT_MOVE});
    effect = DROPEFFECT_COPY;
    ASSERT_EQ(target->DragOver(0, onScreen(0, 0), &effect), S_OK);
    EXPECT_EQ(effect, DWORD{DROPEFFECT_NONE});
    catcher.answer = -1;
    effect = DROPEFFECT_COPY;
    ASSERT_EQ(target->Drop(&dragged, 0, onScreen(0, 0), &effect), S_OK);
    EXPECT_EQ(effect, DWORD{DROPEFFECT_COPY});
}

TEST_F(DropTarget, TheDataIsOneObjectForTheWholeDrag) {
    dragged.letText(CF_UNICODETEXT, u"carried");
    window->letOLEDropMode(1);
    const auto target = dropTargetOf(hwnd());
    target->DragEnter(&dragged, 0, onScreen(0, 0), &effect);
    const ObjectRef first = catcher.seen;
    target->Drop(&dragged, 0, onScreen(0, 0), &effect);
    EXPECT_EQ(catcher.seen, first);
    std::vector<Variant> unicode{Integer{CF_UNICODETEXT}};
    EXPECT_EQ(catcher.seen->call(u"GetData", unicode), Variant(u"carried"));
}

TEST_F(DropTarget, ADropThatNeverEnteredIsTakenToo) {
    window->letOLEDropMode(1);
    ASSERT_EQ(dropTargetOf(hwnd())->Drop(&dragged, 0, onScreen(0, 0), &effect), S_OK);
    EXPECT_TRUE(catcher.seen);
}

TEST_F(DropTarget, MovesWithoutADragTellNothing) {
    window->letOLEDropMode(1);
    const auto target = dropTargetOf(hwnd());
    EXPECT_EQ(target->DragOver(0, onScreen(0, 0), &effect), S_OK);
    EXPECT_EQ(effect, DWORD{DROPEFFECT_NONE});
    EXPECT_EQ(target->DragLeave(), S_OK);
    EXPECT_TRUE(catcher.log.empty());
}

TEST_F(DropTarget, NullPointersAreRefused) {
    window->letOLEDropMode(1);
    const auto target = dropTargetOf(hwnd());
    EXPECT_EQ(target->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
    EXPECT_EQ(target->DragEnter(nullptr, 0, {}, &effect), E_POINTER);
    EXPECT_EQ(target->DragEnter(&dragged, 0, {}, nullptr), E_POINTER);
    EXPECT_EQ(target->DragOver(0, {}, nullptr), E_POINTER);
    EXPECT_EQ(target->Drop(nullptr, 0, {}, &effect), E_POINTER);
    EXPECT_EQ(target->Drop(&dragged, 0, {}, nullptr), E_POINTER);
}

TEST_F(DropTarget, TheWindowMayEndWhileItIsTold) {
    window->letOLEDropMode(1);
    const auto target = dropTargetOf(hwnd());
    catcher.onDrag = [&] { window.reset(); };
    ASSERT_EQ(target->DragEnter(&dragged, 0, onScreen(0, 0), &effect), S_OK);
    EXPECT_EQ(target->DragOver(0, {}, &effect), S_OK);
    EXPECT_EQ(effect, DWORD{DROPEFFECT_NONE});
    EXPECT_EQ(target->DragLeave(), S_OK);
    EXPECT_EQ(catcher.log.size(), 1U);
}

TEST_F(DropTarget, TheSystemWindowMayEndFirst) {
    window->letOLEDropMode(1);
    const auto target = dropTargetOf(hwnd());
    DestroyWindow(hwnd());
    EXPECT_EQ(target->DragEnter(&dragged, 0, {}, &effect), S_OK);
    EXPECT_TRUE(catcher.log.empty());
    window->letOLEDropMode(0);
    window->letOLEDropMode(1);
    EXPECT_FALSE(static_cast<bool>(dropTargetOf(hwnd())));
}

} // namespace
} // namespace lumtex::testing
