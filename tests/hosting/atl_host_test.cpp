/// The container that comes with the system: a window of class AtlAxWin makes the control by its name.
#include "activex/event_sink.h"
#include "activex/small_container.h"
#include "lifetime/resources.h"
#include "message_loop.h"
#include "stage/user_input.h"
#include "worlds/win32/window_pictures.h"

#include <algorithm>
#include <set>

namespace lumtex::testing {
namespace {

constexpr DISPID mouseDown = 7;
constexpr DISPID itemClick = 22;

/// The system's library of such windows.
class AtlLibrary {
  public:
    AtlLibrary() : module_(LoadLibraryW(L"atl.dll")) {
        reinterpret_cast<BOOL(WINAPI*)()>(entry("AtlAxWinInit"))();
    }
    AtlLibrary(const AtlLibrary&) = delete;
    AtlLibrary& operator=(const AtlLibrary&) = delete;
    ~AtlLibrary() { FreeLibrary(module_); }

    /// The control in such a window.
    win32::ComRef<IUnknown> controlIn(HWND host) const {
        win32::ComRef<IUnknown> control;
        const auto ask = reinterpret_cast<HRESULT(WINAPI*)(HWND, IUnknown**)>(entry("AtlAxGetControl"));
        win32::demand(ask(host, control.out()));
        return control;
    }

  private:
    void* entry(const char* name) const { return reinterpret_cast<void*>(GetProcAddress(module_, name)); }

    HMODULE module_;
};

HWND windowOf(const win32::ComRef<IUnknown>& control) {
    HWND window = nullptr;
    win32::demand(control.as<IOleWindow>()->GetWindow(&window));
    return window;
}

void fill(const win32::ComRef<IUnknown>& control) {
    const auto list = control.as<IDispatch>();
    invoke(list.get(), L"BorderVisible", DISPATCH_PROPERTYPUT, {false});
    invoke(list.get(), L"RowsDynamic", DISPATCH_PROPERTYPUT, {false});
    invoke(list.get(), L"RowHeight", DISPATCH_PROPERTYPUT, {Long{300}});
    for (const char16_t* title : {u"City", u"Country"})
        invoke(list.get(), L"ColumnsAdd", DISPATCH_METHOD, {title});
    for (const char16_t* row : {u"Lisbon,Portugal", u"Oslo,Norway", u"Graz,Austria"})
        for (int times = 0; times < 5; ++times)
            invoke(list.get(), L"RowsAdd", DISPATCH_METHOD, {Long{-1}, u",", row});
}

class AtlHost : public ::testing::Test {
  protected:
    using Register = HRESULT(WINAPI*)();
    static constexpr int width = 300;
    static constexpr int height = 200;

    AtlHost() {
        OleInitialize(nullptr);
        EXPECT_EQ(component.function<Register>("DllRegisterServer")(), S_OK);
    }
    ~AtlHost() override {
        component.function<Register>("DllUnregisterServer")();
        OleUninitialize();
    }

    HWND makeHost() const {
        return CreateWindowExW(0,
                               L"AtlAxWin",
                               L"LumtexListView.lmListView",
                               WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN,
                               20,
                               30,
                               width,
                               height,
                               programWindow(),
                               nullptr,
                               nullptr,
                               nullptr);
    }
    /// A host comes, is used, and goes.
    void round() const {
        HWND host = makeHost();
        {
            const win32::ComRef<IUnknown> control = atl.controlIn(host);
            fill(control);
            letMessagesThrough();
        }
        DestroyWindow(host);
    }

    BoxWatch watch;
    Component component;
    AtlLibrary atl;
};

TEST_F(AtlHost, PlacesTheControlOverItsWholeWindowAndSizesItAlong) {
    HWND host = makeHost();
    ASSERT_NE(host, nullptr);
    {
        const HWND list = windowOf(atl.controlIn(host));
        EXPECT_EQ(GetParent(list), host);
        EXPECT_TRUE(IsWindowVisible(list));
        for (const SIZE size : {SIZE{width, height}, SIZE{220, 120}, SIZE{400, 300}}) {
            MoveWindow(host, 20, 30, size.cx, size.cy, TRUE);
            RECT hosts{};
            RECT lists{};
            GetWindowRect(host, &hosts);
            GetWindowRect(list, &lists);
            EXPECT_TRUE(EqualRect(&hosts, &lists)) << size.cx << " x " << size.cy;
        }
    }
    DestroyWindow(host);
}

TEST_F(AtlHost, ShowsTheSamePixelsAsAnyOtherContainer) {
    Bitmap inAtl;
    Bitmap printed;
    HWND host = makeHost();
    {
        const win32::ComRef<IUnknown> control = atl.controlIn(host);
        fill(control);
        letMessagesThrough();
        inAtl = screenPicture(windowOf(control));
        printed = printedPicture(windowOf(control));
    }
    DestroyWindow(host);
    SmallContainer container;
    container.place = {20, 30, 20 + width, 30 + height};
    Bitmap inOurs;
    {
        const win32::ComRef<IUnknown> control = component.make("lmListView");
        const auto object = control.as<IOleObject>();
        win32::demand(object->SetClientSite(&container));
        win32::demand(control.as<IPersistStreamInit>()->InitNew());
        win32::demand(object->DoVerb(
            OLEIVERB_INPLACEACTIVATE, nullptr, &container, 0, container.window, &container.place));
        fill(control);
        letMessagesThrough();
        inOurs = screenPicture(windowOf(control));
        object->Close(OLECLOSE_NOSAVE);
        object->SetClientSite(nullptr);
    }
    EXPECT_EQ(inAtl.width, width);
    EXPECT_EQ(inAtl.height, height);
    EXPECT_GT(std::set<std::uint32_t>(inAtl.pixels.begin(), inAtl.pixels.end()).size(), 10U)
        << "something is painted";
    EXPECT_TRUE(inAtl.pixels == inOurs.pixels);
    EXPECT_TRUE(inAtl.pixels == printed.pixels);
}

TEST_F(AtlHost, PressesReachTheList) {
    HWND host = makeHost();
    EventSink sink;
    {
        const win32::ComRef<IUnknown> control = atl.controlIn(host);
        fill(control);
        const auto point = eventPointOf(control);
        DWORD cookie = 0;
        win32::demand(point->Advise(&sink, &cookie));
        UserInput hands([] { letMessagesThrough(); });
        // The list learns from the first move that the mouse is inside.
        for (const LONG x : {30, 31}) {
            POINT at{x, 25 + 2 * 20 + 10};
            ClientToScreen(windowOf(control), &at);
            hands.move(at, 0);
        }
        hands.press(leftButton, 0);
        hands.release(leftButton, 0);
        EXPECT_NE(std::find(sink.raised.begin(), sink.raised.end(), mouseDown), sink.raised.end());
        EXPECT_NE(std::find(sink.raised.begin(), sink.raised.end(), itemClick), sink.raised.end());
        EXPECT_EQ(invoke(control.as<IDispatch>().get(), L"ListIndex", DISPATCH_PROPERTYGET).value.toLong(),
                  2);
        point->Unadvise(cookie);
    }
    DestroyWindow(host);
    EXPECT_EQ(sink.references, 1U);
}

TEST_F(AtlHost, ClosingItLeavesNothingBehind) {
    for (int times = 0; times < 5; ++times)
        round();
    EXPECT_TRUE(component.canUnload());
    const int drawing = gdiObjectCount();
    const int windows = windowCount();
    const HeapUse heap = heapUse();
    constexpr int rounds = 40;
    for (int times = 0; times < rounds; ++times)
        round();
    EXPECT_TRUE(component.canUnload());
    EXPECT_EQ(gdiObjectCount(), drawing);
    EXPECT_EQ(windowCount(), windows);
    EXPECT_LT(heapUse().blocks, heap.blocks + rounds) << "less than a block each time";
}

TEST_F(AtlHost, AControlThatIsHeldOutlivesItsHost) {
    HWND host = makeHost();
    win32::ComRef<IUnknown> control = atl.controlIn(host);
    fill(control);
    DestroyWindow(host);
    EXPECT_EQ(invoke(control.as<IDispatch>().get(), L"RowsCount", DISPATCH_PROPERTYGET).value.toLong(), 15);
    control = {};
    EXPECT_TRUE(component.canUnload());
}

} // namespace
} // namespace lumtex::testing
