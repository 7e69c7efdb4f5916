/// \file
/// The control as an object embedded in a container.
#pragma once

#include "activex/control_core.h"
#include "activex/face.h"

namespace lumtex::win32 {

class ListControl;

class OleObjectFace final : public Face<IOleObject> {
  public:
    OleObjectFace(IUnknown& outer, ListControl& control) : Face(outer), control_(control) {}
    ~OleObjectFace() = default;

    HRESULT STDMETHODCALLTYPE SetClientSite(IOleClientSite* site) override;
    HRESULT STDMETHODCALLTYPE GetClientSite(IOleClientSite** site) override;
    HRESULT STDMETHODCALLTYPE SetHostNames(LPCOLESTR /*program*/, LPCOLESTR /*object*/) override {
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Close(DWORD saveOption) override;
    HRESULT STDMETHODCALLTYPE SetMoniker(DWORD /*which*/, IMoniker* /*moniker*/) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE GetMoniker(DWORD assign, DWORD which, IMoniker** moniker) override;
    HRESULT STDMETHODCALLTYPE InitFromData(IDataObject* /*data*/,
                                           BOOL /*create*/,
                                           DWORD /*reserved*/) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE GetClipboardData(DWORD reserved, IDataObject** data) override;
    HRESULT STDMETHODCALLTYPE
    DoVerb(LONG verb, LPMSG message, IOleClientSite* site, LONG index, HWND parent, LPCRECT place) override;
    HRESULT STDMETHODCALLTYPE EnumVerbs(IEnumOLEVERB** verbs) override;
    HRESULT STDMETHODCALLTYPE Update() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE IsUpToDate() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE GetUserClassID(CLSID* id) override;
    HRESULT STDMETHODCALLTYPE GetUserType(DWORD form, LPOLESTR* type) override;
    HRESULT STDMETHODCALLTYPE SetExtent(DWORD aspect, SIZEL* extent) override;
    HRESULT STDMETHODCALLTYPE GetExtent(DWORD aspect, SIZEL* extent) override;
    HRESULT STDMETHODCALLTYPE Advise(IAdviseSink* sink, DWORD* cookie) override;
    HRESULT STDMETHODCALLTYPE Unadvise(DWORD cookie) override;
    HRESULT STDMETHODCALLTYPE EnumAdvise(IEnumSTATDATA** advises) override;
    HRESULT STDMETHODCALLTYPE GetMiscStatus(DWORD aspect, DWORD* status) override;
    HRESULT STDMETHODCALLTYPE SetColorScheme(LOGPALETTE* /*palette*/) override { return E_NOTIMPL; }

  private:
    ListControl& control_;
};

/// What the class promises to containers: `OLEMISC` bits.
constexpr DWORD controlMiscStatus = OLEMISC_RECOMPOSEONRESIZE | OLEMISC_CANTLINKINSIDE | OLEMISC_INSIDEOUT |
                                    OLEMISC_ACTIVATEWHENVISIBLE | OLEMISC_SETCLIENTSITEFIRST;

} // namespace lumtex::win32
