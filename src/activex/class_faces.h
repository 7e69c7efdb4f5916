/// \file
/// What a container learns about the control's class, and quick ways to set it up.
#pragma once

#include "activex/control_core.h"
#include "activex/face.h"

namespace lumtex::win32 {

class ListControl;

class ClassInfoFace final : public Face<IProvideClassInfo2> {
  public:
    explicit ClassInfoFace(IUnknown& outer) : Face(outer) {}
    ~ClassInfoFace() = default;

    HRESULT STDMETHODCALLTYPE GetClassInfo(ITypeInfo** info) override;
    HRESULT STDMETHODCALLTYPE GetGUID(DWORD kind, GUID* guid) override;
};

class ConnectionsFace final : public Face<IConnectionPointContainer> {
  public:
    ConnectionsFace(IUnknown& outer, ListControl& control) : Face(outer), control_(control) {}
    ~ConnectionsFace() = default;

    HRESULT STDMETHODCALLTYPE EnumConnectionPoints(IEnumConnectionPoints** points) override;
    HRESULT STDMETHODCALLTYPE FindConnectionPoint(REFIID iid, IConnectionPoint** point) override;

  private:
    ListControl& control_;
};

/// Only the dual interfaces report failures by error objects.
class ErrorInfoFace final : public Face<ISupportErrorInfo> {
  public:
    ErrorInfoFace(IUnknown& outer, const GUID& interfaceId) : Face(outer), interfaceId_(interfaceId) {}
    ~ErrorInfoFace() = default;

    HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID iid) override {
        return IsEqualIID(iid, interfaceId_) ? S_OK : S_FALSE;
    }

  private:
    GUID interfaceId_;
};

class QuickFace final : public Face<IQuickActivate> {
  public:
    QuickFace(IUnknown& outer, ListControl& control) : Face(outer), control_(control) {}
    ~QuickFace() = default;

    HRESULT STDMETHODCALLTYPE QuickActivate(QACONTAINER* container, QACONTROL* control) override;
    HRESULT STDMETHODCALLTYPE SetContentExtent(LPSIZEL extent) override;
    HRESULT STDMETHODCALLTYPE GetContentExtent(LPSIZEL extent) override;

  private:
    ListControl& control_;
};

} // namespace lumtex::win32
