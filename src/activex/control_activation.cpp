/// A control takes its place in the container's window, and leaves it.
#include "activex/control_core.h"

#include <algorithm>

namespace lumtex {

namespace {

/// Keys that the list needs and that containers would take for moving between controls.
bool movesInTheList(WPARAM key) {
    constexpr WPARAM keys[] = {VK_LEFT, VK_RIGHT, VK_UP, VK_DOWN, VK_HOME, VK_END, VK_PRIOR, VK_NEXT};
    return std::ranges::find(keys, key) != std::end(keys);
}

bool isHeld(int key) {
    return GetKeyState(key) < 0;
}

} // namespace

HRESULT ControlCore::activateInPlace(IOleInPlaceSite& site) {
    if (inPlaceActive_)
        return S_OK;
    if (site.CanInPlaceActivate() != S_OK)
        return OLE_E_NOT_INPLACEACTIVE;
    site.OnInPlaceActivate();
    HWND container = nullptr;
    if (FAILED(site.GetWindow(&container)) || container == nullptr)
        return E_FAIL;
    RECT place{};
    RECT clip{};
    OLEINPLACEFRAMEINFO info{};
    info.cb = sizeof(info);
    const HRESULT context = site.GetWindowContext(frame_.out(), uiWindow_.out(), &place, &clip, &info);
    if (info.haccel != nullptr)
        DestroyAcceleratorTable(info.haccel);
    if (FAILED(context))
        return context;
    inPlaceActive_ = true;
    SetParent(window(), container);
    letRects(place, clip);
    list().window().letVisible(true);
    if (!std::exchange(painted_, true))
        list().Redraw();
    if (host_.site() != nullptr)
        host_.site()->ShowObject();
    return S_OK;
}

bool ControlCore::hasFocus() {
    const HWND focus = GetFocus();
    return focus != nullptr && (focus == window() || IsChild(window(), focus) != FALSE);
}

void ControlCore::activateUI(IOleInPlaceSite& site, IOleInPlaceActiveObject& active) {
    if (std::exchange(uiActive_, true))
        return;
    site.OnUIActivate();
    constexpr const wchar_t* name = L"lmListView";
    if (frame_) {
        frame_->SetActiveObject(&active, name);
        frame_->SetBorderSpace(nullptr);
    }
    if (uiWindow_)
        uiWindow_->SetActiveObject(&active, name);
    if (!hasFocus())
        SetFocus(window());
}

HRESULT ControlCore::activate(bool withFocus, IOleInPlaceActiveObject& active, IOleInPlaceObject& object) {
    const ComRef<IOleInPlaceObject> alive(&object);
    const auto site = queryFor<IOleInPlaceSite>(host_.site());
    if (!site)
        return OLE_E_NOT_INPLACEACTIVE;
    const HRESULT result = activateInPlace(*site.get());
    if (FAILED(result) || !withFocus || !inPlaceActive_)
        return result;
    activateUI(*site.get(), active);
    return S_OK;
}

HRESULT ControlCore::deactivateUI() {
    if (!std::exchange(uiActive_, false))
        return S_OK;
    if (uiWindow_)
        uiWindow_->SetActiveObject(nullptr, nullptr);
    if (frame_)
        frame_->SetActiveObject(nullptr, nullptr);
    if (const auto site = queryFor<IOleInPlaceSite>(host_.site()))
        site->OnUIDeactivate(FALSE);
    return S_OK;
}

HRESULT ControlCore::deactivate() {
    const ComRef<IUnknown> alive(&outer_);
    deactivateUI();
    if (!std::exchange(inPlaceActive_, false))
        return S_OK;
    list_->window().letVisible(false);
    SetParent(window(), HWND_MESSAGE);
    frame_ = {};
    uiWindow_ = {};
    if (const auto site = queryFor<IOleInPlaceSite>(host_.site()))
        site->OnInPlaceDeactivate();
    return S_OK;
}

void ControlCore::letRects(const RECT& place, const RECT& clip) {
    list().window().place(static_cast<Single>(place.left),
                          static_cast<Single>(place.top),
                          static_cast<Single>(place.right - place.left),
                          static_cast<Single>(place.bottom - place.top));
    RECT seen{};
    IntersectRect(&seen, &place, &clip);
    const bool whole = EqualRect(&seen, &place) != FALSE;
    OffsetRect(&seen, -place.left, -place.top);
    // The system owns the region from here on.
    SetWindowRgn(window(), whole ? nullptr : CreateRectRgnIndirect(&seen), TRUE);
}

HRESULT ControlCore::translateKey(MSG& message) {
    if (message.message < WM_KEYFIRST || message.message > WM_KEYLAST || !hasFocus())
        return S_FALSE;
    const HWND focus = GetFocus();
    const bool inEditor = focus != window();
    const bool isKey = message.message == WM_KEYDOWN || message.message == WM_KEYUP;
    const bool ours = isKey && (movesInTheList(message.wParam) || (inEditor && message.wParam == VK_RETURN));
    if (ours && !isHeld(VK_MENU)) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
        return S_OK;
    }
    const auto site = queryFor<IOleControlSite>(host_.site());
    if (!site)
        return S_FALSE;
    constexpr DWORD shift = 1;
    constexpr DWORD control = 2;
    constexpr DWORD alt = 4;
    const DWORD held =
        (isHeld(VK_SHIFT) ? shift : 0) | (isHeld(VK_CONTROL) ? control : 0) | (isHeld(VK_MENU) ? alt : 0);
    return site->TranslateAccelerator(&message, held);
}

} // namespace lumtex
