/// \file
/// What designers ask of the control: its pages of properties, and how its values read.
#pragma once

#include "activex/control_core.h"
#include "activex/face.h"

namespace lumtex::win32 {

/// Our own page first, then the system's for colours, fonts and pictures.
class PagesFace final : public Face<ISpecifyPropertyPages> {
  public:
    explicit PagesFace(IUnknown& outer) : Face(outer) {}
    ~PagesFace() = default;

    HRESULT STDMETHODCALLTYPE GetPages(CAUUID* pages) override;
};

/// Enumerations read as "0 - cXPBlue", and offer all of their values so. Of all other properties it knows no
/// text and no choice (S_FALSE). A number that is no property's is refused.
class BrowsingFace final : public Face<IPerPropertyBrowsing> {
  public:
    BrowsingFace(IUnknown& outer, ControlCore& core) : Face(outer), core_(core) {}
    ~BrowsingFace() = default;

    HRESULT STDMETHODCALLTYPE GetDisplayString(DISPID property, BSTR* text) override;
    HRESULT STDMETHODCALLTYPE MapPropertyToPage(DISPID property, CLSID* page) override;
    HRESULT STDMETHODCALLTYPE GetPredefinedStrings(DISPID property,
                                                   CALPOLESTR* texts,
                                                   CADWORD* cookies) override;
    HRESULT STDMETHODCALLTYPE GetPredefinedValue(DISPID property, DWORD cookie, VARIANT* value) override;

  private:
    ControlCore& core_;
};

/// Shows the sheet of properties, by the container where it has one, and waits until it is closed. The
/// container may end the control meanwhile.
HRESULT showProperties(ControlCore& core, HWND parent);

} // namespace lumtex::win32
