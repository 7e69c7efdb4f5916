/// What a container asks of an embedded object: verbs, site, size, end.
#include "placed_control.h"

#include <algorithm>

namespace lumtex::testing {
namespace {

class Verbs : public PlacedControl {
  protected:
    void SetUp() override { ASSERT_NE(container.window, nullptr) << "no display"; }

    long told(const std::string& what) const {
        return std::count(container.told.begin(), container.told.end(), what);
    }
};

TEST_F(Verbs, AHiddenControlIsShownAgain) {
    place();
    ASSERT_EQ(verb(OLEIVERB_HIDE), S_OK);
    EXPECT_FALSE(IsWindowVisible(window()));
    ASSERT_EQ(verb(OLEIVERB_SHOW), S_OK);
    EXPECT_TRUE(IsWindowVisible(window()));
    EXPECT_EQ(told("OnInPlaceActivate"), 1) << "it never left its place";
}

TEST_F(Verbs, HidingTakesTheContainersKeysAway) {
    place(OLEIVERB_UIACTIVATE);
    ASSERT_TRUE(container.active);
    ASSERT_EQ(verb(OLEIVERB_HIDE), S_OK);
    EXPECT_FALSE(container.active);
    EXPECT_EQ(container.told.back(), "OnUIDeactivate");
}

TEST_F(Verbs, AnUnknownVerbIsThePrimaryOneOrRefusedByItsSign) {
    place();
    EXPECT_FALSE(container.active);
    EXPECT_EQ(verb(77), OLEOBJ_S_INVALIDVERB);
    EXPECT_TRUE(container.active);
    EXPECT_EQ(verb(-77), E_NOTIMPL);
    EXPECT_EQ(verb(OLEIVERB_OPEN), E_NOTIMPL);
    EXPECT_EQ(verb(OLEIVERB_DISCARDUNDOSTATE), E_NOTIMPL);
}

TEST_F(Verbs, AContainerWithASheetOfItsOwnShowsTheProperties) {
    place();
    container.propertyFrame = S_OK;
    EXPECT_EQ(verb(OLEIVERB_PROPERTIES), S_OK);
    EXPECT_EQ(container.told.back(), "ShowPropertyFrame");
    EXPECT_TRUE(watch.boxes.empty());
}

TEST_F(Verbs, TheVerbsCanBeListed) {
    win32::ComRef<IEnumOLEVERB> verbs;
    ASSERT_EQ(object->EnumVerbs(verbs.out()), S_OK);
    std::vector<LONG> numbers;
    OLEVERB item{};
    while (verbs->Next(1, &item, nullptr) == S_OK)
        numbers.push_back(item.lVerb);
    EXPECT_EQ(numbers, (std::vector<LONG>{0, -1, -3, -4, -5, -7}));
    ASSERT_EQ(verbs->Reset(), S_OK);
    EXPECT_EQ(verbs->Skip(4), S_OK);
    win32::ComRef<IEnumOLEVERB> copy;
    ASSERT_EQ(verbs->Clone(copy.out()), S_OK);
    EXPECT_EQ(copy->Next(1, &item, nullptr), S_OK);
    EXPECT_EQ(item.lVerb, OLEIVERB_INPLACEACTIVATE);
    EXPECT_EQ(copy->Skip(2), S_FALSE);
}

TEST_F(Verbs, ASiteThatGoesTakesTheControlOutOfItsWindow) {
    place(OLEIVERB_UIACTIVATE);
    ASSERT_EQ(object->SetClientSite(nullptr), S_OK);
    EXPECT_EQ(container.told.back(), "OnInPlaceDeactivate");
    EXPECT_NE(GetParent(window()), container.window);
    container.active = {};
    EXPECT_EQ(container.references, 1U);
    EXPECT_EQ(get(L"RowsCount"), Variant(Long{0}));
}

TEST_F(Verbs, TheSameSiteAgainChangesNothing) {
    place();
    ASSERT_EQ(object->SetClientSite(&container), S_OK);
    EXPECT_EQ(told("OnInPlaceDeactivate"), 0);
    EXPECT_TRUE(IsWindowVisible(window()));
    win32::ComRef<IOleClientSite> site;
    ASSERT_EQ(object->GetClientSite(site.out()), S_OK);
    EXPECT_EQ(site.get(), static_cast<IOleClientSite*>(&container));
}

TEST_F(Verbs, TheClipRectangleCutsTheWindow) {
    place();
    const RECT whole{10, 10, 110, 110};
    const RECT clip{60, 0, 500, 60};
    ASSERT_EQ(control.as<IOleInPlaceObject>()->SetObjectRects(&whole, &clip), S_OK);
    RECT seen{};
    ASSERT_NE(GetWindowRgnBox(window(), &seen), ERROR);
    EXPECT_EQ(seen.left, 50);
    EXPECT_EQ(seen.top, 0);
    EXPECT_EQ(seen.right, 100);
    EXPECT_EQ(seen.bottom, 50);
    ASSERT_EQ(control.as<IOleInPlaceObject>()->SetObjectRects(&whole, nullptr), S_OK);
    EXPECT_EQ(GetWindowRgnBox(window(), &seen), ERROR) << "none any more";
}

TEST_F(Verbs, AnExtentBeforeTheSettingsWaitsForThem) {
    ASSERT_EQ(object->SetClientSite(&container), S_OK);
    SIZEL extent{5080, 2540};
    ASSERT_EQ(object->SetExtent(DVASPECT_CONTENT, &extent), S_OK);
    SIZEL given{};
    ASSERT_EQ(object->GetExtent(DVASPECT_CONTENT, &given), S_OK);
    EXPECT_EQ(given.cx, 5080);
    MapBag bag;
    bag.values[u"GridLines"] = true;
    ASSERT_EQ(control.as<IPersistPropertyBag>()->Load(&bag, nullptr), S_OK) << "still to be loaded";
    ASSERT_EQ(object->GetExtent(DVASPECT_CONTENT, &given), S_OK);
    EXPECT_NEAR(static_cast<double>(given.cx), 5080, 20);
    EXPECT_NEAR(static_cast<double>(given.cy), 2540, 20);
}

TEST_F(Verbs, ClosingByItsOption) {
    place();
    ASSERT_EQ(object->Close(OLECLOSE_SAVEIFDIRTY), S_OK);
    EXPECT_EQ(told("SaveObject"), 0) << "nothing changed";
    ASSERT_EQ(verb(OLEIVERB_SHOW), S_OK);
    let(L"GridLines", {true});
    ASSERT_EQ(object->Close(OLECLOSE_NOSAVE), S_OK);
    EXPECT_EQ(told("SaveObject"), 0);
    ASSERT_EQ(object->Close(OLECLOSE_PROMPTSAVE), S_OK);
    EXPECT_EQ(told("SaveObject"), 1);
}

/// What an embedded object tells about its life.
class LifeSink final : public IAdviseSink {
  public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** found) override {
        *found = nullptr;
        if (!IsEqualIID(iid, IID_IUnknown) && !IsEqualIID(iid, IID_IAdviseSink))
            return E_NOINTERFACE;
        *found = static_cast<IAdviseSink*>(this);
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references; }
    ULONG STDMETHODCALLTYPE Release() override { return --references; }
    void STDMETHODCALLTYPE OnDataChange(FORMATETC* /*format*/, STGMEDIUM* /*medium*/) override {
        told.emplace_back("data");
    }
    void STDMETHODCALLTYPE OnViewChange(DWORD /*aspect*/, LONG /*index*/) override {
        told.emplace_back("view");
    }
    void STDMETHODCALLTYPE OnRename(IMoniker* /*moniker*/) override { told.emplace_back("name"); }
    void STDMETHODCALLTYPE OnSave() override { told.emplace_back("save"); }
    void STDMETHODCALLTYPE OnClose() override { told.emplace_back("close"); }

    ULONG references = 1;
    std::vector<std::string> told;
};

TEST_F(Verbs, AdvisedSinksHearOfSavingAndClosing) {
    LifeSink sink;
    DWORD cookie = 0;
    ASSERT_EQ(object->Advise(&sink, &cookie), S_OK);
    place();
    MapBag bag;
    ASSERT_EQ(control.as<IPersistPropertyBag>()->Save(&bag, FALSE, FALSE), S_OK);
    EXPECT_TRUE(sink.told.empty()) << "a copy";
    ASSERT_EQ(control.as<IPersistPropertyBag>()->Save(&bag, TRUE, FALSE), S_OK);
    ASSERT_EQ(object->Close(OLECLOSE_NOSAVE), S_OK);
    EXPECT_EQ(sink.told, (std::vector<std::string>{"save", "close"}));
    win32::ComRef<IEnumSTATDATA> advises;
    ASSERT_EQ(object->EnumAdvise(advises.out()), S_OK);
    EXPECT_TRUE(advises);
    advises = {};
    ASSERT_EQ(object->Unadvise(cookie), S_OK);
    EXPECT_EQ(sink.references, 1U);
}

TEST_F(Verbs, TheViewsSinkHearsOfNewPicturesWhileThereIsNoPlace) {
    LifeSink sink;
    const auto view = control.as<IViewObject2>();
    ASSERT_EQ(view->SetAdvise(DVASPECT_CONTENT, 0, &sink), S_OK);
    EXPECT_TRUE(sink.told.empty());
    let(L"BackColor", {Long{0x123456}});
    EXPECT_FALSE(sink.told.empty());
    EXPECT_EQ(sink.told.front(), "view");
    sink.told.clear();
    let(L"WheelScrollLines", {Long{5}});
    EXPECT_TRUE(sink.told.empty()) << "nothing to be seen";
    ASSERT_EQ(object->SetClientSite(&container), S_OK);
    ASSERT_EQ(verb(OLEIVERB_INPLACEACTIVATE), S_OK);
    sink.told.clear();
    let(L"BackColor", {Long{0x654321}});
    EXPECT_TRUE(sink.told.empty()) << "its window shows it";
    ASSERT_EQ(view->SetAdvise(0, 0, nullptr), S_OK);
    EXPECT_EQ(sink.references, 1U);
}

TEST_F(Verbs, AViewsSinkMayAskForOneCallOrForTheFirst) {
    LifeSink sink;
    const auto view = control.as<IViewObject2>();
    ASSERT_EQ(view->SetAdvise(DVASPECT_CONTENT, ADVF_PRIMEFIRST, &sink), S_OK);
    EXPECT_EQ(sink.told, std::vector<std::string>{"view"});
    DWORD aspects = 0;
    DWORD flags = 0;
    win32::ComRef<IAdviseSink> given;
    ASSERT_EQ(view->GetAdvise(&aspects, &flags, given.out()), S_OK);
    EXPECT_EQ(aspects, DWORD{DVASPECT_CONTENT});
    EXPECT_EQ(flags, DWORD{ADVF_PRIMEFIRST});
    EXPECT_EQ(given.get(), &sink);
    given = {};
    sink.told.clear();
    ASSERT_EQ(view->SetAdvise(DVASPECT_CONTENT, ADVF_PRIMEFIRST | ADVF_ONLYONCE, &sink), S_OK);
    let(L"BackColor", {Long{0x123456}});
    EXPECT_EQ(sink.told, std::vector<std::string>{"view"});
    EXPECT_EQ(sink.references, 1U);
}

TEST_F(Verbs, SinksOfTheDataHearOfNewPicturesToo) {
    LifeSink sink;
    const auto data = control.as<IDataObject>();
    FORMATETC format{CF_ENHMETAFILE, nullptr, DVASPECT_CONTENT, -1, TYMED_ENHMF};
    DWORD cookie = 0;
    ASSERT_EQ(data->DAdvise(&format, ADVF_NODATA, &sink, &cookie), S_OK);
    get(L"RowsCount");
    sink.told.clear();
    let(L"BackColor", {Long{0x123456}});
    EXPECT_FALSE(sink.told.empty());
    EXPECT_EQ(sink.told.front(), "data");
    ASSERT_EQ(data->DUnadvise(cookie), S_OK);
    EXPECT_EQ(sink.references, 1U);
}

TEST_F(Verbs, WhatTheClassPromises) {
    DWORD status = 0;
    ASSERT_EQ(object->GetMiscStatus(DVASPECT_CONTENT, &status), S_OK);
    EXPECT_EQ(status,
              DWORD{OLEMISC_RECOMPOSEONRESIZE | OLEMISC_CANTLINKINSIDE | OLEMISC_INSIDEOUT |
                    OLEMISC_ACTIVATEWHENVISIBLE | OLEMISC_SETCLIENTSITEFIRST});
    EXPECT_EQ(object->GetMiscStatus(DVASPECT_ICON, &status), DV_E_DVASPECT);
    EXPECT_EQ(status, 0U);
    CLSID id{};
    ASSERT_EQ(object->GetUserClassID(&id), S_OK);
    EXPECT_EQ(id, win32::guidOf("lmListView"));
    LPOLESTR type = nullptr;
    ASSERT_EQ(object->GetUserType(USERCLASSTYPE_FULL, &type), S_OK);
    EXPECT_EQ(win32::textOf(type), u"LumtexListView.lmListView");
    CoTaskMemFree(type);
}

TEST_F(Verbs, TheClassNamesItsEvents) {
    const auto classInfo = control.as<IProvideClassInfo2>();
    GUID guid{};
    ASSERT_EQ(classInfo->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &guid), S_OK);
    EXPECT_EQ(guid, win32::guidOf("__lmListView"));
    EXPECT_EQ(classInfo->GetGUID(99, &guid), E_INVALIDARG);
    EXPECT_EQ(guid, GUID_NULL);
    win32::ComRef<ITypeInfo> info;
    ASSERT_EQ(classInfo->GetClassInfo(info.out()), S_OK);
    TYPEATTR* attributes = nullptr;
    ASSERT_EQ(info->GetTypeAttr(&attributes), S_OK);
    EXPECT_EQ(attributes->typekind, TKIND_COCLASS);
    EXPECT_EQ(attributes->guid, win32::guidOf("lmListView"));
    info->ReleaseTypeAttr(attributes);
}

TEST_F(Verbs, TheConnectionPointsCanBeListed) {
    const auto points = control.as<IConnectionPointContainer>();
    win32::ComRef<IEnumConnectionPoints> all;
    ASSERT_EQ(points->EnumConnectionPoints(all.out()), S_OK);
    std::vector<GUID> found;
    win32::ComRef<IConnectionPoint> point;
    while (all->Next(1, point.out(), nullptr) == S_OK) {
        GUID iid{};
        ASSERT_EQ(point->GetConnectionInterface(&iid), S_OK);
        found.push_back(iid);
        win32::ComRef<IConnectionPointContainer> back;
        ASSERT_EQ(point->GetConnectionPointContainer(back.out()), S_OK);
        EXPECT_EQ(back.get(), points.get());
    }
    ASSERT_EQ(found.size(), 2U);
    EXPECT_EQ(found[0], win32::guidOf("__lmListView"));
    EXPECT_EQ(found[1], IID_IPropertyNotifySink);
    EXPECT_EQ(points->FindConnectionPoint(IID_IOleObject, point.out()), CONNECT_E_NOCONNECTION);
    EXPECT_FALSE(point);
}

TEST_F(Verbs, QuickActivationSaysThatNothingShowsThrough) {
    QACONTAINER from{};
    from.cbSize = sizeof(from);
    QACONTROL to{};
    to.cbSize = sizeof(to);
    ASSERT_EQ(control.as<IQuickActivate>()->QuickActivate(&from, &to), S_OK);
    EXPECT_EQ(to.dwViewStatus, DWORD{VIEWSTATUS_OPAQUE});
    from.cbSize = 4;
    EXPECT_EQ(control.as<IQuickActivate>()->QuickActivate(&from, &to), E_INVALIDARG);
    SIZEL extent{2540, 2540};
    EXPECT_EQ(control.as<IQuickActivate>()->SetContentExtent(&extent), S_OK);
    extent = {};
    EXPECT_EQ(control.as<IQuickActivate>()->GetContentExtent(&extent), S_OK);
    EXPECT_EQ(extent.cx, 2540);
}

TEST_F(Verbs, AnActivationThatFailsIsTakenBack) {
    ASSERT_EQ(object->SetClientSite(&container), S_OK);
    HWND lost = std::exchange(container.window, nullptr);
    EXPECT_EQ(verb(OLEIVERB_SHOW), E_FAIL);
    EXPECT_EQ(container.told.back(), "OnInPlaceDeactivate");
    container.window = lost;
    EXPECT_EQ(verb(OLEIVERB_SHOW), S_OK);
    EXPECT_EQ(GetParent(window()), container.window);
}

TEST_F(Verbs, AWindowThatIsGoneIsNotGiven) {
    place();
    DestroyWindow(container.window);
    HWND none = container.window;
    EXPECT_EQ(control.as<IOleWindow>()->GetWindow(&none), E_FAIL);
    EXPECT_EQ(none, nullptr);
}

} // namespace
} // namespace lumtex::testing
