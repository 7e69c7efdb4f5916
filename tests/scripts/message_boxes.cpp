#include "scripts/message_boxes.h"

#include "platform/text.h"

#include <array>

namespace lumtex::testing {

namespace {

/// The system's number of the text in a message box.
constexpr int textOfMessage = 0xFFFF;

} // namespace

bool isMessageBox(HWND window) {
    std::array<wchar_t, 16> name{};
    GetClassNameW(window, name.data(), static_cast<int>(name.size()));
    return textOf(name.data()) == u"#32770" && GetDlgItem(window, textOfMessage) != nullptr;
}

String textOfBox(HWND box) {
    std::array<wchar_t, 2000> text{};
    SendDlgItemMessageW(
        box, textOfMessage, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
    return String(textOf(text.data()));
}

void answer(HWND box) {
    PostMessageW(box, WM_COMMAND, IDOK, 0);
}

AnsweredBoxes* AnsweredBoxes::current = nullptr;

AnsweredBoxes::AnsweredBoxes()
    : hook_(SetWindowsHookExW(WH_CBT, noticed, nullptr, GetCurrentThreadId())) {
    current = this;
}

AnsweredBoxes::~AnsweredBoxes() {
    UnhookWindowsHookEx(hook_);
    current = nullptr;
}

LRESULT CALLBACK AnsweredBoxes::noticed(int what, WPARAM window, LPARAM details) {
    auto* const box = reinterpret_cast<HWND>(window);
    if (what == HCBT_ACTIVATE && isMessageBox(box)) {
        current->texts.push_back(textOfBox(box));
        answer(box);
    }
    return CallNextHookEx(nullptr, what, window, details);
}

} // namespace lumtex::testing
