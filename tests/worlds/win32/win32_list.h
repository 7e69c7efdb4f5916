/// \file
/// A list in a window of the system, and the hands of its user.
#pragma once

#include "model/list_view.h"
#include "recording_events.h"
#include "test_host.h"
#include "worlds/win32/win32_window.h"

#include <gtest/gtest.h>

namespace lumtex::testing {

/// The system's runtime, whose boxes are noted instead of shown.
class NotedRuntime : public win32::Win32Runtime {
  public:
    using win32::Win32Runtime::Win32Runtime;
    void messageBox(StringView text, BoxStyle /*style*/, StringView /*title*/) override {
        boxes.emplace_back(text);
    }
    void DoEvents() override {
        if (onYield)
            std::exchange(onYield, nullptr)();
        win32::Win32Runtime::DoEvents();
    }

    std::vector<String> boxes;
    std::function<void()> onYield; ///< runs once, in the next yield
};

/// A window as a program has it, at (50, 50) of the screen, without a frame.
class ProgramWindow {
  public:
    explicit ProgramWindow(int width = 500, int height = 400)
        : window_(CreateWindowExW(0,
                                  L"STATIC",
                                  L"program",
                                  WS_POPUP | WS_VISIBLE | WS_CLIPCHILDREN,
                                  50,
                                  50,
                                  width,
                                  height,
                                  nullptr,
                                  nullptr,
                                  GetModuleHandleW(nullptr),
                                  nullptr)) {
        SetForegroundWindow(window_);
    }
    ProgramWindow(const ProgramWindow&) = delete;
    ProgramWindow& operator=(const ProgramWindow&) = delete;
    ~ProgramWindow() { DestroyWindow(window_); }

    HWND get() const { return window_; }

  private:
    HWND window_;
};

/// The real mouse, moved and pressed by the system's own input.
class Mouse {
  public:
    explicit Mouse(EventQueue& queue) : queue_(queue) {}

    /// To a point of a window. What comes of it is on its way: see `Win32List::moveTo`.
    void moveTo(WindowHandle window, int x, int y) {
        POINT at{x, y};
        ClientToScreen(win32::toHWND(window), &at);
        SetCursorPos(at.x, at.y);
    }
    void send(DWORD what, int data = 0) {
        INPUT input{};
        input.type = INPUT_MOUSE;
        input.mi.dwFlags = what;
        input.mi.mouseData = static_cast<DWORD>(data);
        SendInput(1, &input, sizeof(input));
        queue_.DoEvents();
    }
    void press() { send(MOUSEEVENTF_LEFTDOWN); }
    void release() { send(MOUSEEVENTF_LEFTUP); }
    void wheel(int rotation) { send(MOUSEEVENTF_WHEEL, rotation); }

  private:
    EventQueue& queue_;
};

/// A key of the real keyboard goes down and up.
inline void strike(EventQueue& queue, WORD key) {
    for (const DWORD flags : {DWORD{0}, DWORD{KEYEVENTF_KEYUP}}) {
        INPUT input{};
        input.type = INPUT_KEYBOARD;
        input.ki.wVk = key;
        input.ki.dwFlags = flags;
        SendInput(1, &input, sizeof(input));
        queue.DoEvents();
    }
}

/// A list of 300 x 200 pixels at (100, 100) of a program's window, read from an empty bag. Skipped where
/// there is no display.
class Win32List : public ::testing::Test {
  protected:
    Win32List() {
        if (program->get() == nullptr)
            return;
        SetFocus(program->get());
        list = std::make_unique<lmListView>(world, host, events);
        list->UserControl_ReadProperties(MemoryPropertyBag{});
        list->letBorderVisible(false);
        list->letRowsDynamic(false);
        list->letRowHeight(300);
        list->window().place(100, 100, 300, 200);
        runtime.DoEvents();
        events.log.clear();
    }

    void SetUp() override {
        if (!list)
            FAIL() << "no display";
    }

    static void SetUpTestSuite() { program = std::make_unique<ProgramWindow>(); }
    static void TearDownTestSuite() { program.reset(); }

    /// Moves the mouse over the list and waits until the system and the list's timers have noticed.
    void moveTo(int x, int y) {
        mouse.moveTo(listWindow(), x, y);
        runtime.DoEvents();
        awaitTicks();
    }
    void fill(int rows) {
        list->ColumnsAdd(u"a", nullptr, nullptr, nullptr, cColumnLeft, 900);
        list->ColumnsAdd(u"b", nullptr, nullptr, nullptr, cColumnLeft, 900);
        for (int row = 0; row < rows; ++row)
            list->RowsAdd(Long{-1}, u",", u"x,y");
        runtime.DoEvents();
        events.log.clear();
    }
    std::vector<std::string> take() { return std::exchange(events.log, {}); }
    WindowHandle listWindow() { return list->window().hWnd(); }
    /// Until all timers that were started before have ticked.
    void awaitTicks() {
        int ticks = 0;
        const std::unique_ptr<Timer> timer = world.createTimer([&] { ++ticks; });
        timer->letInterval(1);
        timer->letEnabled(true);
        while (ticks < 2) {
            MsgWaitForMultipleObjects(0, nullptr, FALSE, INFINITE, QS_ALLINPUT);
            runtime.DoEvents();
        }
    }

    /// Shared, because it takes the system long to show one.
    static inline std::unique_ptr<ProgramWindow> program;
    NotedRuntime runtime{GetModuleHandleW(nullptr)};
    win32::Win32World world{GetModuleHandleW(nullptr), program->get(), &runtime};
    TestHost host;
    RecordingEvents events;
    std::unique_ptr<lmListView> list;
    Mouse mouse{runtime};
};

} // namespace lumtex::testing
