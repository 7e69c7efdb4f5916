/// What the page shows, and what the user does there.
#include "activex/com_guard.h"
#include "activex/general_page.h"
#include "activex/module.h"
#include "activex/property_choices.h"

#include <algorithm>

namespace lumtex::win32 {

namespace {

// Where things lie, in units of the dialog.
constexpr LONG left = 6;
constexpr LONG top = 6;
constexpr LONG fieldWidth = 150;
constexpr LONG labelWidth = 72;
constexpr LONG choiceHeight = 17;
constexpr LONG openHeight = 80; // of a list of choices that is pulled down
constexpr LONG switchHeight = 12;
constexpr LONG switchColumns = 2;
constexpr RECT pictureUnits{162, 6, 274, 150};

bool isChoice(const automation::Member& property) {
    return choicesOf(property) != nullptr;
}

} // namespace

HWND GeneralPage::makeChild(const wchar_t* kind, const String& text, DWORD style, RECT units) {
    MapDialogRect(page_, &units);
    HWND const child = CreateWindowExW(0,
                                       kind,
                                       wide(text),
                                       style | WS_CHILD | WS_VISIBLE,
                                       units.left,
                                       units.top,
                                       units.right - units.left,
                                       units.bottom - units.top,
                                       page_,
                                       nullptr,
                                       moduleInstance(),
                                       nullptr);
    if (child == nullptr)
        throw RuntimeError(ErrorNumber::outOfMemory);
    SendMessageW(child, WM_SETFONT, static_cast<WPARAM>(SendMessageW(page_, WM_GETFONT, 0, 0)), FALSE);
    return child;
}

/// Choices stand below each other with their names before them, switches in two columns below.
void GeneralPage::makeFields() {
    for (const StringView name : shownProperties())
        fields_.push_back({plainProperty(name), nullptr, std::nullopt});
    LONG y = top;
    for (Field& field : fields_)
        if (const automation::Enumeration* const choices = choicesOf(*field.property)) {
            const String name(field.property->name);
            makeChild(L"STATIC", name, SS_LEFT, {left, y + 2, left + labelWidth, y + choiceHeight});
            field.box = makeChild(L"COMBOBOX",
                                  u"",
                                  CBS_DROPDOWNLIST | WS_VSCROLL | WS_TABSTOP,
                                  {left + labelWidth, y, left + fieldWidth, y + openHeight});
            for (const automation::Enumerator& choice : choices->enumerators())
                SendMessageW(field.box, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(wide(choiceText(choice))));
            y += choiceHeight;
        }
    LONG column = 0;
    for (Field& field : fields_)
        if (!isChoice(*field.property)) {
            constexpr LONG width = fieldWidth / switchColumns;
            const LONG x = left + column * width;
            field.box = makeChild(L"BUTTON",
                                  String(field.property->name),
                                  BS_AUTOCHECKBOX | WS_TABSTOP,
                                  {x, y, x + width, y + switchHeight});
            column = (column + 1) % switchColumns;
            y += column == 0 ? switchHeight : 0;
        }
    picture_ = makeChild(L"STATIC", u"", SS_OWNERDRAW, pictureUnits);
}

void GeneralPage::show(const Field& field, const Variant& value) {
    const automation::Enumeration* const choices = choicesOf(*field.property);
    if (choices == nullptr) {
        SendMessageW(field.box, BM_SETCHECK, value.toBoolean() ? BST_CHECKED : BST_UNCHECKED, 0);
        return;
    }
    // A number without a name leaves nothing chosen.
    WPARAM place = 0;
    while (place < choices->count && choices->entries[place].number != value.toLong())
        ++place;
    SendMessageW(field.box, CB_SETCURSEL, place < choices->count ? place : static_cast<WPARAM>(-1), 0);
}

Variant GeneralPage::chosenIn(const Field& field) const {
    const automation::Enumeration* const choices = choicesOf(*field.property);
    if (choices == nullptr)
        return Variant(SendMessageW(field.box, BM_GETCHECK, 0, 0) == BST_CHECKED);
    const auto place = static_cast<std::size_t>(SendMessageW(field.box, CB_GETCURSEL, 0, 0));
    return Variant(choices->enumerators()[place].number);
}

void GeneralPage::changed(HWND box) {
    const auto field =
        std::find_if(fields_.begin(), fields_.end(), [&](const Field& each) { return each.box == box; });
    if (field == fields_.end())
        return;
    const automation::Member* const property = field->property;
    const Variant value = chosenIn(*field);
    field->value = value;
    if (site_)
        site_->OnStatusChange(PROPPAGESTATUS_DIRTY | PROPPAGESTATUS_VALIDATE);
    if (const auto preview = preview_)
        preview->let(*property, value);
    // Site and preview let events through, in which the page may have been closed.
    if (picture_ != nullptr)
        InvalidateRect(picture_, nullptr, FALSE);
}

/// The preview is made here and not with the page: it lets events through, and the frame is whole by now.
void GeneralPage::paint(const DRAWITEMSTRUCT& item) {
    auto preview = preview_;
    if (!preview) {
        if (objects_.empty())
            return;
        const ComRef<IUnknown> first = objects_.front();
        preview = preview_ = std::make_shared<SettingsPreview>();
        preview->fill(first.get(),
                      {item.rcItem.right - item.rcItem.left, item.rcItem.bottom - item.rcItem.top});
        const std::vector<Field> fields = fields_;
        for (const Field& field : fields)
            if (field.value)
                preview->let(*field.property, *field.value);
    }
    preview->draw(item.hDC, item.rcItem);
}

INT_PTR CALLBACK GeneralPage::procedure(HWND page, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
    if (message == WM_INITDIALOG) {
        SetWindowLongPtrW(page, DWLP_USER, lParam);
        return FALSE;
    }
    auto* const self = reinterpret_cast<GeneralPage*>(GetWindowLongPtrW(page, DWLP_USER));
    if (self == nullptr)
        return FALSE;
    const ComRef<GeneralPage> alive(self);
    const HRESULT done = guarded([&]() -> HRESULT {
        switch (message) {
        case WM_COMMAND:
            if (HIWORD(wParam) != BN_CLICKED && HIWORD(wParam) != CBN_SELCHANGE)
                return S_FALSE;
            self->changed(reinterpret_cast<HWND>(lParam));
            return S_OK;
        case WM_DRAWITEM: {
            const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam);
            if (item.hwndItem != self->picture_)
                return S_FALSE;
            self->paint(item);
            return S_OK;
        }
        default:
            return S_FALSE;
        }
    });
    return done == S_FALSE ? FALSE : TRUE;
}

} // namespace lumtex::win32
