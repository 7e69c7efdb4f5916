/// Sinks that hosts can extend, as objects of script languages are: references come to them as Variants.
#include "event_sink.h"

#include <dispex.h>

namespace lumtex::testing {
namespace {

constexpr DISPID keyDown = 10;
constexpr DISPID sortDone = 20;
constexpr DISPID errorWrongIndex = 19;

/// Hands what it is told to a plain sink.
class ExtendedSink final : public IDispatchEx {
  public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** found) override {
        *found = nullptr;
        if (!IsEqualIID(iid, IID_IUnknown) && !IsEqualIID(iid, IID_IDispatch) &&
            !IsEqualIID(iid, __uuidof(IDispatchEx)))
            return E_NOINTERFACE;
        *found = static_cast<IDispatchEx*>(this);
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references; }
    ULONG STDMETHODCALLTYPE Release() override { return --references; }
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override { return plain.GetTypeInfoCount(count); }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override {
        return plain.GetTypeInfo(index, locale, info);
    }
    HRESULT STDMETHODCALLTYPE
    GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID locale, DISPID* ids) override {
        return plain.GetIDsOfNames(iid, names, count, locale, ids);
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id,
                                     REFIID iid,
                                     LCID locale,
                                     WORD kind,
                                     DISPPARAMS* parameters,
                                     VARIANT* result,
                                     EXCEPINFO* details,
                                     UINT* wrongArgument) override {
        plain.Invoke(id, iid, locale, kind, parameters, result, details, wrongArgument);
        return answer;
    }
    HRESULT STDMETHODCALLTYPE GetDispID(BSTR /*name*/, DWORD /*how*/, DISPID* id) override {
        *id = DISPID_UNKNOWN;
        return DISP_E_UNKNOWNNAME;
    }
    HRESULT STDMETHODCALLTYPE InvokeEx(DISPID /*id*/,
                                       LCID /*locale*/,
                                       WORD /*kind*/,
                                       DISPPARAMS* /*parameters*/,
                                       VARIANT* /*result*/,
                                       EXCEPINFO* /*details*/,
                                       IServiceProvider* /*caller*/) override {
        ++extendedCalls;
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE DeleteMemberByName(BSTR /*name*/, DWORD /*how*/) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE DeleteMemberByDispID(DISPID /*id*/) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetMemberProperties(DISPID /*id*/,
                                                  DWORD /*which*/,
                                                  DWORD* /*properties*/) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE GetMemberName(DISPID /*id*/, BSTR* /*name*/) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetNextDispID(DWORD /*which*/, DISPID /*after*/, DISPID* /*next*/) override {
        return S_FALSE;
    }
    HRESULT STDMETHODCALLTYPE GetNameSpaceParent(IUnknown** /*parent*/) override { return E_NOTIMPL; }

    EventSink plain;
    HRESULT answer = S_OK;
    ULONG references = 1;
    int extendedCalls = 0;
};

class ExtendedSinks : public ListFixture {
  protected:
    ExtendedSinks() {
        fill(1, {u"b", u"a", u"c"});
        win32::demand(point->Advise(&sink, &cookie));
        let(L"ListIndex", {Long{1}});
        sink.plain.raised.clear();
    }
    ~ExtendedSinks() override {
        point->Unadvise(cookie);
        point = {};
        EXPECT_EQ(sink.references, 1U);
    }

    /// Presses a key that means nothing, of which the sink makes `key`. True where the list took it for Arrow
    /// Down.
    bool pressTurnedInto(const Variant& key) {
        sink.plain.handlers[keyDown] = [&](auto arguments) {
            VARIANT* place = V_VARIANTREF(arguments[0]);
            VariantClear(place);
            *place = win32::toVARIANT(key).release();
        };
        const Long before = get(L"ListIndex").toLong();
        HWND window = nullptr;
        control.as<IOleWindow>()->GetWindow(&window);
        SendMessageW(window, WM_KEYDOWN, 'A', 0);
        const Long after = get(L"ListIndex").toLong();
        let(L"ListIndex", {before});
        return after == before + 1;
    }

    ExtendedSink sink;
    win32::ComRef<IConnectionPoint> point = eventPointOf(control);
    DWORD cookie = 0;
};

TEST_F(ExtendedSinks, AreToldByTheirPlainCall) {
    call(L"Sort", {Long{1}, Long{1}});
    EXPECT_EQ(sink.plain.raised, std::vector<DISPID>{sortDone});
    EXPECT_EQ(sink.extendedCalls, 0);
}

TEST_F(ExtendedSinks, GetReferencesToVariantsThatHoldTheTypeOfTheInterface) {
    std::vector<VARTYPE> types;
    sink.plain.handlers[keyDown] = [&](auto arguments) {
        for (VARIANT* argument : arguments) {
            types.push_back(V_VT(argument));
            types.push_back(V_VT(V_VARIANTREF(argument)));
        }
    };
    HWND window = nullptr;
    control.as<IOleWindow>()->GetWindow(&window);
    SendMessageW(window, WM_KEYDOWN, 'A', 0);
    EXPECT_EQ(types, (std::vector<VARTYPE>{VT_BYREF | VT_VARIANT, VT_I2, VT_BYREF | VT_VARIANT, VT_I2}));
}

TEST_F(ExtendedSinks, ChangeAnArgumentByAnyValueThatConverts) {
    EXPECT_TRUE(pressTurnedInto(Integer{VK_DOWN}));
    EXPECT_TRUE(pressTurnedInto(Long{VK_DOWN}));
    EXPECT_TRUE(pressTurnedInto(Double{VK_DOWN}));
    EXPECT_TRUE(pressTurnedInto(u"40"));
    EXPECT_FALSE(pressTurnedInto(Integer{'A'}));
}

TEST_F(ExtendedSinks, ThatLeaveSomethingElseChangeNothing) {
    for (const Variant& left :
         {Variant(u"down"), Variant(Null{}), Variant(Long{70000}), Variant(ObjectRef{})})
        EXPECT_FALSE(pressTurnedInto(left));
    EXPECT_TRUE(pressTurnedInto(Integer{VK_DOWN})) << "and the next one counts";
}

TEST_F(ExtendedSinks, ThatFailHaveChangedTheirArgumentsNevertheless) {
    sink.answer = E_FAIL;
    EXPECT_TRUE(pressTurnedInto(Integer{VK_DOWN}));
    sink.answer = DISP_E_EXCEPTION;
    EXPECT_TRUE(pressTurnedInto(Integer{VK_DOWN}));
}

TEST_F(ExtendedSinks, AndPlainOnesAreToldOneAfterTheOtherEachInItsForm) {
    EventSink plain;
    DWORD plainCookie = 0;
    ASSERT_EQ(point->Advise(&plain, &plainCookie), S_OK);
    std::vector<VARTYPE> types;
    sink.plain.handlers[keyDown] = [&](auto arguments) { types.push_back(V_VT(arguments[0])); };
    plain.handlers[keyDown] = [&](auto arguments) {
        types.push_back(V_VT(arguments[0]));
        *V_I2REF(arguments[0]) = VK_DOWN;
    };
    HWND window = nullptr;
    control.as<IOleWindow>()->GetWindow(&window);
    SendMessageW(window, WM_KEYDOWN, 'A', 0);
    EXPECT_EQ(types, (std::vector<VARTYPE>{VT_BYREF | VT_VARIANT, VT_BYREF | VT_I2}));
    EXPECT_EQ(get(L"ListIndex"), Variant(Long{2})) << "the last one has the last word";
    EXPECT_EQ(point->Unadvise(plainCookie), S_OK);
}

TEST_F(ExtendedSinks, MayPutAnObjectWhereAnIndexWas) {
    sink.plain.handlers[errorWrongIndex] = [&](auto arguments) {
        VARIANT* place = V_VARIANTREF(arguments[0]);
        VariantClear(place);
        V_VT(place) = VT_DISPATCH;
        V_DISPATCH(place) = win32::ComRef<IDispatch>(dispatch).detach();
    };
    EXPECT_EQ(let(L"ListIndex", {Long{77}}), S_OK);
    EXPECT_EQ(sink.plain.raised, std::vector<DISPID>{errorWrongIndex});
    EXPECT_EQ(get(L"ListIndex"), Variant(Long{1}));
}

} // namespace
} // namespace lumtex::testing
