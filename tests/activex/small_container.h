/// \file
/// A container with one site and a window.
#pragma once

#include "component.h"

#include <functional>
#include <map>

namespace lumtex::testing {

/// A shown window of the program, 500 x 400 pixels at the corner of the screen. All containers lie in this
/// one: it takes the system two seconds to show a window that lies in no other.
inline HWND programWindow() {
    static const HWND window = CreateWindowExW(0,
                                               L"STATIC",
                                               L"program",
                                               WS_POPUP | WS_VISIBLE | WS_CLIPCHILDREN,
                                               0,
                                               0,
                                               500,
                                               400,
                                               nullptr,
                                               nullptr,
                                               nullptr,
                                               nullptr);
    return window;
}

/// Answers ambient properties, places the control, and notes what it is told.
class SmallContainer final : public IOleClientSite,
                             public IOleInPlaceSite,
                             public IOleInPlaceFrame,
                             public IOleControlSite,
                             public IDispatch {
  public:
    SmallContainer()
        : window(CreateWindowExW(0,
                                 L"STATIC",
                                 L"",
                                 WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN,
                                 0,
                                 0,
                                 500,
                                 400,
                                 programWindow(),
                                 nullptr,
                                 nullptr,
                                 nullptr)) {}
    SmallContainer(const SmallContainer&) = delete;
    SmallContainer& operator=(const SmallContainer&) = delete;
    ~SmallContainer() { DestroyWindow(window); }

    HWND window;
    RECT place{10, 20, 210, 170};
    std::map<DISPID, Variant> ambients;
    std::vector<std::string> told;
    ULONG references = 1;
    HRESULT mayTakeOver = S_OK;         ///< what OnUIActivate answers
    HRESULT propertyFrame = E_NOTIMPL;  ///< whether it shows a sheet of its own
    std::function<void()> onUIActivate; ///< what the container does then, once
    std::function<void()> onTab;        ///< the same for that key
    bool takesTab = false;              ///< keeps Tab for itself
    HACCEL accelerators = nullptr;      ///< the frame's, of the frame's owner
    std::vector<WORD> commands;         ///< what keys of that table asked for
    std::vector<bool> focused;          ///< the focus came, or went
    std::vector<bool> modeless;         ///< the container's own windows may be used, or not

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** found) override {
        *found = nullptr;
        if (IsEqualIID(iid, IID_IUnknown) || IsEqualIID(iid, IID_IOleClientSite))
            *found = static_cast<IOleClientSite*>(this);
        else if (IsEqualIID(iid, IID_IOleInPlaceSite) || IsEqualIID(iid, IID_IOleWindow))
            *found = static_cast<IOleInPlaceSite*>(this);
        else if (IsEqualIID(iid, IID_IOleControlSite))
            *found = static_cast<IOleControlSite*>(this);
        else if (IsEqualIID(iid, IID_IDispatch))
            *found = static_cast<IDispatch*>(this);
        if (*found == nullptr)
            return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references; }
    ULONG STDMETHODCALLTYPE Release() override { return --references; }

    // IOleClientSite
    HRESULT STDMETHODCALLTYPE SaveObject() override { return note("SaveObject"); }
    HRESULT STDMETHODCALLTYPE GetMoniker(DWORD /*assign*/, DWORD /*which*/, IMoniker** /*moniker*/) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE GetContainer(IOleContainer** container) override {
        *container = nullptr;
        return E_NOINTERFACE;
    }
    HRESULT STDMETHODCALLTYPE ShowObject() override { return note("ShowObject"); }
    HRESULT STDMETHODCALLTYPE OnShowWindow(BOOL /*show*/) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE RequestNewObjectLayout() override { return E_NOTIMPL; }

    // IOleInPlaceSite
    HRESULT STDMETHODCALLTYPE GetWindow(HWND* found) override {
        *found = window;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(BOOL /*enter*/) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE CanInPlaceActivate() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnInPlaceActivate() override { return note("OnInPlaceActivate"); }
    HRESULT STDMETHODCALLTYPE OnUIActivate() override {
        note("OnUIActivate");
        if (onUIActivate)
            std::exchange(onUIActivate, nullptr)();
        return mayTakeOver;
    }
    HRESULT STDMETHODCALLTYPE GetWindowContext(IOleInPlaceFrame** frame,
                                               IOleInPlaceUIWindow** document,
                                               LPRECT position,
                                               LPRECT clip,
                                               LPOLEINPLACEFRAMEINFO info) override {
        *frame = this;
        AddRef();
        *document = nullptr;
        *position = place;
        GetClientRect(window, clip);
        info->fMDIApp = FALSE;
        info->hwndFrame = window;
        info->haccel = accelerators;
        info->cAccelEntries =
            accelerators != nullptr ? static_cast<UINT>(CopyAcceleratorTableW(accelerators, nullptr, 0)) : 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Scroll(SIZE /*extent*/) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnUIDeactivate(BOOL /*undoable*/) override { return note("OnUIDeactivate"); }
    HRESULT STDMETHODCALLTYPE OnInPlaceDeactivate() override { return note("OnInPlaceDeactivate"); }
    HRESULT STDMETHODCALLTYPE DiscardUndoState() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE DeactivateAndUndo() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnPosRectChange(LPCRECT /*position*/) override { return S_OK; }

    // IOleInPlaceFrame
    HRESULT STDMETHODCALLTYPE GetBorder(LPRECT /*border*/) override { return INPLACE_E_NOTOOLSPACE; }
    HRESULT STDMETHODCALLTYPE RequestBorderSpace(LPCBORDERWIDTHS /*widths*/) override {
        return INPLACE_E_NOTOOLSPACE;
    }
    HRESULT STDMETHODCALLTYPE SetBorderSpace(LPCBORDERWIDTHS /*widths*/) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE SetActiveObject(IOleInPlaceActiveObject* object, LPCOLESTR /*name*/) override {
        active = win32::ComRef<IOleInPlaceActiveObject>(object);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE InsertMenus(HMENU /*menu*/, LPOLEMENUGROUPWIDTHS /*widths*/) override {
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE SetMenu(HMENU /*menu*/, HOLEMENU /*shared*/, HWND /*window*/) override {
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE RemoveMenus(HMENU /*menu*/) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE SetStatusText(LPCOLESTR /*text*/) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE EnableModeless(BOOL enable) override {
        modeless.push_back(enable != FALSE);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE TranslateAccelerator(LPMSG /*message*/, WORD id) override {
        commands.push_back(id);
        return S_OK;
    }

    // IOleControlSite
    HRESULT STDMETHODCALLTYPE OnControlInfoChanged() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE LockInPlaceActive(BOOL /*lock*/) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE GetExtendedControl(IDispatch** control) override {
        *control = win32::ComRef<IDispatch>(extender).detach();
        return extender ? S_OK : E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE TransformCoords(POINTL* /*himetric*/,
                                              POINTF* /*own*/,
                                              DWORD /*flags*/) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE TranslateAccelerator(MSG* message, DWORD /*modifiers*/) override {
        note("TranslateAccelerator " + std::to_string(message->wParam));
        if (onTab && message->wParam == VK_TAB)
            std::exchange(onTab, nullptr)();
        return takesTab && message->wParam == VK_TAB ? S_OK : S_FALSE;
    }
    HRESULT STDMETHODCALLTYPE OnFocus(BOOL got) override {
        focused.push_back(got != FALSE);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE ShowPropertyFrame() override {
        note("ShowPropertyFrame");
        return propertyFrame;
    }

    // IDispatch
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        *count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT /*index*/, LCID /*locale*/, ITypeInfo** /*info*/) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(
        REFIID /*iid*/, LPOLESTR* /*names*/, UINT /*count*/, LCID /*locale*/, DISPID* /*ids*/) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id,
                                     REFIID /*iid*/,
                                     LCID /*locale*/,
                                     WORD /*kind*/,
                                     DISPPARAMS* /*parameters*/,
                                     VARIANT* result,
                                     EXCEPINFO* /*details*/,
                                     UINT* /*wrongArgument*/) override {
        const auto found = ambients.find(id);
        if (found == ambients.end())
            return DISP_E_MEMBERNOTFOUND;
        *result = win32::toVARIANT(found->second).release();
        return S_OK;
    }

    win32::ComRef<IOleInPlaceActiveObject> active;
    win32::ComRef<IDispatch> extender; ///< the container's own object around the control

  private:
    HRESULT note(const std::string& what) {
        told.push_back(what);
        return S_OK;
    }
};

/// A container's bag.
class MapBag : public IPropertyBag {
  public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID /*iid*/, void** found) override {
        *found = nullptr;
        return E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    HRESULT STDMETHODCALLTYPE Read(LPCOLESTR name, VARIANT* value, IErrorLog* /*log*/) override {
        const auto found = values.find(String(win32::textOf(name)));
        if (found == values.end())
            return E_INVALIDARG;
        *value = win32::toVARIANT(found->second).release();
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Write(LPCOLESTR name, VARIANT* value) override {
        values[String(win32::textOf(name))] = win32::fromVARIANT(*value);
        return S_OK;
    }

    std::map<String, Variant> values;
};

} // namespace lumtex::testing
