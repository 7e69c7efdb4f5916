/// \file
/// Message boxes that nobody answers.
#pragma once

#include "values/text.h"
#include "worlds/win32/windows_api.h"

#include <functional>
#include <vector>

#include <gtest/gtest.h>

namespace lumtex::testing {

/// The text that a message box shows. The number of the control that shows it is not the same in all versions
/// of the system; that for the icon has no text.
inline String textOfBox(HWND box) {
    String text(4096, u'\0');
    int length = 0;
    for (HWND child = nullptr; length == 0;) {
        child = FindWindowExW(box, child, L"STATIC", nullptr);
        if (child == nullptr)
            break;
        length = GetWindowTextW(child, win32::wide(text.data()), static_cast<int>(text.size()));
    }
    text.resize(static_cast<std::size_t>(length));
    return text;
}

inline bool isMessageBox(HWND window) {
    wchar_t className[8] = L"";
    return GetClassNameW(window, className, 8) != 0 && win32::textOf(className) == u"#32770";
}

/// While one lives, a message box of this thread is dismissed as soon as it shows: it would wait for ever.
/// Its text is kept, and a box that no test took from `boxes` is a failure. One at a time.
class BoxWatch {
  public:
    BoxWatch() {
        current_ = this;
        hook_ = SetWindowsHookExW(WH_CBT, onWindow, nullptr, GetCurrentThreadId());
    }
    BoxWatch(const BoxWatch&) = delete;
    BoxWatch& operator=(const BoxWatch&) = delete;
    ~BoxWatch() {
        UnhookWindowsHookEx(hook_);
        current_ = nullptr;
        for (const String& box : boxes)
            ADD_FAILURE() << "nobody expected this box:\n" << toUtf8(box);
    }

    std::vector<String> boxes;                                 ///< texts, in the order in which they showed
    std::function<void(HWND)> whileOpen = [](HWND /*box*/) {}; ///< before it is dismissed

  private:
    static LRESULT CALLBACK onWindow(int code, WPARAM wParam, LPARAM lParam) noexcept {
        current_->look(code, reinterpret_cast<HWND>(wParam));
        return CallNextHookEx(nullptr, code, wParam, lParam);
    }
    void look(int code, HWND window) {
        if (code == HCBT_DESTROYWND && window == shown_)
            shown_ = nullptr;
        // A box may become active more than once.
        if (code != HCBT_ACTIVATE || window == shown_ || !isMessageBox(window))
            return;
        shown_ = window;
        // Its text comes later; the loop that the box runs for itself brings the tick.
        SetTimer(nullptr, 0, USER_TIMER_MINIMUM, onTick);
    }
    static void CALLBACK onTick(HWND /*none*/, UINT /*message*/, UINT_PTR timer, DWORD /*time*/) noexcept {
        KillTimer(nullptr, timer);
        if (current_ == nullptr || current_->shown_ == nullptr)
            return;
        current_->boxes.push_back(textOfBox(current_->shown_));
        current_->whileOpen(current_->shown_);
        PostMessageW(current_->shown_, WM_COMMAND, IDOK, 0);
    }

    static inline BoxWatch* current_ = nullptr;
    HWND shown_ = nullptr;
    HHOOK hook_;
};

} // namespace lumtex::testing
