/// \file
/// The control's picture, and the same as data.
#pragma once

#include "activex/control_core.h"
#include "activex/face.h"

namespace lumtex::win32 {

class ViewFace final : public Face<IViewObject2> {
  public:
    ViewFace(IUnknown& outer, ControlCore& core) : Face(outer), core_(core) {}
    ~ViewFace() { core_.onViewChange = nullptr; }

    HRESULT STDMETHODCALLTYPE Draw(DWORD aspect,
                                   LONG index,
                                   void* aspectInfo,
                                   DVTARGETDEVICE* device,
                                   HDC deviceDc,
                                   HDC target,
                                   LPCRECTL bounds,
                                   LPCRECTL metafileBounds,
                                   BOOL(STDMETHODCALLTYPE* goOn)(ULONG_PTR),
                                   ULONG_PTR goOnArgument) override;
    HRESULT STDMETHODCALLTYPE GetColorSet(DWORD /*aspect*/,
                                          LONG /*index*/,
                                          void* /*aspectInfo*/,
                                          DVTARGETDEVICE* /*device*/,
                                          HDC /*deviceDc*/,
                                          LOGPALETTE** /*colors*/) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE Freeze(DWORD /*aspect*/,
                                     LONG /*index*/,
                                     void* /*info*/,
                                     DWORD* /*key*/) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE Unfreeze(DWORD /*key*/) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetAdvise(DWORD aspects, DWORD flags, IAdviseSink* sink) override;
    HRESULT STDMETHODCALLTYPE GetAdvise(DWORD* aspects, DWORD* flags, IAdviseSink** sink) override;
    HRESULT STDMETHODCALLTYPE GetExtent(DWORD aspect,
                                        LONG index,
                                        DVTARGETDEVICE* device,
                                        SIZEL* extent) override;

  private:
    void tellSink();

    ControlCore& core_;
    ComRef<IAdviseSink> sink_;
    DWORD aspects_ = 0;
    DWORD flags_ = 0;
};

class DataFace final : public Face<IDataObject> {
  public:
    DataFace(IUnknown& outer, ControlCore& core) : Face(outer), core_(core) {}
    ~DataFace() = default;

    /// A metafile of the picture.
    HRESULT STDMETHODCALLTYPE GetData(FORMATETC* format, STGMEDIUM* medium) override;
    HRESULT STDMETHODCALLTYPE GetDataHere(FORMATETC* /*format*/, STGMEDIUM* /*medium*/) override {
        return DV_E_FORMATETC;
    }
    HRESULT STDMETHODCALLTYPE QueryGetData(FORMATETC* format) override;
    HRESULT STDMETHODCALLTYPE GetCanonicalFormatEtc(FORMATETC* in, FORMATETC* out) override;
    HRESULT STDMETHODCALLTYPE SetData(FORMATETC* /*format*/,
                                      STGMEDIUM* /*medium*/,
                                      BOOL /*release*/) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE EnumFormatEtc(DWORD direction, IEnumFORMATETC** formats) override;
    HRESULT STDMETHODCALLTYPE DAdvise(FORMATETC* format,
                                      DWORD flags,
                                      IAdviseSink* sink,
                                      DWORD* cookie) override;
    HRESULT STDMETHODCALLTYPE DUnadvise(DWORD cookie) override;
    HRESULT STDMETHODCALLTYPE EnumDAdvise(IEnumSTATDATA** advises) override;

  private:
    ControlCore& core_;
};

} // namespace lumtex::win32
