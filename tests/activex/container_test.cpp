/// The control in a container.
#include "event_sink.h"
#include "sheet.h"
#include "small_container.h"

namespace lumtex::testing {
namespace {

class InContainer : public ListFixture {
  protected:
    InContainer() { container.ambients[DISPID_AMBIENT_USERMODE] = Variant(true); }
    ~InContainer() override {
        object->Close(OLECLOSE_NOSAVE);
        object->SetClientSite(nullptr);
        object = {};
    }

    void place(LONG verb = OLEIVERB_INPLACEACTIVATE) {
        ASSERT_EQ(object->SetClientSite(&container), S_OK);
        ASSERT_EQ(control.as<IPersistStreamInit>()->InitNew(), S_OK);
        ASSERT_EQ(object->DoVerb(verb, nullptr, &container, 0, container.window, &container.place), S_OK);
    }
    HWND window() {
        HWND found = nullptr;
        control.as<IOleWindow>()->GetWindow(&found);
        return found;
    }
    /// The window's place in the container's.
    RECT rectangle() {
        RECT area{};
        GetWindowRect(window(), &area);
        MapWindowPoints(nullptr, container.window, reinterpret_cast<POINT*>(&area), 2);
        return area;
    }

    SmallContainer container;
    win32::ComRef<IOleObject> object = control.as<IOleObject>();
};

TEST_F(InContainer, TheControlTakesItsPlaceInTheWindow) {
    place();
    EXPECT_EQ(container.told, (std::vector<std::string>{"OnInPlaceActivate", "ShowObject"}));
    EXPECT_EQ(GetParent(window()), container.window);
    EXPECT_TRUE(IsWindowVisible(window()));
    const RECT area = rectangle();
    EXPECT_TRUE(EqualRect(&area, &container.place)) << area.left << " " << area.top << " " << area.right;
}

TEST_F(InContainer, TheControlFollowsTheContainersRectangles) {
    place();
    const RECT moved{0, 0, 320, 240};
    EXPECT_EQ(control.as<IOleInPlaceObject>()->SetObjectRects(&moved, &moved), S_OK);
    const RECT area = rectangle();
    EXPECT_TRUE(EqualRect(&area, &moved));
}

TEST_F(InContainer, UiActivationTakesTheFocusAndGivesItsKeys) {
    place(OLEIVERB_UIACTIVATE);
    EXPECT_EQ(GetFocus(), window());
    ASSERT_TRUE(container.active);
    EXPECT_EQ(container.told.back(), "OnUIActivate");
    EXPECT_EQ(control.as<IOleInPlaceObject>()->UIDeactivate(), S_OK);
    EXPECT_FALSE(container.active);
    EXPECT_EQ(container.told.back(), "OnUIDeactivate");
}

TEST_F(InContainer, ArrowsReachTheListAndTabTheContainer) {
    place(OLEIVERB_UIACTIVATE);
    EventSink sink;
    const auto point = eventPointOf(control);
    DWORD cookie = 0;
    ASSERT_EQ(point->Advise(&sink, &cookie), S_OK);
    MSG down{window(), WM_KEYDOWN, VK_DOWN, 0, 0, {}};
    EXPECT_EQ(container.active->TranslateAccelerator(&down), S_OK);
    EXPECT_EQ(sink.raised, std::vector<DISPID>{10});
    MSG tab{window(), WM_KEYDOWN, VK_TAB, 0, 0, {}};
    EXPECT_EQ(container.active->TranslateAccelerator(&tab), S_FALSE);
    EXPECT_EQ(container.told.back(), "TranslateAccelerator " + std::to_string(VK_TAB));
    EXPECT_EQ(sink.raised.size(), 1U);
    point->Unadvise(cookie);
}

TEST_F(InContainer, DeactivationTakesTheWindowAway) {
    place();
    EXPECT_EQ(control.as<IOleInPlaceObject>()->InPlaceDeactivate(), S_OK);
    EXPECT_FALSE(IsWindowVisible(window()));
    EXPECT_NE(GetParent(window()), container.window);
    EXPECT_EQ(container.told.back(), "OnInPlaceDeactivate");
    EXPECT_EQ(object->DoVerb(OLEIVERB_SHOW, nullptr, &container, 0, container.window, &container.place),
              S_OK);
    EXPECT_EQ(GetParent(window()), container.window);
}

TEST_F(InContainer, ClosingADirtyControlAsksTheContainerToSave) {
    place();
    let(L"GridLines", {true});
    EXPECT_EQ(object->Close(OLECLOSE_SAVEIFDIRTY), S_OK);
    EXPECT_EQ(container.told.back(), "SaveObject");
}

TEST_F(InContainer, LettingTheContainerGoLeavesNoReference) {
    place();
    object->Close(OLECLOSE_NOSAVE);
    object->SetClientSite(nullptr);
    EXPECT_EQ(container.references, 1U);
}

TEST_F(InContainer, TheWindowsEndIsNotTheControls) {
    place();
    DestroyWindow(container.window);
    EXPECT_EQ(get(L"RowsCount"), Variant(Long{0}));
}

TEST_F(InContainer, ASiteWithoutAWindowIsRefused) {
    EXPECT_EQ(object->DoVerb(OLEIVERB_SHOW, nullptr, nullptr, 0, nullptr, nullptr), OLE_E_NOT_INPLACEACTIVE);
}

TEST_F(InContainer, TheSizeOfTheDesignIsTheFirstExtent) {
    SIZEL extent{};
    ASSERT_EQ(object->GetExtent(DVASPECT_CONTENT, &extent), S_OK);
    EXPECT_NEAR(static_cast<double>(extent.cx), 4635.0 / 1440 * 2540, 20);
    EXPECT_NEAR(static_cast<double>(extent.cy), 3900.0 / 1440 * 2540, 20);
    EXPECT_EQ(object->GetExtent(DVASPECT_ICON, &extent), DV_E_DVASPECT);
}

TEST_F(InContainer, AnExtentIsTakenOver) {
    SIZEL extent{2540 * 2, 2540};
    ASSERT_EQ(object->SetExtent(DVASPECT_CONTENT, &extent), S_OK);
    SIZEL taken{};
    ASSERT_EQ(control.as<IViewObject2>()->GetExtent(DVASPECT_CONTENT, -1, nullptr, &taken), S_OK);
    EXPECT_NEAR(static_cast<double>(taken.cx), 5080, 20);
    EXPECT_NEAR(static_cast<double>(taken.cy), 2540, 20);
}

TEST_F(InContainer, TheViewIsDrawnIntoAnyContext) {
    let(L"BackColor", {Long{0x0000FF}});
    Sheet sheet(100, 80);
    const RECTL bounds{0, 0, 100, 80};
    ASSERT_EQ(control.as<IViewObject>()->Draw(
                  DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, sheet.dc, &bounds, nullptr, nullptr, 0),
              S_OK);
    EXPECT_GT(sheet.howMany(0xFF0000), 100 * 80 / 2);
    EXPECT_EQ(sheet.howMany(0x00FF00), 0);
}

TEST_F(InContainer, TheDesignViewIsDrawnInDesignMode) {
    container.ambients[DISPID_AMBIENT_USERMODE] = Variant(false);
    container.ambients[DISPID_AMBIENT_DISPLAYNAME] = Variant(u"MyList");
    ASSERT_EQ(object->SetClientSite(&container), S_OK);
    ASSERT_EQ(control.as<IPersistStreamInit>()->InitNew(), S_OK);
    Sheet sheet(309, 260);
    const RECTL bounds{0, 0, 309, 260};
    ASSERT_EQ(control.as<IViewObject>()->Draw(
                  DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, sheet.dc, &bounds, nullptr, nullptr, 0),
              S_OK);
    EXPECT_GT(sheet.howMany(0x000000), 20) << "the name in black";
    EXPECT_EQ(sheet.howMany(0x00FF00), 0);
}

TEST_F(InContainer, TheViewIsDataToo) {
    FORMATETC format{CF_ENHMETAFILE, nullptr, DVASPECT_CONTENT, -1, TYMED_ENHMF};
    STGMEDIUM medium{};
    ASSERT_EQ(control.as<IDataObject>()->GetData(&format, &medium), S_OK);
    EXPECT_NE(medium.hEnhMetaFile, nullptr);
    ReleaseStgMedium(&medium);
    format.cfFormat = CF_TEXT;
    EXPECT_EQ(control.as<IDataObject>()->QueryGetData(&format), DV_E_FORMATETC);
}

TEST_F(InContainer, SettingsGoThroughABag) {
    let(L"GridLines", {true});
    let(L"WheelScrollLines", {Long{7}});
    MapBag bag;
    ASSERT_EQ(control.as<IPersistPropertyBag>()->Save(&bag, TRUE, FALSE), S_OK);
    EXPECT_EQ(bag.values[u"GridLines"], Variant(true));
    EXPECT_EQ(bag.values[u"WheelScrollLines"], Variant(Long{7}));
    EXPECT_FALSE(bag.values.contains(u"BackColor")) << "a default takes no place";
    const win32::ComRef<IUnknown> other = component.make("lmListView");
    ASSERT_EQ(other.as<IPersistPropertyBag>()->Load(&bag, nullptr), S_OK);
    const auto loaded = other.as<IDispatch>();
    EXPECT_EQ(invoke(loaded.get(), L"GridLines", DISPATCH_PROPERTYGET).value, Variant(true));
    EXPECT_EQ(invoke(loaded.get(), L"WheelScrollLines", DISPATCH_PROPERTYGET).value, Variant(Long{7}));
    EXPECT_EQ(invoke(loaded.get(), L"RowColorFirst", DISPATCH_PROPERTYGET).value, Variant(Long{0}))
        << "a new instance starts with 0, which is not the bag's default";
}

TEST_F(InContainer, SettingsGoThroughAStream) {
    let(L"GridLines", {true});
    let(L"IndentLeft", {Single{5}});
    win32::ComRef<IStream> stream;
    win32::demand(CreateStreamOnHGlobal(nullptr, TRUE, stream.out()));
    const auto persist = control.as<IPersistStreamInit>();
    EXPECT_EQ(persist->IsDirty(), S_OK);
    ASSERT_EQ(persist->Save(stream.get(), TRUE), S_OK);
    EXPECT_EQ(persist->IsDirty(), S_FALSE);
    stream->Seek({}, STREAM_SEEK_SET, nullptr);
    const win32::ComRef<IUnknown> other = component.make("lmListView");
    ASSERT_EQ(other.as<IPersistStreamInit>()->Load(stream.get()), S_OK);
    const auto loaded = other.as<IDispatch>();
    EXPECT_EQ(invoke(loaded.get(), L"GridLines", DISPATCH_PROPERTYGET).value, Variant(true));
    EXPECT_EQ(invoke(loaded.get(), L"IndentLeft", DISPATCH_PROPERTYGET).value, Variant(Single{5}));
}

TEST_F(InContainer, AFontGoesThroughAStream) {
    const ObjectRef nothing;
    const Variant font = get(L"DefaultItemFont");
    const auto changed = std::make_shared<Font>(font.toFont()->spec);
    changed->spec.Bold = true;
    ASSERT_EQ(invoke(dispatch.get(), L"DefaultItemFont", DISPATCH_PROPERTYPUTREF, {Variant(FontRef(changed))})
                  .result,
              S_OK);
    win32::ComRef<IStream> stream;
    win32::demand(CreateStreamOnHGlobal(nullptr, TRUE, stream.out()));
    ASSERT_EQ(control.as<IPersistStreamInit>()->Save(stream.get(), TRUE), S_OK);
    stream->Seek({}, STREAM_SEEK_SET, nullptr);
    const win32::ComRef<IUnknown> other = component.make("lmListView");
    ASSERT_EQ(other.as<IPersistStreamInit>()->Load(stream.get()), S_OK);
    const Called read = invoke(other.as<IDispatch>().get(), L"DefaultItemFont", DISPATCH_PROPERTYGET);
    EXPECT_TRUE(read.value.toFont()->spec.Bold);
}

TEST_F(InContainer, ADamagedStreamIsRefused) {
    for (const std::string& bytes :
         {std::string("nonsense"), std::string("LMLV\1\0\0\0\xff\xff\xff\xff", 12), std::string()}) {
        win32::ComRef<IStream> stream;
        win32::demand(CreateStreamOnHGlobal(nullptr, TRUE, stream.out()));
        stream->Write(bytes.data(), static_cast<ULONG>(bytes.size()), nullptr);
        stream->Seek({}, STREAM_SEEK_SET, nullptr);
        const win32::ComRef<IUnknown> other = component.make("lmListView");
        EXPECT_EQ(other.as<IPersistStreamInit>()->Load(stream.get()), win32::resultOf(321));
    }
    EXPECT_EQ(control.as<IPersistStreamInit>()->Load(nullptr), E_POINTER);
}

TEST_F(InContainer, SettingsGoThroughAStorage) {
    let(L"ColumnTextY", {Long{9}});
    win32::ComRef<ILockBytes> bytes;
    win32::demand(CreateILockBytesOnHGlobal(nullptr, TRUE, bytes.out()));
    win32::ComRef<IStorage> storage;
    win32::demand(StgCreateDocfileOnILockBytes(
        bytes.get(), STGM_CREATE | STGM_READWRITE | STGM_SHARE_EXCLUSIVE, 0, storage.out()));
    ASSERT_EQ(control.as<IPersistStorage>()->Save(storage.get(), TRUE), S_OK);
    const win32::ComRef<IUnknown> other = component.make("lmListView");
    ASSERT_EQ(other.as<IPersistStorage>()->Load(storage.get()), S_OK);
    EXPECT_EQ(invoke(other.as<IDispatch>().get(), L"ColumnTextY", DISPATCH_PROPERTYGET).value,
              Variant(Long{9}));
}

TEST_F(InContainer, AControlIsInitialisedOnce) {
    const auto persist = control.as<IPersistStreamInit>();
    EXPECT_EQ(persist->InitNew(), S_OK);
    EXPECT_EQ(persist->InitNew(), E_UNEXPECTED);
    MapBag bag;
    EXPECT_EQ(control.as<IPersistPropertyBag>()->Load(&bag, nullptr), E_UNEXPECTED);
}

TEST_F(InContainer, QuickActivationDoesItAllAtOnce) {
    EventSink sink;
    QACONTAINER from{};
    from.cbSize = sizeof(from);
    from.pClientSite = &container;
    from.pUnkEventSink = &sink;
    QACONTROL to{};
    to.cbSize = sizeof(to);
    ASSERT_EQ(control.as<IQuickActivate>()->QuickActivate(&from, &to), S_OK);
    EXPECT_NE(to.dwEventCookie, 0U);
    EXPECT_NE(to.dwMiscStatus & OLEMISC_SETCLIENTSITEFIRST, 0U);
    fill(1, {u"b", u"a"});
    call(L"Sort", {Long{1}, Long{1}});
    EXPECT_EQ(sink.raised, std::vector<DISPID>{20});
    eventPointOf(control)->Unadvise(to.dwEventCookie);
}

TEST_F(InContainer, EachInterfaceLeadsToEachOther) {
    const GUID interfaces[] = {IID_IDispatch,
                               IID_IOleObject,
                               IID_IOleControl,
                               IID_IOleWindow,
                               IID_IOleInPlaceObject,
                               IID_IOleInPlaceActiveObject,
                               IID_IViewObject,
                               IID_IViewObject2,
                               IID_IDataObject,
                               IID_IPersist,
                               IID_IPersistPropertyBag,
                               IID_IPersistStreamInit,
                               IID_IPersistStorage,
                               IID_IProvideClassInfo,
                               IID_IProvideClassInfo2,
                               IID_IConnectionPointContainer,
                               IID_IQuickActivate,
                               IID_ISupportErrorInfo};
    for (const GUID& iid : interfaces) {
        win32::ComRef<IUnknown> face;
        ASSERT_EQ(control->QueryInterface(iid, reinterpret_cast<void**>(face.out())), S_OK);
        EXPECT_EQ(face.as<IUnknown>().get(), control.get());
        EXPECT_TRUE(face.as<IDispatch>());
    }
    void* none = this;
    EXPECT_EQ(control->QueryInterface(IID_IStream, &none), E_NOINTERFACE);
    EXPECT_EQ(none, nullptr);
}

/// A host asks for these before it lets scripts write files through a control.
TEST_F(InContainer, TheControlIsNotMarkedAsSafe) {
    constexpr GUID objectSafety{0xCB5BDC81, 0x93C1, 0x11CF, {0x8F, 0x20, 0x00, 0x80, 0x5F, 0x2C, 0xD0, 0x64}};
    void* none = nullptr;
    EXPECT_EQ(control->QueryInterface(objectSafety, &none), E_NOINTERFACE);
}

} // namespace
} // namespace lumtex::testing
