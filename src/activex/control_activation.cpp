/// A control takes its place in the container's window, and leaves it.
#include "activex/control_core.h"

namespace lumtex::win32 {

HRESULT ControlCore::activateInPlace(IOleInPlaceSite& site) {
    if (inPlaceActive_) {
        list().window().letVisible(true);
        return S_OK;
    }
    if (site.CanInPlaceActivate() != S_OK)
        return OLE_E_NOT_INPLACEACTIVE;
    const HRESULT told = site.OnInPlaceActivate();
    if (FAILED(told))
        return told;
    const HRESULT placed = enterContainer(site);
    if (FAILED(placed)) {
        site.OnInPlaceDeactivate();
        return placed;
    }
    if (host_.site() != nullptr)
        host_.site()->ShowObject();
    return S_OK;
}

HRESULT ControlCore::enterContainer(IOleInPlaceSite& site) {
    HWND container = nullptr;
    if (FAILED(site.GetWindow(&container)) || container == nullptr)
        return E_FAIL;
    RECT place{};
    RECT clip{};
    // The table of accelerators in it stays the container's.
    frameInfo_ = {};
    frameInfo_.cb = sizeof(frameInfo_);
    const HRESULT context = site.GetWindowContext(frame_.out(), uiWindow_.out(), &place, &clip, &frameInfo_);
    if (FAILED(context))
        return context;
    if (SetParent(window(), container) == nullptr)
        return E_FAIL;
    inPlaceActive_ = true;
    letRects(place, clip);
    list().window().letVisible(true);
    if (!std::exchange(painted_, true))
        list().Redraw();
    return S_OK;
}

/// The container lets the control go that was active before, and may refuse.
HRESULT ControlCore::activateUI(IOleInPlaceSite& site) {
    if (!std::exchange(uiActive_, true)) {
        const HRESULT told = site.OnUIActivate();
        if (FAILED(told)) {
            uiActive_ = false;
            return told;
        }
        const auto active = queryFor<IOleInPlaceActiveObject>(&outer_);
        constexpr const wchar_t* name = L"lmListView";
        if (frame_) {
            frame_->SetActiveObject(active.get(), name);
            frame_->SetBorderSpace(nullptr);
        }
        if (uiWindow_)
            uiWindow_->SetActiveObject(active.get(), name);
    }
    if (uiActive_ && !hasFocus())
        SetFocus(window());
    return S_OK;
}

HRESULT ControlCore::activate(bool withFocus) {
    const ComRef<IUnknown> alive(&outer_);
    const auto site = queryFor<IOleInPlaceSite>(host_.site());
    if (!site)
        return OLE_E_NOT_INPLACEACTIVE;
    const HRESULT result = activateInPlace(*site.get());
    if (FAILED(result) || !withFocus || !inPlaceActive_)
        return result;
    return activateUI(*site.get());
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
    // Nobody would tell the frame later.
    if (frame_ && modalDepth_ > 0)
        frame_->EnableModeless(TRUE);
    frame_ = {};
    uiWindow_ = {};
    frameInfo_ = {};
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

void ControlCore::showModality(bool open) {
    const bool wasOpen = modalDepth_ > 0;
    modalDepth_ += open ? 1 : -1;
    if (frame_ && wasOpen != (modalDepth_ > 0))
        frame_->EnableModeless(open ? FALSE : TRUE);
}

} // namespace lumtex::win32
