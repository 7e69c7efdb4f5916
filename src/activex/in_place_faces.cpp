/// Activation, ambient properties and keys.
#include "activex/in_place_faces.h"

namespace lumtex::win32 {

namespace {

HRESULT giveWindow(ControlCore& core, HWND* window) {
    if (window == nullptr)
        return E_POINTER;
    *window = core.window();
    return *window != nullptr ? S_OK : E_FAIL;
}

} // namespace

HRESULT OleControlFace::GetControlInfo(CONTROLINFO* info) {
    if (info == nullptr)
        return E_POINTER;
    *info = {};
    info->cb = sizeof(*info);
    return S_OK;
}

HRESULT OleControlFace::OnAmbientPropertyChange(DISPID number) {
    return core_.entered([&] {
        core_.ambientChanged(number);
        return S_OK;
    });
}

HRESULT OleControlFace::FreezeEvents(BOOL freeze) {
    return core_.entered([&] {
        core_.events().freeze(freeze != FALSE);
        return S_OK;
    });
}

HRESULT InPlaceObjectFace::GetWindow(HWND* window) {
    return giveWindow(core_, window);
}

HRESULT InPlaceObjectFace::InPlaceDeactivate() {
    return core_.entered([&] { return core_.deactivate(); });
}

HRESULT InPlaceObjectFace::UIDeactivate() {
    return core_.entered([&] { return core_.deactivateUI(); });
}

HRESULT InPlaceObjectFace::SetObjectRects(LPCRECT place, LPCRECT clip) {
    if (place == nullptr)
        return E_POINTER;
    return core_.entered([&] {
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
    return core_.entered([&] { return core_.translateKey(*message); });
}

} // namespace lumtex::win32
