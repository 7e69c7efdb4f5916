/// Events reach the sinks of the host.
#include "event_sink.h"

namespace lumtex::testing {
namespace {

constexpr DISPID click = 1;
constexpr DISPID keyDown = 10;
constexpr DISPID keyPress = 11;
constexpr DISPID errorWrongIndex = 19;
constexpr DISPID sortDone = 20;

class Events : public ListFixture {
  protected:
    Events() { win32::demand(point->Advise(&sink, &cookie)); }
    ~Events() override {
        point->Unadvise(cookie);
        point = {};
    }

    EventSink sink;
    win32::ComRef<IConnectionPoint> point = eventPointOf(control);
    DWORD cookie = 0;
};

TEST_F(Events, ASortIsTold) {
    fill(1, {u"b", u"a"});
    call(L"Sort", {Long{1}, Long{1}});
    EXPECT_EQ(sink.raised, std::vector<DISPID>{sortDone});
    EXPECT_EQ(get(L"ItemText", {Long{1}, Long{1}}), Variant(u"a"));
}

TEST_F(Events, AnArgumentByReferenceComesAsAPointerToItsType) {
    fill(1, {u"a"});
    VARTYPE seen = VT_EMPTY;
    sink.handlers[errorWrongIndex] = [&](auto arguments) { seen = V_VT(arguments[0]); };
    EXPECT_EQ(let(L"ListIndex", {Long{77}}), S_OK);
    EXPECT_EQ(sink.raised, std::vector<DISPID>{errorWrongIndex});
    EXPECT_EQ(seen, VT_BYREF | VT_VARIANT);
}

TEST_F(Events, AKeyIsToldWithTypedReferences) {
    HWND window = nullptr;
    ASSERT_EQ(control.as<IOleWindow>()->GetWindow(&window), S_OK);
    std::vector<VARTYPE> types;
    SHORT code = 0;
    sink.handlers[keyDown] = [&](auto arguments) {
        for (VARIANT* argument : arguments)
            types.push_back(V_VT(argument));
        code = *V_I2REF(arguments[0]);
    };
    get(L"RowsCount");
    SendMessageW(window, WM_KEYDOWN, 'A', 0);
    EXPECT_EQ(types, (std::vector<VARTYPE>{VT_BYREF | VT_I2, VT_BYREF | VT_I2}));
    EXPECT_EQ(code, 'A');
}

TEST_F(Events, AreNotToldWhileFrozen) {
    fill(1, {u"b", u"a"});
    const auto oleControl = control.as<IOleControl>();
    EXPECT_EQ(oleControl->FreezeEvents(TRUE), S_OK);
    call(L"Sort", {Long{1}, Long{1}});
    EXPECT_TRUE(sink.raised.empty());
    EXPECT_EQ(oleControl->FreezeEvents(FALSE), S_OK);
    call(L"Sort", {Long{1}, Long{2}});
    EXPECT_EQ(sink.raised, std::vector<DISPID>{sortDone});
}

TEST_F(Events, EachSinkIsTold) {
    fill(1, {u"b", u"a"});
    EventSink other;
    DWORD otherCookie = 0;
    ASSERT_EQ(point->Advise(&other, &otherCookie), S_OK);
    call(L"Sort", {Long{1}, Long{1}});
    EXPECT_EQ(other.raised, sink.raised);
    EXPECT_EQ(point->Unadvise(otherCookie), S_OK);
    EXPECT_EQ(other.references, 1U);
    EXPECT_EQ(point->Unadvise(otherCookie), CONNECT_E_NOCONNECTION);
}

TEST_F(Events, ASinkMayGoWhileItIsTold) {
    fill(1, {u"b", u"a"});
    sink.handlers[sortDone] = [&](auto /*arguments*/) { point->Unadvise(cookie); };
    call(L"Sort", {Long{1}, Long{1}});
    call(L"Sort", {Long{1}, Long{2}});
    EXPECT_EQ(sink.raised, std::vector<DISPID>{sortDone});
}

TEST_F(Events, TheHostMayCallTheListInAnEvent) {
    fill(1, {u"b", u"a"});
    sink.handlers[sortDone] = [&](auto /*arguments*/) { call(L"RowsClear"); };
    call(L"Sort", {Long{1}, Long{1}});
    EXPECT_EQ(get(L"RowsCount"), Variant(Long{0}));
}

TEST_F(Events, TheConnectionsCanBeListed) {
    win32::ComRef<IEnumConnections> connections;
    ASSERT_EQ(point->EnumConnections(connections.out()), S_OK);
    CONNECTDATA data{};
    ULONG fetched = 0;
    ASSERT_EQ(connections->Next(1, &data, &fetched), S_OK);
    EXPECT_EQ(data.dwCookie, cookie);
    data.pUnk->Release();
    EXPECT_EQ(connections->Next(1, &data, &fetched), S_FALSE);
}

/// What changed, as a host hears of it that shows properties.
class NotifySink final : public IPropertyNotifySink {
  public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID /*iid*/, void** found) override {
        *found = static_cast<IPropertyNotifySink*>(this);
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    HRESULT STDMETHODCALLTYPE OnChanged(DISPID number) override {
        changed.push_back(number);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE OnRequestEdit(DISPID /*number*/) override { return S_OK; }

    std::vector<DISPID> changed;
};

TEST_F(Events, AChangedPropertyIsToldByItsNumber) {
    get(L"GridLines");
    NotifySink notify;
    win32::ComRef<IConnectionPoint> changes;
    ASSERT_EQ(
        control.as<IConnectionPointContainer>()->FindConnectionPoint(IID_IPropertyNotifySink, changes.out()),
        S_OK);
    DWORD changesCookie = 0;
    ASSERT_EQ(changes->Advise(&notify, &changesCookie), S_OK);
    let(L"GridLines", {true});
    EXPECT_EQ(notify.changed, std::vector<DISPID>{idOf(dispatch.get(), L"GridLines")});
    EXPECT_EQ(changes->Unadvise(changesCookie), S_OK);
}

} // namespace
} // namespace lumtex::testing
