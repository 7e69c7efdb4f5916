/// Calls by dispatch number, as scripts make them.
#include "automation/class_table.h"
#include "component.h"

namespace lumtex::testing {
namespace {

using LateBound = ListFixture;

TEST_F(LateBound, AListThatNobodyPlacedIsFullyUsable) {
    fill(2, {u"Ada,1815", u"Grace,1906"});
    EXPECT_EQ(get(L"RowsCount"), Variant(Long{2}));
    EXPECT_EQ(get(L"ItemText", {Long{2}, Long{1}}), Variant(u"Grace"));
    EXPECT_EQ(let(L"ItemText", {Long{2}, Long{1}, u"Alan"}), S_OK);
    EXPECT_EQ(get(L"ItemText", {Long{2}, Long{1}}), Variant(u"Alan"));
}

TEST_F(LateBound, EveryMemberIsFoundUnderItsNumberWhateverTheCase) {
    for (const automation::Member& member : automation::listViewClass().members) {
        String name(member.name);
        for (char16_t& unit : name)
            unit = unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit + 32) : unit;
        EXPECT_EQ(idOf(dispatch.get(), win32::wide(name)), member.number) << toUtf8(name);
    }
}

TEST_F(LateBound, EveryPropertyOfTheListCanBeReadAndAssignedWhatItWas) {
    int assigned = 0;
    for (const automation::Member& member : automation::propertyMembers()) {
        const Called read = invoke(dispatch.get(), member.number, DISPATCH_PROPERTYGET, {});
        EXPECT_EQ(read.result, S_OK) << toUtf8(member.name);
        if (member.let == nullptr)
            continue;
        const win32::OwnedVARIANT value = win32::toVARIANT(read.value);
        const WORD kind = member.isReference() ? DISPATCH_PROPERTYPUTREF : DISPATCH_PROPERTYPUT;
        EXPECT_EQ(invoke(dispatch.get(), member.number, kind, {value.get()}).result, S_OK)
            << toUtf8(member.name);
        ++assigned;
    }
    EXPECT_GT(assigned, 60);
}

TEST_F(LateBound, AnUnknownNameIsTold) {
    auto* name = const_cast<wchar_t*>(L"NoSuchMember");
    DISPID id = 7;
    EXPECT_EQ(dispatch->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &id), DISP_E_UNKNOWNNAME);
    EXPECT_EQ(id, DISPID_UNKNOWN);
}

TEST_F(LateBound, AnUnknownNumberIsTold) {
    EXPECT_EQ(invoke(dispatch.get(), DISPID{-4711}, DISPATCH_METHOD, {}).result, DISP_E_MEMBERNOTFOUND);
}

TEST_F(LateBound, ParametersHaveNames) {
    LPOLESTR names[] = {const_cast<wchar_t*>(L"ColumnsAdd"),
                        const_cast<wchar_t*>(L"aWidth"),
                        const_cast<wchar_t*>(L"atext"),
                        const_cast<wchar_t*>(L"nothing")};
    DISPID ids[4];
    EXPECT_EQ(dispatch->GetIDsOfNames(IID_NULL, names, 4, LOCALE_USER_DEFAULT, ids), DISP_E_UNKNOWNNAME);
    EXPECT_EQ(ids[0], 1);
    EXPECT_EQ(ids[1], 5);
    EXPECT_EQ(ids[2], 0);
    EXPECT_EQ(ids[3], DISPID_UNKNOWN);
}

TEST_F(LateBound, ArgumentsCanBeNamed) {
    DISPID named[] = {5, 0}; // aWidth, aText
    win32::OwnedVARIANT width = win32::toVARIANT(Variant(Long{1500}));
    win32::OwnedVARIANT text = win32::toVARIANT(Variant(u"name"));
    VARIANT values[] = {width.get(), text.get()};
    DISPPARAMS parameters{values, named, 2, 2};
    EXPECT_EQ(dispatch->Invoke(
                  1, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters, nullptr, nullptr, nullptr),
              S_OK);
    EXPECT_EQ(get(L"ColumnText", {Long{1}}), Variant(u"name"));
    EXPECT_EQ(get(L"ColumnWidth", {Long{1}}), Variant(Single{1500}));
}

TEST_F(LateBound, AByReferenceArgumentIsWrittenBackAsAVariant) {
    fill(1, {u"a", u"b"});
    VARIANT place;
    VariantInit(&place);
    V_VT(&place) = VT_I4;
    V_I4(&place) = 99;
    EXPECT_EQ(invoke(dispatch.get(), 5, DISPATCH_METHOD, {referenceTo(place)}).result, S_OK);
    EXPECT_EQ(V_VT(&place), VT_I4);
    EXPECT_EQ(V_I4(&place), 2);
}

TEST_F(LateBound, AByReferenceArgumentIsWrittenBackWithItsOwnType) {
    fill(1, {u"a"});
    SHORT place = 99;
    VARIANT reference;
    VariantInit(&reference);
    V_VT(&reference) = VT_BYREF | VT_I2;
    V_I2REF(&reference) = &place;
    EXPECT_EQ(invoke(dispatch.get(), 5, DISPATCH_METHOD, {reference}).result, S_OK);
    EXPECT_EQ(place, 1);
}

TEST_F(LateBound, AReferenceThatLeadsNowhereIsRefused) {
    VARIANT reference;
    VariantInit(&reference);
    for (const VARTYPE type : {VT_VARIANT, VT_I2, VT_I4, VT_BSTR, VT_BOOL, VT_DISPATCH}) {
        V_VT(&reference) = static_cast<VARTYPE>(VT_BYREF | type);
        V_BYREF(&reference) = nullptr;
        EXPECT_EQ(invoke(dispatch.get(), 5, DISPATCH_METHOD, {reference}).result, E_POINTER) << type;
    }
    EXPECT_EQ(get(L"RowsCount"), Variant(Long{0}));
}

TEST_F(LateBound, WrongParametersAreRefused) {
    EXPECT_EQ(call(L"RowsClear", {Long{1}}).result, DISP_E_BADPARAMCOUNT);
    EXPECT_EQ(invoke(dispatch.get(), L"ItemText", DISPATCH_PROPERTYGET, {Long{1}}).result,
              DISP_E_PARAMNOTOPTIONAL);
    EXPECT_EQ(invoke(dispatch.get(), L"GridLines", DISPATCH_PROPERTYPUT, {u"perhaps"}).result,
              DISP_E_TYPEMISMATCH);
    EXPECT_EQ(invoke(dispatch.get(), L"ListIndex", DISPATCH_PROPERTYPUT, {1e20}).result, DISP_E_OVERFLOW);
    EXPECT_EQ(dispatch->Invoke(
                  18, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, nullptr, nullptr, nullptr, nullptr),
              E_INVALIDARG);
    DISPPARAMS withoutArray{nullptr, nullptr, 2, 0};
    EXPECT_EQ(
        dispatch->Invoke(
            18, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &withoutArray, nullptr, nullptr, nullptr),
        E_INVALIDARG);
    DISPPARAMS none{};
    EXPECT_EQ(dispatch->Invoke(
                  18, IID_IUnknown, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &none, nullptr, nullptr, nullptr),
              DISP_E_UNKNOWNINTERFACE);
}

TEST_F(LateBound, TheArgumentThatDoesNotConvertIsNamed) {
    const Called called = call(L"ColumnsAdd", {u"text", Missing{}, Missing{}, Missing{}, u"wide"});
    EXPECT_EQ(called.result, DISP_E_TYPEMISMATCH);
    EXPECT_EQ(called.wrongArgument, 0U);
}

TEST_F(LateBound, AReadOnlyPropertyCannotBeAssigned) {
    EXPECT_EQ(let(L"RowsCount", {Long{1}}), DISP_E_MEMBERNOTFOUND);
}

/// Some script languages read properties by calls, and call methods by reads.
TEST_F(LateBound, ReadsAndCallsStandInForEachOther) {
    EXPECT_EQ(call(L"RowsCount").value, Variant(Long{0}));
    EXPECT_EQ(invoke(dispatch.get(), L"RowSelectedCount", DISPATCH_PROPERTYGET).value, Variant(Long{0}));
}

TEST_F(LateBound, ASearchGivesAnObjectWithTheFieldsOfItsRecord) {
    fill(2, {u"Ada,1815", u"Grace,1906"});
    const Called called = call(L"FindItem", {u"Gr*", Long{0}});
    ASSERT_EQ(called.result, S_OK);
    const ObjectRef found = called.value.toObject();
    EXPECT_EQ(found->get(u"FindSuccessful"), Variant(true));
    EXPECT_EQ(found->get(u"FindRow"), Variant(Long{2}));
    EXPECT_EQ(found->get(u"FindColumn"), Variant(Long{1}));
}

TEST_F(LateBound, TheFoundRecordKeepsTheModule) {
    fill(1, {u"a"});
    Called called = call(L"FindItem", {u"a", Long{0}});
    dispatch = {};
    control = {};
    EXPECT_FALSE(component.canUnload());
    called.value = {};
    EXPECT_TRUE(component.canUnload());
}

TEST_F(LateBound, AFontGoesInAndComesBack) {
    const Variant font = get(L"DefaultItemFont");
    ASSERT_NE(font.as<FontRef>(), nullptr);
    EXPECT_EQ(invoke(dispatch.get(), L"DefaultColumnFont", DISPATCH_PROPERTYPUTREF, {font}).result, S_OK);
    EXPECT_EQ(get(L"DefaultColumnFont").toFont()->spec, font.toFont()->spec);
}

TEST_F(LateBound, AnObjectThatAScriptAssignsPlainlyIsSet) {
    const Variant font = get(L"DefaultItemFont");
    EXPECT_EQ(invoke(dispatch.get(), L"DefaultColumnFont", DISPATCH_PROPERTYPUT, {font}).result, S_OK);
}

DWORD WINAPI callFromElsewhere(void* object) {
    const Called called = invoke(static_cast<IDispatch*>(object), DISPID{9}, DISPATCH_PROPERTYGET, {});
    return static_cast<DWORD>(called.result);
}

TEST_F(LateBound, ACallFromAnotherThreadIsRefused) {
    HANDLE thread = CreateThread(nullptr, 0, callFromElsewhere, dispatch.get(), 0, nullptr);
    WaitForSingleObject(thread, INFINITE);
    DWORD result = 0;
    GetExitCodeThread(thread, &result);
    CloseHandle(thread);
    EXPECT_EQ(static_cast<HRESULT>(result), RPC_E_WRONG_THREAD);
}

TEST_F(LateBound, TheHelpersAnswerToo) {
    const win32::ComRef<IUnknown> error = component.make("Error");
    const auto switchOf = error.as<IDispatch>();
    EXPECT_EQ(invoke(switchOf.get(), L"SilentError", DISPATCH_PROPERTYPUT, {true}).result, S_OK);
    EXPECT_EQ(invoke(switchOf.get(), L"SilentError", DISPATCH_PROPERTYGET).value, Variant(true));
    EXPECT_EQ(get(L"ItemText", {Long{9}, Long{9}}), Variant(u"")) << "a failure is no error for the host";
    const win32::ComRef<IUnknown> helper = component.make("SpEv");
    EXPECT_EQ(invoke(helper.as<IDispatch>().get(), L"FileExists", DISPATCH_METHOD, {u""}).value,
              Variant(false));
}

} // namespace
} // namespace lumtex::testing
