#include "user_input.h"

#include "worlds/headless/keyboard.h"

#include <array>
#include <utility>
#include <vector>

namespace lumtex::testing {

namespace {

struct ShiftKey {
    Integer mask;
    WORD key;
};
constexpr std::array<ShiftKey, 3> shiftKeyTable{
    {{keys::shiftMask, VK_SHIFT}, {keys::controlMask, VK_CONTROL}, {keys::altMask, VK_MENU}}};

struct ButtonInput {
    MouseButton button;
    int key;
    DWORD down;
    DWORD up;
};
constexpr std::array<ButtonInput, 3> buttonTable{
    {{leftButton, VK_LBUTTON, MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP},
     {rightButton, VK_RBUTTON, MOUSEEVENTF_RIGHTDOWN, MOUSEEVENTF_RIGHTUP},
     {middleButton, VK_MBUTTON, MOUSEEVENTF_MIDDLEDOWN, MOUSEEVENTF_MIDDLEUP}}};

const ButtonInput& inputOf(MouseButton button) {
    for (const ButtonInput& entry : buttonTable)
        if (entry.button == button)
            return entry;
    return buttonTable.front();
}

/// 0 for a key that is no shift key.
Integer maskOf(Integer keyCode) {
    for (const ShiftKey& entry : shiftKeyTable)
        if (static_cast<Integer>(entry.key) == keyCode)
            return entry.mask;
    return 0;
}

bool isDownNow(int key) {
    return GetAsyncKeyState(key) < 0;
}

void sendKey(WORD key, DWORD flags) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    if ((flags & KEYEVENTF_UNICODE) != 0)
        input.ki.wScan = key;
    else
        input.ki.wVk = key;
    input.ki.dwFlags = flags;
    SendInput(1, &input, sizeof(input));
}

/// Without any window hearing of it.
void turnSilently(WORD key, DWORD flags) {
    sendKey(key, flags);
    MSG message{};
    while (PeekMessageW(&message, nullptr, WM_KEYFIRST, WM_KEYLAST, PM_REMOVE) != FALSE) {
    }
}

/// Holds shift keys down that no window hears of.
class SilentKeys {
  public:
    explicit SilentKeys(Integer shift) {
        for (const ShiftKey& entry : shiftKeyTable) {
            if ((shift & entry.mask) == 0 || isDownNow(entry.key))
                continue;
            held_.push_back(entry.key);
            turnSilently(entry.key, 0);
        }
    }
    SilentKeys(const SilentKeys&) = delete;
    SilentKeys& operator=(const SilentKeys&) = delete;
    ~SilentKeys() {
        for (const WORD key : held_)
            turnSilently(key, KEYEVENTF_KEYUP);
    }

  private:
    std::vector<WORD> held_;
};

/// How far apart, in pixels, two presses of a double click may be; 0: no two presses are one.
void letDoubleClickWidth(int width) {
    SystemParametersInfoW(SPI_SETDOUBLECLKWIDTH, static_cast<UINT>(width), nullptr, 0);
}

/// The display tells the thread how its mouse moved, at a time of its own. Waits for that: questions are
/// answered in turn, so that after a few of them all that was told before has arrived.
void awaitDisplay() {
    BOOL answer = FALSE;
    for (int i = 0; i < 3; ++i)
        SystemParametersInfoW(SPI_GETSCREENSAVEACTIVE, 0, &answer, 0);
    MSG message{};
    PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE);
}

constexpr UINT longest = 5000; ///< between two presses of a double click, in milliseconds, on a busy machine

} // namespace

UserInput::UserInput(std::function<void()> deliver)
    : deliver_(std::move(deliver)), doubleClickWidth_(GetSystemMetrics(SM_CXDOUBLECLK)),
      doubleClickTime_(GetDoubleClickTime()) {
    letDoubleClickWidth(0);
    SetDoubleClickTime(longest);
}

UserInput::~UserInput() {
    for (const ButtonInput& entry : buttonTable)
        if (isDownNow(entry.key))
            mouse(entry.up, 0);
    for (const ShiftKey& entry : shiftKeyTable)
        if (isDownNow(entry.key))
            sendKey(entry.key, KEYEVENTF_KEYUP);
    deliver_();
    letDoubleClickWidth(doubleClickWidth_);
    SetDoubleClickTime(doubleClickTime_);
}

void UserInput::mouse(DWORD what, Integer shift, Long data) {
    const SilentKeys keys(shift);
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = what;
    input.mi.mouseData = static_cast<DWORD>(data);
    SendInput(1, &input, sizeof(input));
    deliver_();
}

void UserInput::move(POINT to, Integer shift) {
    const SilentKeys keys(shift);
    SetCursorPos(to.x, to.y);
    awaitDisplay();
    keepHeld();
    deliver_();
}

void UserInput::press(MouseButton button, Integer shift) {
    mouse(inputOf(button).down, shift);
}

void UserInput::doublePress(MouseButton button, Integer shift) {
    letDoubleClickWidth(doubleClickWidth_);
    mouse(inputOf(button).down, shift);
    letDoubleClickWidth(0);
}

void UserInput::release(MouseButton button, Integer shift) {
    mouse(inputOf(button).up, shift);
}

void UserInput::wheel(Long rotation, Integer shift) {
    mouse(MOUSEEVENTF_WHEEL, shift, rotation);
}

void UserInput::keepHeld() {
    for (const ShiftKey& entry : shiftKeyTable)
        if ((held_ & entry.mask) != 0 && !isDownNow(entry.key))
            turnSilently(entry.key, 0);
}

void UserInput::keyDown(Integer keyCode) {
    held_ = static_cast<Integer>(held_ | maskOf(keyCode));
    sendKey(static_cast<WORD>(keyCode), 0);
    deliver_();
}

void UserInput::keyUp(Integer keyCode) {
    held_ = static_cast<Integer>(held_ & ~maskOf(keyCode));
    sendKey(static_cast<WORD>(keyCode), KEYEVENTF_KEYUP);
    deliver_();
}

void UserInput::type(StringView text) {
    for (const char16_t unit : text) {
        const headless::KeyStroke stroke = headless::keyStrokeOf(unit);
        const bool hasKey = stroke.keyCode != keys::packet;
        const SilentKeys held(stroke.shift);
        const WORD key = hasKey ? static_cast<WORD>(stroke.keyCode) : static_cast<WORD>(unit);
        const DWORD flags = hasKey ? 0 : KEYEVENTF_UNICODE;
        sendKey(key, flags);
        deliver_();
        sendKey(key, flags | KEYEVENTF_KEYUP);
        deliver_();
    }
}

} // namespace lumtex::testing
