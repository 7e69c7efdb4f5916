/// Focus and keys, between the list and its container.
#include "activex/control_core.h"
#include "worlds/win32/shift_keys.h"
#include "worlds/win32/win32_window.h"

#include <algorithm>

namespace lumtex::win32 {

namespace {

/// Keys that the list needs and that containers would take for moving between controls.
bool movesInTheList(WPARAM key) {
    constexpr WPARAM keys[] = {VK_LEFT, VK_RIGHT, VK_UP, VK_DOWN, VK_HOME, VK_END, VK_PRIOR, VK_NEXT};
    return std::ranges::find(keys, key) != std::end(keys);
}

bool isOfKeyboard(const MSG& message) {
    return message.message >= WM_KEYFIRST && message.message <= WM_KEYLAST;
}

} // namespace

bool ControlCore::holds(HWND other) {
    return other != nullptr && (other == window() || IsChild(window(), other) != FALSE);
}

bool ControlCore::hasFocus() {
    return holds(GetFocus());
}

/// Where the focus came by the mouse or by a call, not by a verb of the container, it hears of that.
std::optional<LRESULT> ControlCore::seeMessage(const WindowMessage& message) {
    // Who hears of the focus may let go of the control.
    const ComRef<IUnknown> heard(message.number == WM_SETFOCUS ? &outer_ : nullptr);
    if (message.window == window() && speaker_) {
        if (message.number == WM_GETOBJECT) {
            const LRESULT spoken = speaker_->answer(message.wParam, message.lParam);
            return spoken != 0 ? std::optional(spoken) : std::nullopt;
        }
        if (message.number == WM_SETFOCUS)
            speaker_->tellFocus();
        if (message.number == WM_DESTROY)
            speaker_->tellEnd();
    }
    if (!inPlaceActive_ || !host_.UserMode())
        return {};
    const auto passes = [&] { return !holds(reinterpret_cast<HWND>(message.wParam)); };
    const bool comes = (message.number == WM_SETFOCUS && passes()) ||
                       (message.number == WM_MOUSEACTIVATE && !uiActive_ && hasFocus());
    if (!comes && (message.number != WM_KILLFOCUS || !passes()))
        return {};
    const ComRef<IUnknown> alive(&outer_);
    focusChanged(comes);
    // Nobody is left to deal with the message where the container took the window away.
    return IsWindow(message.window) != FALSE ? std::optional<LRESULT>() : 0;
}

void ControlCore::focusChanged(bool got) {
    const ComRef<IOleClientSite> client(host_.site());
    if (got) {
        if (const auto site = client.as<IOleInPlaceSite>())
            activateUI(*site.get());
    }
    if (const auto site = client.as<IOleControlSite>())
        site->OnFocus(got ? TRUE : FALSE);
}

HRESULT ControlCore::translateKey(MSG& message) {
    if (!isOfKeyboard(message) || !hasFocus())
        return S_FALSE;
    const Win32Window* const list = Win32Window::of(window());
    const bool inEditor = list != nullptr && list->hasBox(GetFocus());
    const bool isKey = message.message == WM_KEYDOWN || message.message == WM_KEYUP;
    // Enter closes the editor as a character, which has the same number.
    const bool closesEditor =
        inEditor && (isKey || message.message == WM_CHAR) && message.wParam == VK_RETURN;
    const bool ours = closesEditor || (isKey && movesInTheList(message.wParam));
    if (ours && !isKeyDown(VK_MENU)) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
        return S_OK;
    }
    const auto site = queryFor<IOleControlSite>(host_.site());
    // The modifiers have the same bits there as in our events.
    const bool taken = site && site->TranslateAccelerator(&message, static_cast<DWORD>(shiftKeys())) == S_OK;
    return taken ? S_OK : S_FALSE;
}

bool ControlCore::offerKey(MSG& message) {
    if (!isOfKeyboard(message))
        return false;
    // The list with the focus may be another one of the same container.
    if (Win32World* const owner = Win32World::of(message.hwnd); owner != nullptr && owner != &world_) {
        const auto& offer = owner->ownRuntime().onQueued;
        return offer && offer(message);
    }
    const ComRef<IUnknown> alive(&outer_);
    if (uiActive_ && translateKey(message) == S_OK)
        return true;
    return frame_ && frameInfo_.haccel != nullptr &&
           OleTranslateAccelerator(frame_.get(), &frameInfo_, &message) == S_OK;
}

} // namespace lumtex::win32
