/// Letting the messages of the thread through.
#include "worlds/common/nesting_level.h"
#include "worlds/win32/win32_runtime.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace lumtex::win32 {

namespace {

/// The timers that ticked in one yield.
class Ticks {
  public:
    /// Whether this timer ticked before.
    bool note(const MSG& message) {
        const std::pair timer(message.hwnd, message.wParam);
        if (std::find(seen_.begin(), seen_.end(), timer) != seen_.end())
            return true;
        seen_.push_back(timer);
        return false;
    }

  private:
    std::vector<std::pair<HWND, WPARAM>> seen_;
};

/// Takes the next message the way that its window speaks: programs without UTF-16 have windows without it.
bool takeMessage(MSG& message, bool& isWide) {
    if (!PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE))
        return false;
    isWide = message.hwnd == nullptr || IsWindowUnicode(message.hwnd);
    return (isWide ? PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)
                   : PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) != FALSE;
}

} // namespace

void Win32Runtime::DoEvents() {
    if (yieldDepth_ == deepestYield)
        return;
    const worlds::NestingLevel level(yieldDepth_);
    Ticks ticks;
    MSG message{};
    bool isWide = true;
    for (int i = 0; i < longestYield && takeMessage(message, isWide); ++i) {
        if (message.message == WM_QUIT) {
            // The program is to end: its own loop must hear of that.
            PostQuitMessage(static_cast<int>(message.wParam));
            return;
        }
        // Timers come when nothing else waits, so that nothing is left behind.
        const bool isOver = message.message == WM_TIMER && ticks.note(message);
        if (onQueued && onQueued(message))
            continue;
        TranslateMessage(&message);
        if (isWide)
            DispatchMessageW(&message);
        else
            DispatchMessageA(&message);
        if (isOver)
            return;
    }
}

bool Win32Runtime::hasPendingEvents() const {
    return HIWORD(GetQueueStatus(QS_ALLINPUT)) != 0;
}

} // namespace lumtex::win32
