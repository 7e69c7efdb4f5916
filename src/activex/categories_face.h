/// \file
/// Under which headings designers list the properties.
#pragma once

#include "activex/face.h"
#include "activex/guid.h"

namespace lumtex::win32 {

/// The system's headers do not have it.
struct ICategorizeProperties : IUnknown {
    static constexpr GUID interfaceId = guidFrom("4d07fc10-f931-11ce-b001-00aa006884e5");

    virtual HRESULT STDMETHODCALLTYPE MapPropertyToCategory(DISPID property, int* category) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetCategoryName(int category, LCID locale, BSTR* name) = 0;

  protected:
    ~ICategorizeProperties() = default;
};

/// Below 0 the categories that all designers know, above it those of the list alone. A number that is no
/// property's is DISP_E_MEMBERNOTFOUND; a property that no designer lists, as it is of the running list
/// alone, E_FAIL; a category that no property has, E_INVALIDARG. Names are German for German locales, English
/// for all others, and belong to the caller.
class CategoriesFace final : public Face<ICategorizeProperties> {
  public:
    explicit CategoriesFace(IUnknown& outer) : Face(outer) {}
    ~CategoriesFace() = default;

    HRESULT STDMETHODCALLTYPE MapPropertyToCategory(DISPID property, int* category) override;
    HRESULT STDMETHODCALLTYPE GetCategoryName(int category, LCID locale, BSTR* name) override;
};

} // namespace lumtex::win32
