/// Things dropped on the list.
#include "event_sink.h"
#include "worlds/win32/dragged_data.h"

#include <ole2.h>

namespace lumtex::testing {
namespace {

constexpr DISPID oleDragDrop = 14;
constexpr DISPID oleDragOver = 15;

/// Drops at its first question.
class HastySource final : public IDropSource {
  public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID /*iid*/, void** found) override {
        *found = nullptr;
        return E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    HRESULT STDMETHODCALLTYPE QueryContinueDrag(BOOL /*escape*/, DWORD /*keys*/) override {
        return ++asked > 1 ? DRAGDROP_S_DROP : S_OK;
    }
    HRESULT STDMETHODCALLTYPE GiveFeedback(DWORD effect) override {
        feedback = effect;
        return DRAGDROP_S_USEDEFAULTCURSORS;
    }

    int asked = 0;
    DWORD feedback = DROPEFFECT_NONE;
};

class Drag : public ListFixture {
  protected:
    Drag() {
        OleInitialize(nullptr);
        letGo();
        begin();
    }
    ~Drag() override {
        letGo();
        EXPECT_EQ(dragged.references, 1U);
        OleUninitialize();
    }

    void begin() {
        control = component.make("lmListView");
        dispatch = control.as<IDispatch>();
        point = eventPointOf(control);
        win32::demand(point->Advise(&sink, &cookie));
        get(L"RowsCount");
        control.as<IOleWindow>()->GetWindow(&window);
    }
    void letGo() {
        if (point)
            point->Unadvise(cookie);
        point = {};
        dispatch = {};
        control = {};
    }

    win32::ComRef<IDropTarget> target() { return dropTargetOf(window); }

    EventSink sink;
    win32::ComRef<IConnectionPoint> point;
    DWORD cookie = 0;
    HWND window = nullptr;
    DraggedData dragged;
    DWORD effect = DROPEFFECT_COPY | DROPEFFECT_MOVE;
};

TEST_F(Drag, TheListTakesDropsInModeOneAlone) {
    EXPECT_FALSE(target());
    let(L"OLEDropMode", {Integer{1}});
    EXPECT_TRUE(target());
    let(L"OLEDropMode", {Integer{0}});
    EXPECT_FALSE(target());
}

TEST_F(Drag, TheHostIsToldWithTypedReferencesAndAnswersWithTheEffect) {
    dragged.letText(CF_UNICODETEXT, u"carried");
    let(L"OLEDropMode", {Integer{1}});
    std::vector<VARTYPE> types;
    sink.handlers[oleDragOver] = [&](auto arguments) {
        for (VARIANT* argument : arguments)
            types.push_back(static_cast<VARTYPE>(V_VT(argument) & ~VT_BYREF));
        *V_I4REF(arguments[1]) = DROPEFFECT_MOVE;
    };
    ASSERT_EQ(target()->DragEnter(&dragged, MK_LBUTTON, {3, 4}, &effect), S_OK);
    EXPECT_EQ(types, (std::vector<VARTYPE>{VT_DISPATCH, VT_I4, VT_I2, VT_I2, VT_R4, VT_R4, VT_I2}));
    EXPECT_EQ(effect, DWORD{DROPEFFECT_MOVE});
    Variant text;
    sink.handlers[oleDragDrop] = [&](auto arguments) {
        text = invoke(*V_DISPATCHREF(arguments[0]), L"GetData", DISPATCH_METHOD, {Integer{CF_UNICODETEXT}})
                   .value;
    };
    ASSERT_EQ(target()->Drop(&dragged, 0, {3, 4}, &effect), S_OK);
    EXPECT_EQ(text, Variant(u"carried"));
    EXPECT_EQ(sink.raised, (std::vector<DISPID>{oleDragOver, oleDragDrop}));
}

TEST_F(Drag, TheHostReadsTheNamesOfFiles) {
    dragged.letFiles({u"C:\\a.txt", u"C:\\b.txt"});
    let(L"OLEDropMode", {Integer{1}});
    Variant count;
    Variant second;
    HRESULT third = S_OK;
    sink.handlers[oleDragDrop] = [&](auto arguments) {
        const Called files = invoke(*V_DISPATCHREF(arguments[0]), L"Files", DISPATCH_PROPERTYGET);
        const auto names = win32::toIDispatch(files.value.toObject());
        count = invoke(names.get(), L"Count", DISPATCH_PROPERTYGET).value;
        second = invoke(names.get(), L"Item", DISPATCH_PROPERTYGET, {Long{2}}).value;
        third = invoke(names.get(), L"Item", DISPATCH_PROPERTYGET, {Long{3}}).result;
    };
    ASSERT_EQ(target()->Drop(&dragged, 0, {}, &effect), S_OK);
    EXPECT_EQ(count, Variant(Long{2}));
    EXPECT_EQ(second, Variant(u"C:\\b.txt"));
    EXPECT_EQ(third, DISP_E_EXCEPTION);
}

TEST_F(Drag, TheModuleStaysWhileAHostHoldsTheData) {
    dragged.letText(CF_TEXT, "kept");
    let(L"OLEDropMode", {Integer{1}});
    win32::ComRef<IDispatch> kept;
    sink.handlers[oleDragDrop] = [&](auto arguments) {
        kept = win32::ComRef<IDispatch>(*V_DISPATCHREF(arguments[0]));
    };
    ASSERT_EQ(target()->Drop(&dragged, 0, {}, &effect), S_OK);
    letGo();
    EXPECT_FALSE(component.canUnload());
    EXPECT_EQ(invoke(kept.get(), L"GetData", DISPATCH_METHOD, {Integer{CF_TEXT}}).value, Variant(u"kept"));
    kept = {};
    EXPECT_TRUE(component.canUnload());
    begin();
}

TEST_F(Drag, TheModeMayChangeInTheEvent) {
    let(L"OLEDropMode", {Integer{1}});
    const auto dropTarget = target();
    sink.handlers[oleDragDrop] = [&](auto /*arguments*/) { let(L"OLEDropMode", {Integer{0}}); };
    EXPECT_EQ(dropTarget->Drop(&dragged, 0, {}, &effect), S_OK);
    EXPECT_FALSE(target());
    EXPECT_EQ(dropTarget->Drop(&dragged, 0, {}, &effect), S_OK);
    EXPECT_EQ(sink.raised.size(), 1U);
}

TEST_F(Drag, TheListMayEndInTheEvent) {
    let(L"OLEDropMode", {Integer{1}});
    sink.handlers[oleDragOver] = [&](auto /*arguments*/) { letGo(); };
    const auto dropTarget = target();
    EXPECT_EQ(dropTarget->DragEnter(&dragged, 0, {}, &effect), S_OK);
    EXPECT_EQ(dropTarget->DragLeave(), S_OK);
    EXPECT_EQ(sink.raised.size(), 1U);
    EXPECT_FALSE(IsWindow(window));
    begin();
}

/// The pointer stays where it is; the program's window comes to it.
TEST_F(Drag, ADragOfTheSystemReachesTheList) {
    POINT pointer{};
    ASSERT_TRUE(GetCursorPos(&pointer));
    HWND program = CreateWindowExW(WS_EX_TOPMOST,
                                   L"STATIC",
                                   L"",
                                   WS_POPUP | WS_VISIBLE,
                                   pointer.x - 50,
                                   pointer.y - 40,
                                   400,
                                   300,
                                   nullptr,
                                   nullptr,
                                   nullptr,
                                   nullptr);
    ASSERT_NE(program, nullptr);
    SetParent(window, program);
    let(L"OLEDropMode", {Integer{1}});
    std::vector<SHORT> states;
    float x = 0;
    float y = 0;
    sink.handlers[oleDragOver] = [&](auto arguments) {
        *V_I4REF(arguments[1]) = DROPEFFECT_COPY;
        states.push_back(*V_I2REF(arguments[6]));
    };
    sink.handlers[oleDragDrop] = [&](auto arguments) {
        x = *V_R4REF(arguments[4]);
        y = *V_R4REF(arguments[5]);
        *V_I4REF(arguments[1]) = DROPEFFECT_COPY;
    };
    HastySource source;
    for (int i = 0; i < 4; ++i)
        PostMessageW(program, WM_MOUSEMOVE, 0, 0);
    DWORD done = DROPEFFECT_NONE;
    EXPECT_EQ(DoDragDrop(&dragged, &source, effect, &done), DRAGDROP_S_DROP);
    EXPECT_EQ(done, DWORD{DROPEFFECT_COPY});
    EXPECT_EQ(source.feedback, DWORD{DROPEFFECT_COPY});
    ASSERT_FALSE(states.empty());
    EXPECT_EQ(states.front(), 0) << "enters";
    EXPECT_EQ(sink.raised.back(), oleDragDrop);
    EXPECT_EQ(x, 50);
    EXPECT_EQ(y, 40);
    let(L"OLEDropMode", {Integer{0}});
    SetParent(window, HWND_MESSAGE);
    DestroyWindow(program);
}

} // namespace
} // namespace lumtex::testing
