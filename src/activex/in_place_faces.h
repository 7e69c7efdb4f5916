/// \file
/// The control while it is active in its container's window.
#pragma once

#include "activex/control_core.h"
#include "activex/face.h"

namespace lumtex::win32 {

class OleControlFace final : public Face<IOleControl> {
  public:
    OleControlFace(IUnknown& outer, ControlCore& core) : Face(outer), core_(core) {}
    ~OleControlFace() = default;

    HRESULT STDMETHODCALLTYPE GetControlInfo(CONTROLINFO* info) override;
    /// There are no mnemonics.
    HRESULT STDMETHODCALLTYPE OnMnemonic(MSG* /*message*/) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnAmbientPropertyChange(DISPID number) override;
    HRESULT STDMETHODCALLTYPE FreezeEvents(BOOL freeze) override;

  private:
    ControlCore& core_;
};

class InPlaceObjectFace final : public Face<IOleInPlaceObject> {
  public:
    InPlaceObjectFace(IUnknown& outer, ControlCore& core) : Face(outer), core_(core) {}
    ~InPlaceObjectFace() = default;

    HRESULT STDMETHODCALLTYPE GetWindow(HWND* window) override;
    HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL /*enter*/) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE InPlaceDeactivate() override;
    HRESULT STDMETHODCALLTYPE UIDeactivate() override;
    HRESULT STDMETHODCALLTYPE SetObjectRects(LPCRECT place, LPCRECT clip) override;
    HRESULT STDMETHODCALLTYPE ReactivateAndUndo() override { return INPLACE_E_NOTUNDOABLE; }

  private:
    ControlCore& core_;
};

class ActiveObjectFace final : public Face<IOleInPlaceActiveObject> {
  public:
    ActiveObjectFace(IUnknown& outer, ControlCore& core) : Face(outer), core_(core) {}
    ~ActiveObjectFace() = default;

    HRESULT STDMETHODCALLTYPE GetWindow(HWND* window) override;
    HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL /*enter*/) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE TranslateAccelerator(LPMSG message) override;
    HRESULT STDMETHODCALLTYPE OnFrameWindowActivate(BOOL /*activate*/) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnDocWindowActivate(BOOL /*activate*/) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE ResizeBorder(LPCRECT /*border*/,
                                           IOleInPlaceUIWindow* /*window*/,
                                           BOOL /*frame*/) override {
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE EnableModeless(BOOL /*enable*/) override { return S_OK; }

  private:
    ControlCore& core_;
};

} // namespace lumtex::win32
