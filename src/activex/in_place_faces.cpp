/// Activation, ambient properties and keys.
#include "activex/in_place_faces.h"

#include "activex/com_guard.h"

namespace lumtex {

namespace {

HRESULT giveWindow(ControlCore& core, HWND* window) {
    if (window == nullptr)
        return E_POINTER;
    *window = core.window();
    return S_OK;
}

} // namespace

HRESULT OleControlFace::GetControlInfo(CONTROLINFO* info) {
    if (info == nullptr)
        return E_POINTER;
    info->hAccel = nullptr;
    info->cAccel = 0;
    info->dwFlags = 0;
    return S_OK;
}

HRESULT OleControlFace::OnAmbientPropertyChange(DISPID number) {
    return guarded([&] {
        core_.host().ambientChanged(number);
        if (!core_.host().UserMode())
            core_.list().Redraw();
        return S_OK;
    });
}

HRESULT OleControlFace::FreezeEvents(BOOL freeze) {
    core_.events().freeze(freeze != FALSE);
    return S_OK;
}

HRESULT InPlaceObjectFace::GetWindow(HWND* window) {
    return giveWindow(core_, window);
}

HRESULT InPlaceObjectFace::InPlaceDeactivate() {
    return guarded([&] { return core_.deactivate(); });
}

HRESULT InPlaceObjectFace::UIDeactivate() {
    return guarded([&] { return core_.deactivateUI(); });
}

HRESULT InPlaceObjectFace::SetObjectRects(LPCRECT place, LPCRECT clip) {
    if (place == nullptr)
        return E_POINTER;
    return guarded([&] {
        core_.letRects(*place, clip != nullptr ? *clip : *place);
        return S_OK;
    });
}

HRESULT ActiveObjectFace::GetWindow(HWND* window) {
    return giveWindow(core_, window);
}

HRESULT ActiveObjectFace::TranslateAccelerator(LPMSG message) {
    if (message == nullptr)
        return E_POINTER;
    const ComRef<IUnknown> alive(&outer());
    return guarded([&] { return core_.translateKey(*message); });
}

} // namespace lumtex
