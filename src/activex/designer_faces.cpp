/// Pages and choices, for designers.
#include "activex/designer_faces.h"

#include "activex/general_page.h"
#include "activex/guid.h"
#include "activex/property_choices.h"
#include "activex/task_memory.h"

#include <array>

namespace lumtex::win32 {

namespace {

constexpr GUID generalPage = guidFrom(automation::generalPageUuid);

std::array<GUID, 4> allPages() {
    return {generalPage, CLSID_CColorPropPage, CLSID_CFontPropPage, CLSID_CPicturePropPage};
}

/// GUID_NULL for a property that no page shows.
GUID pageOf(const automation::Member& property) {
    using enum automation::TypeCode;
    switch (property.type.code) {
    case color:
        return CLSID_CColorPropPage;
    case font:
        return CLSID_CFontPropPage;
    case picture:
        return CLSID_CPicturePropPage;
    default:
        break;
    }
    const auto shown = GeneralPage::shownProperties();
    return std::find(shown.begin(), shown.end(), property.name) != shown.end() ? generalPage : GUID_NULL;
}

/// Null for a number that names no value of the property.
const automation::Enumerator* choiceOf(const automation::Enumeration* choices, Long number) {
    if (choices != nullptr)
        for (const automation::Enumerator& choice : choices->enumerators())
            if (choice.number == number)
                return &choice;
    return nullptr;
}

} // namespace

HRESULT PagesFace::GetPages(CAUUID* pages) {
    if (pages == nullptr)
        return E_POINTER;
    *pages = {};
    return guarded([&] {
        const auto all = allPages();
        TaskItems<GUID> given = newTaskItems<GUID>(all.size());
        std::copy(all.begin(), all.end(), given.get());
        *pages = {static_cast<ULONG>(all.size()), given.release()};
        return S_OK;
    });
}

HRESULT BrowsingFace::GetDisplayString(DISPID property, BSTR* text) {
    if (text == nullptr)
        return E_POINTER;
    *text = nullptr;
    const ComRef<IUnknown> alive(&outer());
    return core_.entered([&]() -> HRESULT {
        const automation::Member* const member = plainProperty(property);
        if (member == nullptr)
            return DISP_E_MEMBERNOTFOUND;
        const automation::Enumeration* const choices = choicesOf(*member);
        if (choices == nullptr)
            return S_FALSE;
        // Any number may be stored, also one that has no name.
        const automation::Enumerator* const choice =
            choiceOf(choices, core_.byName().get(*member, {}).toLong());
        if (choice == nullptr)
            return S_FALSE;
        *text = newBSTR(choiceText(*choice));
        return S_OK;
    });
}

HRESULT BrowsingFace::MapPropertyToPage(DISPID property, CLSID* page) {
    if (page == nullptr)
        return E_POINTER;
    *page = GUID_NULL;
    const automation::Member* const member = plainProperty(property);
    if (member == nullptr)
        return DISP_E_MEMBERNOTFOUND;
    *page = pageOf(*member);
    return IsEqualGUID(*page, GUID_NULL) ? PERPROP_E_NOPAGEAVAILABLE : S_OK;
}

HRESULT BrowsingFace::GetPredefinedStrings(DISPID property, CALPOLESTR* texts, CADWORD* cookies) {
    if (texts == nullptr || cookies == nullptr)
        return E_POINTER;
    *texts = {};
    *cookies = {};
    return guarded([&]() -> HRESULT {
        const automation::Member* const member = plainProperty(property);
        if (member == nullptr)
            return DISP_E_MEMBERNOTFOUND;
        const automation::Enumeration* const choices = choicesOf(*member);
        if (choices == nullptr)
            return S_FALSE;
        const std::size_t count = choices->count;
        std::vector<TaskItems<wchar_t>> owned;
        for (const automation::Enumerator& choice : choices->enumerators())
            owned.push_back(newTaskText(choiceText(choice)));
        TaskItems<LPOLESTR> names = newTaskItems<LPOLESTR>(count);
        TaskItems<DWORD> numbers = newTaskItems<DWORD>(count);
        for (std::size_t i = 0; i < count; ++i) {
            names[i] = owned[i].release();
            numbers[i] = static_cast<DWORD>(choices->entries[i].number);
        }
        *texts = {static_cast<ULONG>(count), names.release()};
        *cookies = {static_cast<ULONG>(count), numbers.release()};
        return S_OK;
    });
}

HRESULT BrowsingFace::GetPredefinedValue(DISPID property, DWORD cookie, VARIANT* value) {
    if (value == nullptr)
        return E_POINTER;
    VariantInit(value);
    const automation::Member* const member = plainProperty(property);
    if (member == nullptr)
        return DISP_E_MEMBERNOTFOUND;
    const automation::Enumerator* const choice = choiceOf(choicesOf(*member), static_cast<Long>(cookie));
    if (choice == nullptr)
        return E_INVALIDARG;
    V_VT(value) = VT_I4;
    V_I4(value) = choice->number;
    return S_OK;
}

HRESULT showProperties(ControlCore& core, HWND parent) {
    const ComRef<IUnknown> control(&core.outer());
    const ComRef<IOleClientSite> site(core.host().site());
    if (const auto controlSite = site.as<IOleControlSite>();
        controlSite && SUCCEEDED(controlSite->ShowPropertyFrame()))
        return S_OK;
    std::array<GUID, 4> pages = allPages();
    IUnknown* shown = control.get();
    return OleCreatePropertyFrame(parent,
                                  0,
                                  0,
                                  L"LumtexListView",
                                  1,
                                  &shown,
                                  static_cast<ULONG>(pages.size()),
                                  pages.data(),
                                  GetUserDefaultLCID(),
                                  0,
                                  nullptr);
}

} // namespace lumtex::win32
