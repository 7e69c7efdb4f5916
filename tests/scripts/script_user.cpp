#include "scripts/script_user.h"

#include "values/runtime_error.h"
#include "worlds/win32/ole_picture.h"

#include <olectl.h>

namespace lumtex::testing {

namespace {

/// Handles of windows fit into a Long.
HWND windowOf(const Variant& list, StringView property = u"hwnd") {
    const Long handle = list.toObject()->get(property).toLong();
    return reinterpret_cast<HWND>(static_cast<LONG_PTR>(handle));
}

/// As the languages' own `LoadPicture` does on systems whose languages have one.
Variant loadPicture(const String& path) {
    win32::ComRef<IPictureDisp> picture;
    win32::demand(OleLoadPicturePath(const_cast<wchar_t*>(win32::wide(path)),
                                     nullptr,
                                     0,
                                     0,
                                     IID_IPictureDisp,
                                     reinterpret_cast<void**>(picture.out())));
    return win32::pictureFrom(picture.get());
}

void dispatchAll() {
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

/// Until every timer that runs has ticked: the list looks for the mouse by one.
void awaitTicks() {
    const UINT_PTR timer = SetTimer(nullptr, 0, USER_TIMER_MINIMUM, nullptr);
    int ticks = 0;
    MSG message{};
    while (ticks < 3 && GetMessageW(&message, nullptr, 0, 0) > 0) {
        if (message.message == WM_TIMER && message.hwnd == nullptr && message.wParam == timer)
            ++ticks;
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    KillTimer(nullptr, timer);
}

void useMouse(DWORD what) {
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = what;
    SendInput(1, &input, sizeof(input));
    dispatchAll();
}

void click(HWND window, Long x, Long y) {
    POINT at{x, y};
    ClientToScreen(window, &at);
    SetCursorPos(at.x, at.y);
    dispatchAll();
    awaitTicks();
    useMouse(MOUSEEVENTF_LEFTDOWN);
    useMouse(MOUSEEVENTF_LEFTUP);
    awaitTicks();
}

} // namespace

ScriptUser::~ScriptUser() {
    close();
}

void ScriptUser::close() {
    if (!shown_)
        return;
    shown_->Close(OLECLOSE_NOSAVE);
    shown_->SetClientSite(nullptr);
    shown_ = {};
    container_.reset();
}

void ScriptUser::show(const Variant& list) {
    close();
    container_ = std::make_unique<SmallContainer>();
    container_->ambients[DISPID_AMBIENT_USERMODE] = Variant(true);
    shown_ = win32::toIDispatch(list.toObject()).as<IOleObject>();
    win32::demand(shown_->SetClientSite(container_.get()));
    win32::demand(shown_->DoVerb(
        OLEIVERB_UIACTIVATE, nullptr, container_.get(), 0, container_->window, &container_->place));
    dispatchAll();
}

Variant ScriptUser::get(StringView /*name*/, std::span<Variant> /*arguments*/) {
    throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
}

void ScriptUser::put(StringView /*name*/, const Variant& /*value*/) {
    throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
}

Variant ScriptUser::call(StringView name, std::span<Variant> arguments) {
    if (sameName(name, u"LoadPicture") && arguments.size() == 1)
        return loadPicture(arguments[0].toText());
    const auto code = [&] { return static_cast<WPARAM>(arguments[1].toLong()); };
    if (sameName(name, u"Show") && arguments.size() == 1)
        show(arguments[0]);
    else if (sameName(name, u"KeyDown") && arguments.size() == 2)
        SendMessageW(windowOf(arguments[0]), WM_KEYDOWN, code(), 0);
    else if (sameName(name, u"KeyPress") && arguments.size() == 2)
        SendMessageW(windowOf(arguments[0]), WM_CHAR, code(), 0);
    else if (sameName(name, u"EditorKeyPress") && arguments.size() == 2)
        SendMessageW(windowOf(arguments[0], u"hwndEdit"), WM_CHAR, code(), 0);
    else if (sameName(name, u"Click") && arguments.size() == 3)
        click(windowOf(arguments[0]), arguments[1].toLong(), arguments[2].toLong());
    else
        throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
    return {};
}

} // namespace lumtex::testing
