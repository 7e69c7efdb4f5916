/// \file
/// The control's own page in a sheet of properties.
#pragma once

#include "activex/settings_preview.h"
#include "worlds/win32/counted_object.h"

#include <memory>
#include <optional>
#include <span>
#include <vector>

namespace lumtex::win32 {

/// Choices and switches of the list, and beside them a list that shows what they make of it. Nothing reaches
/// the edited objects before `Apply`; with several, the page starts from the values of the first, and gives
/// all of them what the user changed. Objects answer late-bound calls. Starts with one reference, the
/// caller's.
class GeneralPage final : public CountedObject<IPropertyPage2> {
  public:
    GeneralPage() = default;

    /// In the order of the page; what a property's type is decides how it is shown.
    static std::span<const StringView> shownProperties();

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** found) override;

    /// Null to let the site go; a second one is E_UNEXPECTED.
    HRESULT STDMETHODCALLTYPE SetPageSite(IPropertyPageSite* site) override;
    /// `place` in pixels of the parent. Needs objects first, and one Deactivate between two.
    HRESULT STDMETHODCALLTYPE Activate(HWND parent, LPCRECT place, WINBOOL modal) override;
    HRESULT STDMETHODCALLTYPE Deactivate() override;
    /// The title in the language of the site. The caller frees the texts.
    HRESULT STDMETHODCALLTYPE GetPageInfo(PROPPAGEINFO* info) override;
    HRESULT STDMETHODCALLTYPE SetObjects(ULONG count, IUnknown** objects) override;
    HRESULT STDMETHODCALLTYPE Show(UINT command) override;
    HRESULT STDMETHODCALLTYPE Move(LPCRECT place) override;
    HRESULT STDMETHODCALLTYPE IsPageDirty() override;
    /// The host may end page and objects in between. Goes on where an object refuses a value, and gives the
    /// first failure.
    HRESULT STDMETHODCALLTYPE Apply() override;
    HRESULT STDMETHODCALLTYPE Help(LPCOLESTR /*folder*/) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE TranslateAccelerator(MSG* message) override;
    /// Gives the property's field the focus.
    HRESULT STDMETHODCALLTYPE EditProperty(DISPID property) override;

  private:
    /// One property on the page.
    struct Field {
        const automation::Member* property;
        HWND box = nullptr;           ///< the switch, or the list of choices
        std::optional<Variant> value; ///< what the user chose; none while nothing waits to be applied
    };

    ~GeneralPage() override;

    static INT_PTR CALLBACK procedure(HWND page, UINT message, WPARAM wParam, LPARAM lParam) noexcept;
    void makeFields();
    HWND makeChild(const wchar_t* kind, const String& text, DWORD style, RECT units);
    void readObjects();
    void show(const Field& field, const Variant& value);
    Variant chosenIn(const Field& field) const;
    void changed(HWND box);
    void paint(const DRAWITEMSTRUCT& item);
    LCID locale() const;
    void closeWindow();

    ComRef<IPropertyPageSite> site_;
    std::vector<ComRef<IUnknown>> objects_;
    HWND page_ = nullptr;
    HWND picture_ = nullptr; ///< where the preview is painted
    std::vector<Field> fields_;
    std::shared_ptr<SettingsPreview> preview_; ///< made when it is first painted; held by whoever calls it
};

} // namespace lumtex::win32
