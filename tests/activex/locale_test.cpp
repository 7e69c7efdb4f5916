/// Numbers, dates and texts between the component and callers of other countries.
#include "component.h"

#include <utility>

namespace lumtex::testing {
namespace {

constexpr LCID american = 0x0409;
constexpr LCID german = 0x0407;

class CallersLocale : public ListFixture {
  protected:
    CallersLocale() { fill(1, {u"a", u"b"}); }

    HRESULT letAs(LCID locale, const wchar_t* name, const std::vector<Variant>& argumentsAndValue) {
        std::vector<win32::OwnedVARIANT> held;
        std::vector<VARIANT> arguments;
        for (auto it = argumentsAndValue.rbegin(); it != argumentsAndValue.rend(); ++it) {
            held.push_back(win32::toVARIANT(*it));
            arguments.push_back(held.back().get());
        }
        DISPID assigned = DISPID_PROPERTYPUT;
        DISPPARAMS parameters{arguments.data(), &assigned, static_cast<UINT>(arguments.size()), 1};
        return dispatch->Invoke(idOf(dispatch.get(), name),
                                IID_NULL,
                                locale,
                                DISPATCH_PROPERTYPUT,
                                &parameters,
                                nullptr,
                                nullptr,
                                nullptr);
    }
    Variant textAfter(LCID locale, const Variant& value) {
        EXPECT_EQ(letAs(locale, L"ItemText", {Long{1}, Long{1}, value}), S_OK);
        return get(L"ItemText", {Long{1}, Long{1}});
    }
    /// Reports since the last call.
    std::size_t reports() { return std::exchange(watch.boxes, {}).size(); }
};

TEST_F(CallersLocale, TurnsNumbersAndDatesIntoTexts) {
    EXPECT_EQ(textAfter(american, -1234.5), Variant(u"-1234.5"));
    EXPECT_EQ(textAfter(german, -1234.5), Variant(u"-1234,5"));
    EXPECT_EQ(textAfter(german, Currency{12345}), Variant(u"1,2345"));
    EXPECT_EQ(textAfter(american, LongLong{std::int64_t{1} << 62}), Variant(u"4611686018427387904"));
    EXPECT_EQ(textAfter(american, Date{45351}), Variant(u"2/29/2024"));
    EXPECT_TRUE(textAfter(german, Date{45351}).toText().starts_with(u"29."));
}

TEST_F(CallersLocale, TurnsTextsIntoNumbers) {
    EXPECT_EQ(letAs(american, L"ColumnWidth", {Long{1}, u"1,500.5"}), S_OK);
    EXPECT_EQ(get(L"ColumnWidth", {Long{1}}), Variant(Single{1500.5}));
    EXPECT_EQ(letAs(german, L"ColumnWidth", {Long{1}, u"1.500,5"}), S_OK);
    EXPECT_EQ(get(L"ColumnWidth", {Long{1}}), Variant(Single{1500.5}));
    EXPECT_EQ(letAs(german, L"ColumnWidth", {Long{1}, u"1,2,3"}), DISP_E_TYPEMISMATCH);
}

TEST_F(CallersLocale, IsNotTheOneThatTheListItselfFollows) {
    // The place of a row is a Variant of the list's own, which the user's settings turn into a number.
    win32::OwnedVARIANT users;
    win32::demand(VarBstrFromR8(1.5, LOCALE_USER_DEFAULT, 0, &V_BSTR(&users.get())));
    V_VT(&users.get()) = VT_BSTR;
    String text(win32::viewBSTR(V_BSTR(&users.get())));
    text[2] = u'0';
    EXPECT_EQ(call(L"RowsAdd", {text, u",", u"c"}).result, S_OK);
    EXPECT_EQ(get(L"NewIndex"), Variant(Long{1}));
}

TEST_F(CallersLocale, LeavesTagsAsTheyAre) {
    const Decimal decimal{{0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF}, 9, true};
    for (const Variant& tag : {Variant(LongLong{(std::int64_t{1} << 62) + 1}),
                               Variant(UnsignedLongLong{~std::uint64_t{0}}),
                               Variant(Currency{std::int64_t{1} << 61}),
                               Variant(decimal),
                               Variant(1.5),
                               Variant(Date{45351.25})}) {
        EXPECT_EQ(let(L"ItemTag", {Long{1}, Long{1}, tag}), S_OK);
        EXPECT_EQ(get(L"ItemTag", {Long{1}, Long{1}}), tag);
    }
}

TEST_F(CallersLocale, WritesBackWhatFitsAndLeavesTheRest) {
    // A place past 127 fits no signed byte: the row is added all the same, and the caller keeps its byte.
    for (int i = 0; i < 300; ++i)
        call(L"RowsAdd", {Long{-1}, u",", u"more"});
    signed char place = -1;
    VARIANT reference;
    VariantInit(&reference);
    V_VT(&reference) = VT_BYREF | VT_I1;
    V_BYREF(&reference) = &place;
    win32::OwnedVARIANT texts = win32::toVARIANT(Variant(u"x"));
    win32::OwnedVARIANT split = win32::toVARIANT(Variant(u","));
    EXPECT_EQ(invoke(dispatch.get(),
                     idOf(dispatch.get(), L"RowsAdd"),
                     DISPATCH_METHOD,
                     {reference, split.get(), texts.get()})
                  .result,
              S_OK);
    EXPECT_EQ(get(L"RowsCount"), Variant(Long{303}));
    EXPECT_EQ(place, -1);
}

TEST_F(CallersLocale, ArraysAndErrorsAsIndexOrTagAreReportedByTheList) {
    silence(false);
    VARIANT array;
    VariantInit(&array);
    V_VT(&array) = VT_ARRAY | VT_I4;
    V_ARRAY(&array) = SafeArrayCreateVector(VT_I4, 0, 2);
    VARIANT error;
    VariantInit(&error);
    V_VT(&error) = VT_ERROR;
    V_ERROR(&error) = E_FAIL;
    VARIANT one;
    VariantInit(&one);
    V_VT(&one) = VT_I4;
    V_I4(&one) = 1;
    reports();
    for (VARIANT* value : {&array, &error}) {
        const Called text =
            invoke(dispatch.get(), idOf(dispatch.get(), L"ItemText"), DISPATCH_PROPERTYGET, {*value, one});
        EXPECT_EQ(text.result, S_OK);
        EXPECT_EQ(text.value, Variant(u""));
        EXPECT_EQ(reports(), 1U);
        let(L"ItemTag", {Long{1}, Long{1}, u"kept"});
        EXPECT_EQ(
            invoke(dispatch.get(), idOf(dispatch.get(), L"ItemTag"), DISPATCH_PROPERTYPUT, {one, one, *value})
                .result,
            S_OK);
        EXPECT_EQ(reports(), 1U);
        EXPECT_EQ(get(L"ItemTag", {Long{1}, Long{1}}), Variant(u"kept"));
        EXPECT_EQ(invoke(dispatch.get(),
                         idOf(dispatch.get(), L"ItemBackColor"),
                         DISPATCH_PROPERTYPUT,
                         {one, one, *value})
                      .result,
                  S_OK);
        EXPECT_EQ(reports(), 1U);
        EXPECT_EQ(get(L"ItemBackColor", {Long{1}, Long{1}}), Variant(u"def"));
    }
    VariantClear(&array);
}

} // namespace
} // namespace lumtex::testing
