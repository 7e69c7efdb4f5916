/// \file
/// A thing of the host's that runs host code as the last reference to it goes.
#pragma once

#include "activex/component.h"

#include <functional>
#include <utility>

#include <olectl.h>

namespace lumtex::testing {

/// What runs at each release, and how many things are alive.
struct LastReleases {
    std::function<void()> code;
    int alive = 0;
    int gone = 0;
};

/// An object without members, which also is a picture: what it shows is a picture of the system's. Born with
/// one reference.
class CallingThing final : public IPictureDisp, public IPicture {
  public:
    explicit CallingThing(LastReleases& releases) : releases_(releases) {
        PICTDESC bitmap{};
        bitmap.cbSizeofstruct = sizeof bitmap;
        bitmap.picType = PICTYPE_BITMAP;
        bitmap.bmp.hbitmap = CreateBitmap(8, 8, 1, 1, nullptr);
        win32::demand(
            OleCreatePictureIndirect(&bitmap, IID_IPicture, TRUE, reinterpret_cast<void**>(picture_.out())));
        ++releases_.alive;
    }
    CallingThing(const CallingThing&) = delete;
    CallingThing& operator=(const CallingThing&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** found) override {
        *found = nullptr;
        if (IsEqualIID(iid, IID_IUnknown) || IsEqualIID(iid, IID_IDispatch) ||
            IsEqualIID(iid, IID_IPictureDisp))
            *found = static_cast<IPictureDisp*>(this);
        else if (IsEqualIID(iid, IID_IPicture))
            *found = static_cast<IPicture*>(this);
        if (*found == nullptr)
            return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() override {
        if (--references_ != 0)
            return references_;
        delete this;
        return 0;
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
        return DISP_E_UNKNOWNNAME;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID /*id*/,
                                     REFIID /*iid*/,
                                     LCID /*locale*/,
                                     WORD /*kind*/,
                                     DISPPARAMS* /*parameters*/,
                                     VARIANT* /*result*/,
                                     EXCEPINFO* /*details*/,
                                     UINT* /*wrongArgument*/) override {
        return DISP_E_MEMBERNOTFOUND;
    }

    // IPicture
    HRESULT STDMETHODCALLTYPE get_Handle(OLE_HANDLE* handle) override { return picture_->get_Handle(handle); }
    HRESULT STDMETHODCALLTYPE get_hPal(OLE_HANDLE* palette) override { return picture_->get_hPal(palette); }
    HRESULT STDMETHODCALLTYPE get_Type(SHORT* type) override { return picture_->get_Type(type); }
    HRESULT STDMETHODCALLTYPE get_Width(OLE_XSIZE_HIMETRIC* width) override {
        return picture_->get_Width(width);
    }
    HRESULT STDMETHODCALLTYPE get_Height(OLE_YSIZE_HIMETRIC* height) override {
        return picture_->get_Height(height);
    }
    HRESULT STDMETHODCALLTYPE Render(HDC target,
                                     LONG x,
                                     LONG y,
                                     LONG width,
                                     LONG height,
                                     OLE_XPOS_HIMETRIC sourceX,
                                     OLE_YPOS_HIMETRIC sourceY,
                                     OLE_XSIZE_HIMETRIC sourceWidth,
                                     OLE_YSIZE_HIMETRIC sourceHeight,
                                     LPCRECT bounds) override {
        return picture_->Render(
            target, x, y, width, height, sourceX, sourceY, sourceWidth, sourceHeight, bounds);
    }
    HRESULT STDMETHODCALLTYPE set_hPal(OLE_HANDLE palette) override { return picture_->set_hPal(palette); }
    HRESULT STDMETHODCALLTYPE get_CurDC(HDC* target) override { return picture_->get_CurDC(target); }
    HRESULT STDMETHODCALLTYPE SelectPicture(HDC target, HDC* before, OLE_HANDLE* handle) override {
        return picture_->SelectPicture(target, before, handle);
    }
    HRESULT STDMETHODCALLTYPE get_KeepOriginalFormat(BOOL* keep) override {
        return picture_->get_KeepOriginalFormat(keep);
    }
    HRESULT STDMETHODCALLTYPE put_KeepOriginalFormat(BOOL keep) override {
        return picture_->put_KeepOriginalFormat(keep);
    }
    HRESULT STDMETHODCALLTYPE PictureChanged() override { return picture_->PictureChanged(); }
    HRESULT STDMETHODCALLTYPE SaveAsFile(LPSTREAM stream, BOOL memory, LONG* size) override {
        return picture_->SaveAsFile(stream, memory, size);
    }
    HRESULT STDMETHODCALLTYPE get_Attributes(DWORD* attributes) override {
        return picture_->get_Attributes(attributes);
    }

  private:
    ~CallingThing() {
        --releases_.alive;
        ++releases_.gone;
        if (releases_.code)
            releases_.code();
    }

    LastReleases& releases_;
    win32::ComRef<IPicture> picture_;
    ULONG references_ = 1;
};

} // namespace lumtex::testing
