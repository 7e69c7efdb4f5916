/// The page's life in its frame, and how values come and go.
#include "activex/general_page.h"

#include "activex/com_guard.h"
#include "activex/module.h"
#include "activex/property_choices.h"
#include "activex/task_memory.h"
#include "words/phrase.h"
#include "worlds/win32/object_bridge.h"
#include "worlds/win32/win32_locale.h"

#include <algorithm>

namespace lumtex::win32 {

namespace {

constexpr int dialogNumber = 201; // in the resources
constexpr words::Phrase title = words::phrase(u"page", u"general");

constexpr StringView onPage[] = {
    u"ColorStyle",
    u"ScrollColorStyle",
    u"Style",
    u"WheelFunction",
    u"TextPositionDefault",
    u"Enabled",
    u"FullRowSelect",
    u"MultiSelect",
    u"AllowEdit",
    u"GridLines",
    u"BorderVisible",
    u"FixColumns",
    u"RowsDynamic",
    u"AutoRowColor",
    u"HideColumnHeaders",
};

INT_PTR CALLBACK nothing(HWND /*dialog*/, UINT /*message*/, WPARAM /*wParam*/, LPARAM /*lParam*/) {
    return FALSE;
}

/// Pixels. A dialog is made to be measured: its units follow the user's font.
SIZE dialogSize() {
    HWND const dialog =
        CreateDialogParamW(moduleInstance(), MAKEINTRESOURCEW(dialogNumber), GetDesktopWindow(), nothing, 0);
    RECT place{};
    GetWindowRect(dialog, &place);
    DestroyWindow(dialog);
    return {place.right - place.left, place.bottom - place.top};
}

} // namespace

std::span<const StringView> GeneralPage::shownProperties() {
    return onPage;
}

GeneralPage::~GeneralPage() {
    closeWindow();
}

HRESULT GeneralPage::QueryInterface(REFIID iid, void** found) {
    const bool older = IsEqualIID(iid, IID_IPropertyPage);
    return CountedObject::QueryInterface(older ? IID_IPropertyPage2 : iid, found);
}

HRESULT GeneralPage::SetPageSite(IPropertyPageSite* site) {
    if (site != nullptr && site_)
        return E_UNEXPECTED;
    site_ = ComRef<IPropertyPageSite>(site);
    return S_OK;
}

LCID GeneralPage::locale() const {
    LCID locale = GetUserDefaultLCID();
    if (site_)
        site_->GetLocaleID(&locale);
    return locale;
}

HRESULT GeneralPage::Activate(HWND parent, LPCRECT place, WINBOOL /*modal*/) {
    if (place == nullptr)
        return E_POINTER;
    if (page_ != nullptr || objects_.empty())
        return E_UNEXPECTED;
    const ComRef<GeneralPage> alive(this);
    return guarded([&]() -> HRESULT {
        page_ = CreateDialogParamW(moduleInstance(),
                                   MAKEINTRESOURCEW(dialogNumber),
                                   parent,
                                   procedure,
                                   reinterpret_cast<LPARAM>(this));
        if (page_ == nullptr)
            return E_OUTOFMEMORY;
        Move(place);
        makeFields();
        readObjects();
        return S_OK;
    });
}

HRESULT GeneralPage::Deactivate() {
    if (page_ == nullptr)
        return E_UNEXPECTED;
    closeWindow();
    return S_OK;
}

void GeneralPage::closeWindow() {
    if (HWND const page = std::exchange(page_, nullptr)) {
        SetWindowLongPtrW(page, DWLP_USER, 0);
        DestroyWindow(page);
    }
    picture_ = nullptr;
    fields_.clear();
    preview_.reset();
}

HRESULT GeneralPage::GetPageInfo(PROPPAGEINFO* info) {
    if (info == nullptr)
        return E_POINTER;
    *info = {};
    info->cb = sizeof(*info);
    return guarded([&] {
        info->pszTitle = newTaskText(title.in(languageOf(LANGIDFROMLCID(locale())))).release();
        info->size = dialogSize();
        return S_OK;
    });
}

HRESULT GeneralPage::SetObjects(ULONG count, IUnknown** objects) {
    if (count > 0 && objects == nullptr)
        return E_POINTER;
    // What is let go may ask for the page once more.
    const ComRef<GeneralPage> alive(this);
    return guarded([&] {
        std::vector<ComRef<IUnknown>> edited(objects, objects + count);
        std::swap(objects_, edited);
        return S_OK;
    });
}

HRESULT GeneralPage::Show(UINT command) {
    if (page_ == nullptr)
        return E_UNEXPECTED;
    if (command != SW_SHOW && command != SW_SHOWNORMAL && command != SW_HIDE)
        return E_INVALIDARG;
    ShowWindow(page_, static_cast<int>(command));
    return S_OK;
}

HRESULT GeneralPage::Move(LPCRECT place) {
    if (place == nullptr)
        return E_POINTER;
    if (page_ == nullptr)
        return E_UNEXPECTED;
    MoveWindow(page_, place->left, place->top, place->right - place->left, place->bottom - place->top, TRUE);
    return S_OK;
}

HRESULT GeneralPage::IsPageDirty() {
    return std::any_of(
               fields_.begin(), fields_.end(), [](const Field& field) { return field.value.has_value(); })
               ? S_OK
               : S_FALSE;
}

HRESULT GeneralPage::Apply() {
    const ComRef<GeneralPage> alive(this);
    return guarded([&] {
        // Hosts hear of each change, and may do anything then, so all that is needed is held here.
        std::vector<std::pair<StringView, Variant>> values;
        for (Field& field : fields_)
            if (const auto value = std::exchange(field.value, std::nullopt))
                values.emplace_back(field.property->name, *value);
        const std::vector<ComRef<IUnknown>> edited = objects_;
        HRESULT result = S_OK;
        for (const ComRef<IUnknown>& each : edited)
            for (const auto& [name, value] : values) {
                const HRESULT put = guarded([&, &name = name, &value = value] {
                    const auto dispatch = each.as<IDispatch>();
                    if (!dispatch)
                        return E_NOINTERFACE;
                    objectFrom(dispatch.get())->put(name, value);
                    return S_OK;
                });
                if (SUCCEEDED(result))
                    result = put;
            }
        return result;
    });
}

HRESULT GeneralPage::TranslateAccelerator(MSG* message) {
    if (message == nullptr)
        return E_POINTER;
    const ComRef<GeneralPage> alive(this);
    if (page_ == nullptr || (message->hwnd != page_ && !IsChild(page_, message->hwnd)))
        return S_FALSE;
    return IsDialogMessageW(page_, message) ? S_OK : S_FALSE;
}

HRESULT GeneralPage::EditProperty(DISPID property) {
    const ComRef<GeneralPage> alive(this);
    for (const Field& field : fields_)
        if (field.property->number == property) {
            SetFocus(field.box);
            return S_OK;
        }
    return fields_.empty() ? E_UNEXPECTED : E_INVALIDARG;
}

void GeneralPage::readObjects() {
    const auto dispatch = objects_.front().as<IDispatch>();
    if (!dispatch)
        return;
    // Reading a value may run code of the host, which may close the page.
    std::vector<Variant> values;
    for (const StringView name : onPage)
        values.push_back(objectFrom(dispatch.get())->get(name));
    for (std::size_t i = 0; i < fields_.size(); ++i)
        show(fields_[i], values[i]);
}

} // namespace lumtex::win32
