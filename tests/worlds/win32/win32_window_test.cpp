/// Windows, boxes, timers and forms of the system, without a list.
#include "error_number.h"
#include "gdi_handles.h"
#include "win32_list.h"
#include "worlds/win32/win32_text_box.h"

namespace lumtex::testing {
namespace {

using Lines = std::vector<std::string>;

/// Notes what its window tells.
class NotedControl final : public UserControl {
  public:
    std::vector<std::string> log;
    std::function<void(const std::string&)> then; ///< runs after each line

    void UserControl_MouseDown(Integer Button, Integer, Single X, Single Y) override {
        at("down", Button, X, Y);
    }
    void UserControl_MouseUp(Integer Button, Integer, Single X, Single Y) override { at("up", Button, X, Y); }
    void UserControl_Click() override { note("click"); }
    void UserControl_DblClick() override { note("dblclick"); }
    bool UserControl_Wheel(Long Rotation, Integer, Single, Single) override {
        note("wheel " + std::to_string(Rotation));
        return takesWheel;
    }
    void UserControl_GotFocus() override { note("got focus"); }
    void UserControl_LostFocus() override { note("lost focus"); }
    void UserControl_Resize() override { note("resize"); }
    void UserControl_Show() override { note("show"); }

    bool takesWheel = false;

  private:
    void at(const char* what, Integer button, Single x, Single y) {
        note(std::string(what) + " " + std::to_string(button) + " " + std::to_string(static_cast<int>(x)) +
             "," + std::to_string(static_cast<int>(y)));
    }
    void note(const std::string& line) {
        log.push_back(line);
        if (then)
            then(line);
    }
};

class NotedBox final : public TextBoxClient {
  public:
    void textBoxKeyPress(Integer& KeyAscii) override {
        keys.push_back(KeyAscii);
        if (KeyAscii == u'x')
            KeyAscii = 0;
    }
    void textBoxLostFocus() override { ++losses; }

    std::vector<Integer> keys;
    int losses = 0;
};

class Win32Windows : public ::testing::Test {
  protected:
    static void SetUpTestSuite() { program = std::make_unique<ProgramWindow>(); }
    static void TearDownTestSuite() { program.reset(); }
    void SetUp() override {
        if (program->get() == nullptr)
            FAIL() << "no display";
        SetFocus(program->get());
        outer = world.createWindow(nullptr, outerControl);
        outer->place(10, 10, 200, 100);
        inner = world.createWindow(outer.get(), innerControl);
        inner->place(20, 20, 50, 40);
        inner->letVisible(true);
        take();
    }

    LRESULT send(Window& window, UINT message, WPARAM keys, int x, int y) {
        return SendMessageW(win32::toHWND(window.hWnd()), message, keys, MAKELPARAM(x, y));
    }
    /// The lines of the outer window, then those of the inner one.
    Lines take() {
        Lines lines = std::exchange(outerControl.log, {});
        for (std::string& line : std::exchange(innerControl.log, {}))
            lines.push_back("inner " + line);
        return lines;
    }

    static inline std::unique_ptr<ProgramWindow> program;
    NotedRuntime runtime{GetModuleHandleW(nullptr)};
    win32::Win32World world{GetModuleHandleW(nullptr), program->get(), &runtime};
    NotedControl outerControl;
    NotedControl innerControl;
    std::unique_ptr<Window> outer;
    std::unique_ptr<Window> inner;
};

TEST_F(Win32Windows, PlacingTellsOfANewSizeAlone) {
    inner->place(5, 6, 50, 40);
    EXPECT_EQ(take(), Lines{});
    inner->place(5, 6, 60.4F, 39.6F);
    EXPECT_EQ(take(), Lines{"inner resize"});
    EXPECT_EQ(inner->Left(), 5);
    EXPECT_EQ(inner->Top(), 6);
    EXPECT_EQ(inner->Width(), 60);
    EXPECT_EQ(inner->Height(), 40);
}

TEST_F(Win32Windows, ANegativeSizeCountsAsNone) {
    inner->place(0, 0, -5, -6);
    EXPECT_EQ(inner->Width(), 0);
    EXPECT_EQ(inner->Height(), 0);
}

TEST_F(Win32Windows, AHugeOrMeaninglessPlaceChangesNothing) {
    take();
    EXPECT_EQ(errorNumberOf([&] { inner->place(0, 0, 1e6F, 1e6F); }), ErrorNumber::outOfMemory);
    EXPECT_EQ(errorNumberOf([&] { inner->place(1e20F, 0, 10, 10); }), ErrorNumber::overflow);
    EXPECT_EQ(inner->Width(), 50);
    EXPECT_EQ(take(), Lines{});
}

TEST_F(Win32Windows, EachShowingOfAHiddenWindowIsTold) {
    inner->letVisible(true);
    EXPECT_EQ(take(), Lines{});
    inner->letVisible(false);
    inner->letVisible(true);
    EXPECT_EQ(take(), Lines{"inner show"});
}

TEST_F(Win32Windows, APressIsClickedWhereItIsReleased) {
    send(*inner, WM_LBUTTONDOWN, MK_LBUTTON, 3, 4);
    EXPECT_EQ(GetCapture(), win32::toHWND(inner->hWnd()));
    send(*inner, WM_LBUTTONUP, 0, 5, 6);
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_EQ(take(), (Lines{"inner got focus", "inner down 1 3,4", "inner up 1 5,6", "inner click"}));
    send(*inner, WM_LBUTTONDOWN, MK_LBUTTON, 3, 4);
    send(*inner, WM_LBUTTONUP, 0, 300, 4);
    EXPECT_EQ(take(), (Lines{"inner down 1 3,4", "inner up 1 300,4"}));
}

TEST_F(Win32Windows, TheSecondPressOfADoubleClickIsNoPressAndHasNoClick) {
    send(*inner, WM_LBUTTONDOWN, MK_LBUTTON, 3, 4);
    send(*inner, WM_LBUTTONUP, 0, 3, 4);
    take();
    send(*inner, WM_LBUTTONDBLCLK, MK_LBUTTON, 3, 4);
    send(*inner, WM_LBUTTONUP, 0, 3, 4);
    EXPECT_EQ(take(), (Lines{"inner dblclick", "inner up 1 3,4"}));
}

TEST_F(Win32Windows, TheCaptureStaysUntilTheLastButtonIsUp) {
    send(*inner, WM_LBUTTONDOWN, MK_LBUTTON, 3, 4);
    send(*inner, WM_RBUTTONDOWN, MK_LBUTTON | MK_RBUTTON, 3, 4);
    send(*inner, WM_LBUTTONUP, MK_RBUTTON, 3, 4);
    EXPECT_EQ(GetCapture(), win32::toHWND(inner->hWnd()));
    send(*inner, WM_RBUTTONUP, 0, 3, 4);
    EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(Win32Windows, ADisabledOrHiddenWindowPassesItsFocusOutwards) {
    inner->setFocus();
    take();
    inner->letVisible(false);
    EXPECT_EQ(GetFocus(), win32::toHWND(outer->hWnd()));
    EXPECT_EQ(take(), (Lines{"got focus", "inner lost focus"}));
    inner->setFocus();
    EXPECT_EQ(GetFocus(), win32::toHWND(outer->hWnd())) << "a hidden window takes none";
    inner->letVisible(true);
    inner->setFocus();
    inner->letEnabled(false);
    EXPECT_EQ(GetFocus(), win32::toHWND(outer->hWnd()));
}

TEST_F(Win32Windows, HidingEndsACaptureAndAPress) {
    send(*inner, WM_LBUTTONDOWN, MK_LBUTTON, 3, 4);
    inner->letVisible(false);
    EXPECT_EQ(GetCapture(), nullptr);
    inner->letVisible(true);
    take();
    send(*inner, WM_LBUTTONUP, 0, 3, 4);
    EXPECT_EQ(take(), Lines{"inner up 1 3,4"});
}

TEST_F(Win32Windows, AWheelThatNobodyTakesGoesOutwards) {
    send(*inner, WM_MOUSEWHEEL, MAKEWPARAM(0, 120), 0, 0);
    EXPECT_EQ(take(), (Lines{"wheel 120", "inner wheel 120"}));
    innerControl.takesWheel = true;
    send(*inner, WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-240)), 0, 0);
    EXPECT_EQ(take(), Lines{"inner wheel -240"});
}

TEST_F(Win32Windows, MayBeDestroyedInAnyOfTheirEvents) {
    struct Row {
        const char* line;
        UINT message;
        WPARAM keys;
    };
    constexpr Row table[] = {
        {"down 1 3,4", WM_LBUTTONDOWN, MK_LBUTTON},
        {"up 1 3,4", WM_LBUTTONUP, 0},
        {"dblclick", WM_LBUTTONDBLCLK, MK_LBUTTON},
        {"wheel 120", WM_MOUSEWHEEL, MAKEWPARAM(0, 120)},
        {"got focus", WM_LBUTTONDOWN, MK_LBUTTON},
    };
    for (const Row& row : table) {
        SetFocus(program->get());
        inner = world.createWindow(outer.get(), innerControl);
        inner->place(0, 0, 50, 50);
        inner->letVisible(true);
        HWND window = win32::toHWND(inner->hWnd());
        innerControl.then = [&](const std::string& line) {
            if (line == row.line)
                inner.reset();
        };
        SendMessageW(window, row.message, row.keys, MAKELPARAM(3, 4));
        EXPECT_EQ(inner, nullptr) << row.line;
        EXPECT_FALSE(IsWindow(window)) << row.line;
        innerControl.then = nullptr;
    }
}

TEST_F(Win32Windows, AdoptAnyWindowButThoseAroundThem) {
    NotedControl control;
    const std::unique_ptr<Window> stranger = world.createWindow(nullptr, control);
    EXPECT_TRUE(inner->adopt(stranger->hWnd()));
    EXPECT_EQ(GetParent(win32::toHWND(stranger->hWnd())), win32::toHWND(inner->hWnd()));
    EXPECT_FALSE(inner->adopt(0));
    EXPECT_FALSE(inner->adopt(0x7FFFFFF));
    EXPECT_FALSE(inner->adopt(inner->hWnd()));
    EXPECT_FALSE(inner->adopt(outer->hWnd()));
    inner.reset();
    EXPECT_TRUE(IsWindow(win32::toHWND(stranger->hWnd()))) << "it is its owner's to destroy";
}

TEST_F(Win32Windows, LaterChildrenLieAboveEarlierOnes) {
    NotedControl control;
    const std::unique_ptr<Window> later = world.createWindow(outer.get(), control);
    later->place(30, 30, 50, 40);
    later->letVisible(true);
    NotedBox client;
    const std::unique_ptr<TextBox> box = world.createTextBox(*outer, client);
    box->letLeft(40);
    box->letTop(40);
    box->letWidth(20);
    box->letHeight(20);
    box->letVisible(true);
    const auto topmostAt = [&](POINT at) {
        return win32::fromHWND(ChildWindowFromPoint(win32::toHWND(outer->hWnd()), at));
    };
    EXPECT_EQ(topmostAt({25, 25}), inner->hWnd());
    EXPECT_EQ(topmostAt({35, 35}), later->hWnd());
    EXPECT_EQ(topmostAt({45, 45}), box->hWnd());
}

TEST_F(Win32Windows, TheBoxAsksAboutEachCharacter) {
    NotedBox client;
    const std::unique_ptr<TextBox> box = world.createTextBox(*outer, client);
    box->letWidth(80);
    box->letHeight(20);
    box->letVisible(true);
    for (const char16_t unit : {u'a', u'x', u'\r', u'b'})
        SendMessageW(win32::toHWND(box->hWnd()), WM_CHAR, unit, 0);
    EXPECT_EQ(client.keys, (std::vector<Integer>{u'a', u'x', u'\r', u'b'}));
    EXPECT_EQ(box->Text(), u"ab");
}

TEST_F(Win32Windows, TheSelectionOfABoxKeepsWithinItsText) {
    NotedBox client;
    const std::unique_ptr<TextBox> made = world.createTextBox(*outer, client);
    auto* box = static_cast<win32::Win32TextBox*>(made.get());
    box->letText(u"hello");
    EXPECT_EQ(box->SelStart(), 0);
    box->letSelStart(2);
    box->letSelLength(99);
    EXPECT_EQ(box->SelStart(), 2);
    EXPECT_EQ(box->SelLength(), 3);
    box->letSelStart(-7);
    EXPECT_EQ(box->SelStart(), 0);
    EXPECT_EQ(box->SelLength(), 0);
    box->letSelStart(99);
    EXPECT_EQ(box->SelStart(), 5);
    EXPECT_EQ(box->Text(), u"hello");
}

TEST_F(Win32Windows, HidingABoxPassesOnItsFocusAndDestroyingItTellsNobody) {
    NotedBox client;
    std::unique_ptr<TextBox> box = world.createTextBox(*outer, client);
    box->letVisible(true);
    box->setFocus();
    EXPECT_EQ(GetFocus(), win32::toHWND(box->hWnd()));
    box->letVisible(false);
    EXPECT_EQ(client.losses, 1);
    EXPECT_EQ(GetFocus(), win32::toHWND(outer->hWnd()));
    box->letVisible(true);
    box->setFocus();
    take();
    box.reset();
    EXPECT_EQ(client.losses, 1);
    EXPECT_EQ(take(), Lines{});
}

TEST_F(Win32Windows, APressTakesTheFocusFromAWindowInItButNotFromABox) {
    NotedBox client;
    const std::unique_ptr<TextBox> box = world.createTextBox(*outer, client);
    box->letVisible(true);
    inner->setFocus();
    send(*outer, WM_LBUTTONDOWN, MK_LBUTTON, 5, 5);
    send(*outer, WM_LBUTTONUP, 0, 5, 5);
    EXPECT_EQ(GetFocus(), win32::toHWND(outer->hWnd()));
    box->setFocus();
    send(*outer, WM_LBUTTONDOWN, MK_LBUTTON, 5, 5);
    send(*outer, WM_LBUTTONUP, 0, 5, 5);
    EXPECT_EQ(GetFocus(), win32::toHWND(box->hWnd()));
    take();
}

TEST_F(Win32Windows, TimersTickUntilTheyAreOff) {
    int ticks = 0;
    std::unique_ptr<Timer> timer;
    timer = world.createTimer([&] {
        if (++ticks == 3)
            timer.reset();
    });
    timer->letInterval(1);
    runtime.DoEvents();
    EXPECT_EQ(ticks, 0) << "created off";
    timer->letEnabled(true);
    while (timer) {
        MsgWaitForMultipleObjects(0, nullptr, FALSE, INFINITE, QS_ALLINPUT);
        runtime.DoEvents();
    }
    EXPECT_EQ(ticks, 3);
}

TEST_F(Win32Windows, AModalFormReturnsOnceItIsHiddenAndHoldsTheProgramMeanwhile) {
    NotedControl control;
    const std::unique_ptr<Window> form = world.createForm(control);
    form->place(100, 100, 80, 60);
    bool programTookInput = true;
    control.then = [&](const std::string& line) {
        if (line != "show")
            return;
        programTookInput = IsWindowEnabled(program->get());
        PostMessageW(win32::toHWND(form->hWnd()), WM_CLOSE, 0, 0);
    };
    world.showModal(*form);
    EXPECT_FALSE(programTookInput);
    EXPECT_FALSE(form->Visible());
    EXPECT_TRUE(IsWindowEnabled(program->get()));
}

TEST_F(Win32Windows, LeaveNoHandlesBehind) {
    const auto round = [&] {
        NotedControl control;
        NotedBox client;
        const std::unique_ptr<Window> window = world.createWindow(outer.get(), control);
        window->setMouseIcon(std::make_shared<BitmapPicture>(Bitmap(16, 16, 0xFF0000FFU)));
        window->letMousePointer(CursorShape::custom);
        const std::unique_ptr<TextBox> box = world.createTextBox(*window, client);
        box->setFont({.Name = u"Tahoma", .Size = 9});
        window->place(0, 0, 40, 30);
        window->letVisible(true);
        const std::unique_ptr<Timer> timer = world.createTimer([] {});
        timer->letInterval(1);
        timer->letEnabled(true);
        window->present();
        runtime.DoEvents();
    };
    for (int i = 0; i < 5; ++i)
        round();
    const int before = gdiObjectCount();
    for (int i = 0; i < 50; ++i)
        round();
    EXPECT_EQ(gdiObjectCount(), before);
}

TEST_F(Win32Windows, APressOnAPartGivesTheFocusToTheWindowItIsAPartOf) {
    NotedBox client;
    const std::unique_ptr<TextBox> box = world.createTextBox(*outer, client);
    box->letVisible(true);
    inner->letTakesKeys(false);
    const auto clickInner = [&] {
        send(*inner, WM_LBUTTONDOWN, MK_LBUTTON, 5, 5);
        send(*inner, WM_LBUTTONUP, 0, 5, 5);
    };
    SetFocus(program->get());
    clickInner();
    EXPECT_EQ(GetFocus(), win32::toHWND(outer->hWnd()));
    box->setFocus();
    clickInner();
    EXPECT_EQ(GetFocus(), win32::toHWND(box->hWnd()));
    EXPECT_EQ(client.losses, 0);
    take();
}

TEST_F(Win32Windows, APressTakesTheFocusFromAHostsControlInIt) {
    HWND foreign = CreateWindowExW(0,
                                   L"EDIT",
                                   L"",
                                   WS_CHILD | WS_VISIBLE,
                                   100,
                                   50,
                                   50,
                                   20,
                                   program->get(),
                                   nullptr,
                                   GetModuleHandleW(nullptr),
                                   nullptr);
    ASSERT_TRUE(outer->adopt(win32::fromHWND(foreign)));
    SetFocus(foreign);
    ASSERT_EQ(GetFocus(), foreign);
    send(*outer, WM_LBUTTONDOWN, MK_LBUTTON, 5, 5);
    send(*outer, WM_LBUTTONUP, 0, 5, 5);
    EXPECT_EQ(GetFocus(), win32::toHWND(outer->hWnd()));
    DestroyWindow(foreign);
}

TEST_F(Win32Windows, ABoxLosesItsFocusToOtherWindowsOfTheProgramAlone) {
    NotedBox client;
    const std::unique_ptr<TextBox> box = world.createTextBox(*outer, client);
    box->letVisible(true);
    box->setFocus();
    SetFocus(nullptr); // as when the user goes to another program
    EXPECT_EQ(client.losses, 0);
    box->setFocus();
    SetFocus(program->get());
    EXPECT_EQ(client.losses, 1);
}

} // namespace
} // namespace lumtex::testing
