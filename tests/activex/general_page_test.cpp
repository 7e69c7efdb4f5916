/// The control's page in sheets of properties: by itself, and in the system's frame.
#include "sheet.h"
#include "small_container.h"

#include <array>

namespace lumtex::testing {
namespace {

constexpr GUID pageClass = win32::guidFrom(automation::generalPageUuid);

/// Notes what the page says, and speaks the language that a test gives it.
class PageSite final : public IPropertyPageSite {
  public:
    LCID locale = MAKELCID(MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US), SORT_DEFAULT);
    int changes = 0;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** found) override {
        if (!IsEqualIID(iid, IID_IUnknown) && !IsEqualIID(iid, IID_IPropertyPageSite))
            return *found = nullptr, E_NOINTERFACE;
        *found = this;
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return 1; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    HRESULT STDMETHODCALLTYPE OnStatusChange(DWORD flags) override {
        changes += (flags & PROPPAGESTATUS_DIRTY) != 0 ? 1 : 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetLocaleID(LCID* given) override {
        *given = locale;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetPageContainer(IUnknown** container) override {
        *container = nullptr;
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE TranslateAccelerator(MSG* /*message*/) override { return S_FALSE; }
};

/// The control below a window that says `text`, or stands behind the label that does.
HWND fieldCalled(HWND page, const wchar_t* text) {
    HWND const named = FindWindowExW(page, nullptr, nullptr, text);
    std::array<wchar_t, 16> kind{};
    GetClassNameW(named, kind.data(), static_cast<int>(kind.size()));
    const bool label = win32::textOf(kind.data()) == u"Static";
    return label ? GetWindow(named, GW_HWNDNEXT) : named;
}

class GeneralPage : public ListFixture {
  protected:
    ~GeneralPage() override {
        page->Deactivate();
        page->SetObjects(0, nullptr);
        page->SetPageSite(nullptr);
    }

    win32::ComRef<IPropertyPage2> newPage() const {
        win32::ComRef<IClassFactory> factory;
        win32::demand(
            component.classObject(pageClass, IID_IClassFactory, reinterpret_cast<void**>(factory.out())));
        win32::ComRef<IPropertyPage2> made;
        win32::demand(
            factory->CreateInstance(nullptr, __uuidof(IPropertyPage), reinterpret_cast<void**>(made.out())));
        return made;
    }
    void activate(std::vector<IUnknown*> objects) {
        ASSERT_EQ(page->SetPageSite(&site), S_OK);
        ASSERT_EQ(page->SetObjects(static_cast<ULONG>(objects.size()), objects.data()), S_OK);
        const RECT place{0, 0, 500, 400};
        ASSERT_EQ(page->Activate(programWindow(), &place, FALSE), S_OK);
        ASSERT_EQ(page->Show(SW_SHOW), S_OK);
        window = FindWindowExW(programWindow(), nullptr, L"#32770", nullptr);
        ASSERT_NE(window, nullptr);
    }
    void activate() { activate({control.get()}); }
    HWND field(const wchar_t* name) const { return fieldCalled(window, name); }
    void choose(const wchar_t* name, WPARAM place) const {
        HWND const box = field(name);
        SendMessageW(box, CB_SETCURSEL, place, 0);
        SendMessageW(window, WM_COMMAND, MAKEWPARAM(0, CBN_SELCHANGE), reinterpret_cast<LPARAM>(box));
    }
    /// What the preview paints.
    std::vector<std::uint32_t> preview() const {
        Sheet sheet(150, 150);
        DRAWITEMSTRUCT item{};
        item.CtlType = ODT_STATIC;
        item.itemAction = ODA_DRAWENTIRE;
        item.hwndItem = GetWindow(GetWindow(window, GW_CHILD), GW_HWNDLAST);
        item.hDC = sheet.dc;
        item.rcItem = {0, 0, 150, 150};
        SendMessageW(window, WM_DRAWITEM, 0, reinterpret_cast<LPARAM>(&item));
        EXPECT_EQ(sheet.howMany(0x00FF00), 0) << "the sheet is covered";
        return sheet.colors();
    }

    PageSite site;
    win32::ComRef<IPropertyPage2> page = newPage();
    HWND window = nullptr;
};

TEST_F(GeneralPage, ItsTitleIsInTheLanguageOfTheSite) {
    ASSERT_EQ(page->SetPageSite(&site), S_OK);
    for (const auto& [language, title] :
         {std::pair(LANG_ENGLISH, u"General"), {LANG_GERMAN, u"Allgemein"}, {LANG_FRENCH, u"General"}}) {
        site.locale = MAKELCID(MAKELANGID(language, SUBLANG_DEFAULT), SORT_DEFAULT);
        PROPPAGEINFO info{};
        ASSERT_EQ(page->GetPageInfo(&info), S_OK);
        EXPECT_EQ(win32::textOf(info.pszTitle), title);
        EXPECT_GT(info.size.cx, 300);
        EXPECT_GT(info.size.cy, 150);
        CoTaskMemFree(info.pszTitle);
    }
}

TEST_F(GeneralPage, ShowsTheValuesOfTheObject) {
    let(L"ColorStyle", {Long{2}});
    let(L"GridLines", {true});
    activate();
    EXPECT_EQ(SendMessageW(field(L"ColorStyle"), CB_GETCURSEL, 0, 0), 2);
    EXPECT_EQ(SendMessageW(field(L"ColorStyle"), CB_GETCOUNT, 0, 0), 4);
    EXPECT_EQ(SendMessageW(field(L"GridLines"), BM_GETCHECK, 0, 0), BST_CHECKED);
    EXPECT_EQ(SendMessageW(field(L"MultiSelect"), BM_GETCHECK, 0, 0), BST_UNCHECKED);
    EXPECT_EQ(page->IsPageDirty(), S_FALSE);
}

TEST_F(GeneralPage, ANumberWithoutANameLeavesNothingChosen) {
    let(L"ColorStyle", {Long{7}});
    activate();
    EXPECT_EQ(SendMessageW(field(L"ColorStyle"), CB_GETCURSEL, 0, 0), CB_ERR);
}

TEST_F(GeneralPage, AChangeShowsInThePreviewAndWaitsForApply) {
    activate();
    const auto before = preview();
    EXPECT_EQ(preview(), before);
    choose(L"ColorStyle", 2);
    SendMessageW(field(L"GridLines"), BM_CLICK, 0, 0);
    EXPECT_NE(preview(), before);
    EXPECT_EQ(site.changes, 2);
    EXPECT_EQ(page->IsPageDirty(), S_OK);
    EXPECT_EQ(get(L"ColorStyle"), Variant(Long{0}));
    EXPECT_EQ(get(L"GridLines"), Variant(false));
    ASSERT_EQ(page->Apply(), S_OK);
    EXPECT_EQ(page->IsPageDirty(), S_FALSE);
    EXPECT_EQ(get(L"ColorStyle"), Variant(Long{2}));
    EXPECT_EQ(get(L"GridLines"), Variant(true));
    EXPECT_EQ(get(L"MultiSelect"), Variant(false));
}

TEST_F(GeneralPage, ThePreviewStartsFromTheSettingsOfTheObject) {
    activate();
    const auto plain = preview();
    page->Deactivate();
    page->SetPageSite(nullptr);
    let(L"BackColor", {Long{0x00FFFF}}); // which has no field
    activate();
    EXPECT_NE(preview(), plain);
}

TEST_F(GeneralPage, SeveralObjectsGetWhatWasChangedAndKeepTheRest) {
    const win32::ComRef<IUnknown> other = component.make("lmListView");
    const auto otherDispatch = other.as<IDispatch>();
    invoke(otherDispatch.get(), L"MultiSelect", DISPATCH_PROPERTYPUT, {true});
    activate({control.get(), other.get()});
    SendMessageW(field(L"GridLines"), BM_CLICK, 0, 0);
    ASSERT_EQ(page->Apply(), S_OK);
    EXPECT_EQ(get(L"GridLines"), Variant(true));
    EXPECT_EQ(invoke(otherDispatch.get(), L"GridLines", DISPATCH_PROPERTYGET).value, Variant(true));
    EXPECT_EQ(invoke(otherDispatch.get(), L"MultiSelect", DISPATCH_PROPERTYGET).value, Variant(true));
}

/// Ends the page as soon as it hears of a change.
class EndingSink final : public IPropertyNotifySink {
  public:
    explicit EndingSink(win32::ComRef<IPropertyPage2>& page) : page_(page) {}
    int heard = 0;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** found) override {
        if (!IsEqualIID(iid, IID_IUnknown) && !IsEqualIID(iid, IID_IPropertyNotifySink))
            return *found = nullptr, E_NOINTERFACE;
        *found = this;
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return 1; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    HRESULT STDMETHODCALLTYPE OnChanged(DISPID /*property*/) override {
        if (++heard == 1) {
            page_->Deactivate();
            page_->SetObjects(0, nullptr);
            page_->SetPageSite(nullptr);
            page_ = {};
        }
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE OnRequestEdit(DISPID /*property*/) override { return S_OK; }

  private:
    win32::ComRef<IPropertyPage2>& page_;
};

TEST_F(GeneralPage, AHostMayEndItWhileItApplies) {
    win32::ComRef<IPropertyPage2> ended = newPage();
    std::swap(ended, page);
    activate();
    EndingSink sink(page);
    win32::ComRef<IConnectionPoint> point;
    ASSERT_EQ(
        control.as<IConnectionPointContainer>()->FindConnectionPoint(IID_IPropertyNotifySink, point.out()),
        S_OK);
    DWORD cookie = 0;
    ASSERT_EQ(point->Advise(&sink, &cookie), S_OK);
    SendMessageW(field(L"GridLines"), BM_CLICK, 0, 0);
    SendMessageW(field(L"MultiSelect"), BM_CLICK, 0, 0);
    EXPECT_EQ(page->Apply(), S_OK);
    std::swap(ended, page); // what the fixture ends
    EXPECT_FALSE(ended);
    EXPECT_EQ(sink.heard, 2) << "what was chosen is applied nevertheless";
    EXPECT_FALSE(IsWindow(window));
    EXPECT_EQ(get(L"MultiSelect"), Variant(true));
    point->Unadvise(cookie);
}

TEST_F(GeneralPage, AnObjectThatCannotBeCalledIsAFailureAndTheOthersAreChanged) {
    activate({&site, control.get()});
    SendMessageW(field(L"GridLines"), BM_CLICK, 0, 0);
    EXPECT_EQ(page->Apply(), E_NOINTERFACE);
    EXPECT_EQ(get(L"GridLines"), Variant(true));
}

TEST_F(GeneralPage, APropertyIsFoundByItsNumber) {
    const DISPID gridLines = idOf(dispatch.get(), L"GridLines");
    EXPECT_EQ(page->EditProperty(gridLines), E_UNEXPECTED) << "nothing is shown yet";
    activate();
    ASSERT_EQ(page->EditProperty(gridLines), S_OK);
    EXPECT_EQ(GetFocus(), field(L"GridLines"));
    EXPECT_EQ(page->EditProperty(idOf(dispatch.get(), L"IconW")), E_INVALIDARG);
}

TEST_F(GeneralPage, TabGoesFromFieldToField) {
    activate();
    ASSERT_EQ(page->EditProperty(idOf(dispatch.get(), L"GridLines")), S_OK);
    MSG tab{field(L"GridLines"), WM_KEYDOWN, VK_TAB, 0, 0, {}};
    EXPECT_EQ(page->TranslateAccelerator(&tab), S_OK);
    EXPECT_EQ(GetFocus(), field(L"BorderVisible"));
    MSG elsewhere{programWindow(), WM_KEYDOWN, VK_TAB, 0, 0, {}};
    EXPECT_EQ(page->TranslateAccelerator(&elsewhere), S_FALSE);
}

TEST_F(GeneralPage, WhatComesAtTheWrongTimeIsRefused) {
    const RECT place{};
    EXPECT_EQ(page->Activate(programWindow(), &place, FALSE), E_UNEXPECTED) << "there is nothing to edit";
    EXPECT_EQ(page->Deactivate(), E_UNEXPECTED);
    EXPECT_EQ(page->Show(SW_SHOW), E_UNEXPECTED);
    EXPECT_EQ(page->Move(&place), E_UNEXPECTED);
    activate();
    EXPECT_EQ(page->Activate(programWindow(), &place, FALSE), E_UNEXPECTED);
    EXPECT_EQ(page->SetPageSite(&site), E_UNEXPECTED);
    EXPECT_EQ(page->Show(SW_MINIMIZE), E_INVALIDARG);
    EXPECT_EQ(page->SetObjects(1, nullptr), E_POINTER);
}

BOOL CALLBACK takeIfPage(HWND child, LPARAM found) {
    const bool isPage = FindWindowExW(child, nullptr, L"Button", L"GridLines") != nullptr;
    if (isPage)
        *reinterpret_cast<HWND*>(found) = child;
    return isPage ? FALSE : TRUE;
}

/// The page in a frame; null where it does not show.
HWND pageIn(HWND frame) {
    HWND page = nullptr;
    EnumChildWindows(frame, takeIfPage, reinterpret_cast<LPARAM>(&page));
    return page;
}

TEST_F(GeneralPage, TheVerbForPropertiesShowsItInTheSystemsFrame) {
    win32::ComRef<IClassFactory> factory;
    ASSERT_EQ(component.classObject(pageClass, IID_IClassFactory, reinterpret_cast<void**>(factory.out())),
              S_OK);
    DWORD cookie = 0;
    ASSERT_EQ(
        CoRegisterClassObject(pageClass, factory.get(), CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE, &cookie),
        S_OK);
    let(L"GridLines", {true});
    // The frame that the tests run in asks no page to apply.
    LRESULT shown = BST_INDETERMINATE;
    watch.whileOpen = [&](HWND frame) {
        window = pageIn(frame);
        shown = SendMessageW(field(L"GridLines"), BM_GETCHECK, 0, 0);
    };
    EXPECT_EQ(
        control.as<IOleObject>()->DoVerb(OLEIVERB_PROPERTIES, nullptr, nullptr, 0, programWindow(), nullptr),
        S_OK);
    CoRevokeClassObject(cookie);
    EXPECT_NE(window, nullptr);
    EXPECT_EQ(shown, BST_CHECKED);
    EXPECT_FALSE(IsWindow(window)) << "the page ends with its frame";
    EXPECT_EQ(watch.boxes.size(), 1U);
    watch.boxes.clear();
}

} // namespace
} // namespace lumtex::testing
