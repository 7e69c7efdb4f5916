/// Focus and keys between the list and its container.
#include "placed_control.h"

#include <algorithm>

namespace lumtex::testing {
namespace {

constexpr DISPID keyDown = 10;
constexpr DISPID keyPress = 11;
constexpr DISPID itemChanged = 26;

/// A place in the program that is not the list's.
class Neighbour {
  public:
    explicit Neighbour(HWND parent)
        : window(CreateWindowExW(
              0, L"EDIT", L"", WS_CHILD | WS_VISIBLE, 0, 0, 5, 5, parent, nullptr, nullptr, nullptr)) {}
    Neighbour(const Neighbour&) = delete;
    Neighbour& operator=(const Neighbour&) = delete;
    ~Neighbour() { DestroyWindow(window); }

    HWND window;
};

class Focus : public PlacedControl {
  protected:
    void SetUp() override {
        ASSERT_NE(container.window, nullptr) << "no display";
        win32::demand(point->Advise(&sink, &cookie));
    }
    ~Focus() override {
        point->Unadvise(cookie);
        point = {};
    }

    /// The container lets go of the control altogether.
    void takeAway() {
        point->Unadvise(cookie);
        object->Close(OLECLOSE_NOSAVE);
        object->SetClientSite(nullptr);
        point = {};
        object = {};
        dispatch = {};
        control = {};
    }
    /// A new control in place of one that is gone.
    void renew() {
        control = component.make("lmListView");
        dispatch = control.as<IDispatch>();
        object = control.as<IOleObject>();
        point = eventPointOf(control);
        win32::demand(point->Advise(&sink, &cookie));
    }
    /// Has the list run the messages that wait.
    void yield() { get(L"ListIndex"); }

    EventSink sink;
    win32::ComRef<IConnectionPoint> point = eventPointOf(control);
    DWORD cookie = 0;
    Neighbour neighbour{container.window};
};

TEST_F(Focus, AFocusThatComesOtherwiseActivatesTheListForItsUser) {
    place();
    SetFocus(neighbour.window);
    EXPECT_FALSE(container.active);
    SetFocus(window());
    EXPECT_TRUE(container.active);
    EXPECT_EQ(container.told.back(), "OnUIActivate");
    EXPECT_EQ(container.focused, std::vector<bool>{true});
    SetFocus(neighbour.window);
    EXPECT_EQ(container.focused, (std::vector<bool>{true, false}));
    EXPECT_TRUE(container.active) << "the container decides who comes next";
}

TEST_F(Focus, TheVerbTellsTheFocusToo) {
    place(OLEIVERB_UIACTIVATE);
    EXPECT_EQ(container.focused, std::vector<bool>{true});
    EXPECT_EQ(std::ranges::count(container.told, "OnUIActivate"), 1);
}

TEST_F(Focus, APressActivatesAListThatKeptTheFocus) {
    place(OLEIVERB_UIACTIVATE);
    ASSERT_EQ(control.as<IOleInPlaceObject>()->UIDeactivate(), S_OK);
    ASSERT_EQ(GetFocus(), window());
    SendMessageW(window(),
                 WM_MOUSEACTIVATE,
                 reinterpret_cast<WPARAM>(programWindow()),
                 MAKELPARAM(HTCLIENT, WM_LBUTTONDOWN));
    EXPECT_TRUE(container.active);
}

TEST_F(Focus, TheVerbGivesTheFocusBackToAnActiveList) {
    place(OLEIVERB_UIACTIVATE);
    SetFocus(neighbour.window);
    EXPECT_EQ(verb(OLEIVERB_UIACTIVATE), S_OK);
    EXPECT_EQ(GetFocus(), window());
}

TEST_F(Focus, InADesignerTheFocusActivatesNothing) {
    container.ambients[DISPID_AMBIENT_USERMODE] = Variant(false);
    place();
    SetFocus(window());
    EXPECT_FALSE(container.active);
    EXPECT_TRUE(container.focused.empty());
}

TEST_F(Focus, TheEditorOfACellIsPartOfTheList) {
    place(OLEIVERB_UIACTIVATE);
    fill(1, {u"a"});
    call(L"SetEdit", {Long{1}, Long{1}});
    HWND editor = win32::toHWND(get(L"hwndEdit").toLong());
    SetFocus(editor);
    ASSERT_EQ(GetFocus(), editor);
    EXPECT_EQ(container.focused, std::vector<bool>{true});
    SetFocus(neighbour.window);
    EXPECT_EQ(container.focused, (std::vector<bool>{true, false}));
}

TEST_F(Focus, AContainerMayTakeTheControlAwayWhenItsUserEnters) {
    place();
    HWND window = this->window();
    container.onUIActivate = [&] { takeAway(); };
    SetFocus(window);
    EXPECT_FALSE(IsWindow(window));
    EXPECT_TRUE(component.canUnload());
    container.active = {};
    EXPECT_EQ(container.references, 1U);
    renew();
}

TEST_F(Focus, AContainerMayTakeTheControlAwayForAKey) {
    place(OLEIVERB_UIACTIVATE);
    HWND window = this->window();
    container.onTab = [&] { takeAway(); };
    MSG tab{window, WM_KEYDOWN, VK_TAB, 0, 0, {}};
    win32::ComRef<IOleInPlaceActiveObject> active = container.active;
    EXPECT_EQ(active->TranslateAccelerator(&tab), S_FALSE);
    active = {};
    EXPECT_FALSE(IsWindow(window));
    renew();
}

TEST_F(Focus, AContainerMayRefuse) {
    place();
    container.mayTakeOver = E_FAIL;
    EXPECT_EQ(verb(OLEIVERB_UIACTIVATE), E_FAIL);
    EXPECT_FALSE(container.active);
    EXPECT_EQ(control.as<IOleInPlaceObject>()->UIDeactivate(), S_OK);
    EXPECT_NE(container.told.back(), "OnUIDeactivate");
}

TEST_F(Focus, EnterBelongsToTheEditorWhileItIsOpen) {
    place(OLEIVERB_UIACTIVATE);
    fill(1, {u"a"});
    MSG enter{window(), WM_KEYDOWN, VK_RETURN, 0x1C0001, 0, {}};
    EXPECT_EQ(container.active->TranslateAccelerator(&enter), S_FALSE);
    EXPECT_EQ(container.told.back(), "TranslateAccelerator " + std::to_string(VK_RETURN));
    container.told.clear();
    call(L"SetEdit", {Long{1}, Long{1}});
    HWND editor = win32::toHWND(get(L"hwndEdit").toLong());
    SetFocus(editor);
    sink.raised.clear();
    enter.hwnd = editor;
    EXPECT_EQ(container.active->TranslateAccelerator(&enter), S_OK);
    yield();
    EXPECT_EQ(sink.raised, std::vector<DISPID>{itemChanged});
    EXPECT_TRUE(container.told.empty());
}

TEST_F(Focus, LettersAndEscapeGoThroughTheContainer) {
    place(OLEIVERB_UIACTIVATE);
    for (const WPARAM key : {WPARAM{'A'}, WPARAM{VK_ESCAPE}, WPARAM{VK_TAB}, WPARAM{VK_F1}}) {
        MSG down{window(), WM_KEYDOWN, key, 0, 0, {}};
        EXPECT_EQ(container.active->TranslateAccelerator(&down), S_FALSE);
        EXPECT_EQ(container.told.back(), "TranslateAccelerator " + std::to_string(key));
    }
    EXPECT_TRUE(sink.raised.empty());
}

TEST_F(Focus, EachMovingKeyIsTheLists) {
    place(OLEIVERB_UIACTIVATE);
    for (const WPARAM key : {VK_LEFT, VK_RIGHT, VK_UP, VK_DOWN, VK_HOME, VK_END, VK_PRIOR, VK_NEXT}) {
        MSG down{window(), WM_KEYDOWN, key, 0, 0, {}};
        EXPECT_EQ(container.active->TranslateAccelerator(&down), S_OK) << key;
    }
    EXPECT_EQ(sink.raised, std::vector<DISPID>(8, keyDown));
}

TEST_F(Focus, KeysOfOthersAreNotTheLists) {
    place(OLEIVERB_UIACTIVATE);
    SetFocus(neighbour.window);
    MSG down{neighbour.window, WM_KEYDOWN, VK_DOWN, 0, 0, {}};
    EXPECT_EQ(container.active->TranslateAccelerator(&down), S_FALSE);
    MSG click{window(), WM_LBUTTONDOWN, 0, 0, 0, {}};
    EXPECT_EQ(container.active->TranslateAccelerator(&click), S_FALSE);
    EXPECT_TRUE(sink.raised.empty());
}

TEST_F(Focus, ThereAreNoMnemonics) {
    CONTROLINFO info{};
    info.cb = sizeof(info);
    ASSERT_EQ(control.as<IOleControl>()->GetControlInfo(&info), S_OK);
    EXPECT_EQ(info.hAccel, nullptr);
    EXPECT_EQ(info.cAccel, 0);
    EXPECT_EQ(info.dwFlags, 0U);
    EXPECT_EQ(control.as<IOleControl>()->OnMnemonic(nullptr), S_OK);
}

TEST_F(Focus, KeysInAYieldAreOfferedToTheContainer) {
    place(OLEIVERB_UIACTIVATE);
    container.takesTab = true;
    PostMessageW(window(), WM_KEYDOWN, VK_TAB, 0);
    yield();
    EXPECT_EQ(container.told.back(), "TranslateAccelerator " + std::to_string(VK_TAB));
    EXPECT_TRUE(sink.raised.empty());
    container.takesTab = false;
    PostMessageW(window(), WM_KEYDOWN, VK_TAB, 0);
    yield();
    EXPECT_EQ(sink.raised, (std::vector<DISPID>{keyDown, keyPress})) << "nobody wanted it";
}

TEST_F(Focus, ArrowsInAYieldReachTheListAlone) {
    place(OLEIVERB_UIACTIVATE);
    container.told.clear();
    PostMessageW(window(), WM_KEYDOWN, VK_DOWN, 0);
    yield();
    EXPECT_EQ(sink.raised, std::vector<DISPID>{keyDown});
    EXPECT_TRUE(container.told.empty());
}

TEST_F(Focus, AcceleratorsOfTheFrameWorkInAYield) {
    ACCEL entries[] = {{FVIRTKEY, VK_F5, 7}};
    container.accelerators = CreateAcceleratorTableW(entries, 1);
    place(OLEIVERB_UIACTIVATE);
    PostMessageW(window(), WM_KEYDOWN, VK_F5, 0);
    PostMessageW(window(), WM_KEYDOWN, VK_F6, 0);
    yield();
    EXPECT_EQ(container.commands, std::vector<WORD>{7});
    EXPECT_EQ(sink.raised, std::vector<DISPID>{keyDown}) << "the other key";
    SetFocus(neighbour.window);
    PostMessageW(neighbour.window, WM_KEYDOWN, VK_F5, 0);
    yield();
    EXPECT_EQ(container.commands, (std::vector<WORD>{7, 7})) << "wherever the focus is";
    object->Close(OLECLOSE_NOSAVE);
    EXPECT_EQ(CopyAcceleratorTableW(container.accelerators, nullptr, 0), 1) << "the table is the frame's";
    DestroyAcceleratorTable(container.accelerators);
}

TEST_F(Focus, AYieldOfOneListAsksTheContainerOfTheOtherOne) {
    place(OLEIVERB_UIACTIVATE);
    const win32::ComRef<IUnknown> other = component.make("lmListView");
    const auto otherList = other.as<IDispatch>();
    container.takesTab = true;
    container.told.clear();
    PostMessageW(window(), WM_KEYDOWN, VK_TAB, 0);
    invoke(otherList.get(), L"ListIndex", DISPATCH_PROPERTYGET);
    EXPECT_EQ(container.told, std::vector<std::string>{"TranslateAccelerator " + std::to_string(VK_TAB)});
    EXPECT_TRUE(sink.raised.empty());
}

/// The control that a container takes away before it closes what opened; none for none.
IOleInPlaceObject* leaving = nullptr;

void CALLBACK closeWhatOpened(HWND /*none*/, UINT /*message*/, UINT_PTR /*timer*/, DWORD /*time*/) {
    HWND active = GetActiveWindow();
    if (leaving != nullptr)
        std::exchange(leaving, nullptr)->InPlaceDeactivate();
    if (active != nullptr && active != programWindow())
        PostMessageW(active, WM_CLOSE, 0, 0);
}

TEST_F(Focus, TheContainersWindowsWaitForAFormOfTheList) {
    place(OLEIVERB_UIACTIVATE);
    // Whatever opens is closed at once.
    const UINT_PTR timer = SetTimer(nullptr, 0, 10, closeWhatOpened);
    call(L"About");
    KillTimer(nullptr, timer);
    EXPECT_EQ(container.modeless, (std::vector<bool>{false, true}));
}

TEST_F(Focus, TheyWaitNoLongerThanTheListIsAmongThem) {
    place(OLEIVERB_UIACTIVATE);
    const auto inPlace = control.as<IOleInPlaceObject>();
    leaving = inPlace.get();
    const UINT_PTR timer = SetTimer(nullptr, 0, 10, closeWhatOpened);
    call(L"About");
    KillTimer(nullptr, timer);
    EXPECT_EQ(leaving, nullptr);
    EXPECT_EQ(container.modeless, (std::vector<bool>{false, true}));
}

TEST_F(Focus, EnterIsTheContainersWhileABarWasPressed) {
    place(OLEIVERB_UIACTIVATE);
    fill(1, {u"a", u"b", u"c", u"d", u"e", u"f", u"g", u"h", u"i", u"j", u"k", u"l", u"m", u"n"});
    call(L"CheckScroll");
    RECT area{};
    GetClientRect(window(), &area);
    HWND bar = ChildWindowFromPointEx(window(), {area.right - 6, area.bottom / 2}, CWP_SKIPINVISIBLE);
    ASSERT_NE(bar, window());
    call(L"SetEdit", {Long{1}, Long{1}});
    HWND editor = win32::toHWND(get(L"hwndEdit").toLong());
    SetFocus(editor);
    SendMessageW(bar, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(6, 40));
    SendMessageW(bar, WM_LBUTTONUP, 0, MAKELPARAM(6, 40));
    EXPECT_EQ(GetFocus(), editor) << "an open editor stays open";
    call(L"StopEdit");
    SetFocus(neighbour.window);
    SendMessageW(bar, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(6, 40));
    SendMessageW(bar, WM_LBUTTONUP, 0, MAKELPARAM(6, 40));
    EXPECT_EQ(GetFocus(), window());
    container.told.clear();
    MSG enter{window(), WM_KEYDOWN, VK_RETURN, 0x1C0001, 0, {}};
    EXPECT_EQ(container.active->TranslateAccelerator(&enter), S_FALSE);
    EXPECT_EQ(container.told, std::vector<std::string>{"TranslateAccelerator " + std::to_string(VK_RETURN)});
}

} // namespace
} // namespace lumtex::testing
