/// What a caller of IDispatch::Invoke may hand over, and what is refused, with which result, at which place.
#include "component.h"

#include <cstring>
#include <functional>

namespace lumtex::testing {
namespace {

// Dispatch numbers and parameters of the members below; the first test holds them against the tables.
constexpr DISPID columnsAdd = 1;
constexpr DISPID rowsAdd = 5;
constexpr DISPID sort = 25;
constexpr DISPID rowsClear = 8;
constexpr UINT noPlace = 99;

VARIANT empty(VARTYPE type) {
    VARIANT value;
    VariantInit(&value);
    V_VT(&value) = type;
    return value;
}
VARIANT number(LONG value) {
    VARIANT number = empty(VT_I4);
    V_I4(&number) = value;
    return number;
}
VARIANT missing() {
    VARIANT value = empty(VT_ERROR);
    V_ERROR(&value) = DISP_E_PARAMNOTFOUND;
    return value;
}
VARIANT failure(SCODE code) {
    VARIANT value = empty(VT_ERROR);
    V_ERROR(&value) = code;
    return value;
}
VARIANT text(const wchar_t* value) {
    VARIANT text = empty(VT_BSTR);
    V_BSTR(&text) = SysAllocString(value);
    return text;
}
VARIANT nowhere(VARTYPE type) {
    VARIANT reference = empty(static_cast<VARTYPE>(VT_BYREF | type));
    V_BYREF(&reference) = nullptr;
    return reference;
}

/// One call as it travels: arguments from the last to the first, those with a number of their own in front.
struct Refusal {
    const char* rule;
    const wchar_t* member;
    WORD kind;
    std::vector<VARIANT> arguments;
    std::vector<DISPID> named;
    HRESULT result;
    UINT place = noPlace; ///< where `wrongArgument` must point; `noPlace`: it is left alone
};

const std::vector<Refusal>& refusals() {
    constexpr WORD get = DISPATCH_PROPERTYGET;
    constexpr WORD put = DISPATCH_PROPERTYPUT;
    constexpr WORD putRef = DISPATCH_PROPERTYPUTREF;
    constexpr WORD call = DISPATCH_METHOD;
    constexpr DISPID assigned = DISPID_PROPERTYPUT;
    static const std::vector<Refusal> all{
        {"one argument too many", L"RowsClear", call, {number(1)}, {}, DISP_E_BADPARAMCOUNT},
        {"a property with an index it has not", L"RowsCount", get, {number(1)}, {}, DISP_E_BADPARAMCOUNT},
        {"an index too many of an assignment",
         L"ColumnText",
         put,
         {text(L"x"), number(1), number(1)},
         {assigned},
         DISP_E_BADPARAMCOUNT},
        {"an argument too few", L"ItemText", get, {number(1)}, {}, DISP_E_PARAMNOTOPTIONAL, 0},
        {"none of the needed ones", L"ColumnsAdd", call, {}, {}, DISP_E_PARAMNOTOPTIONAL, 0},
        {"a needed one marked as left out",
         L"ItemText",
         get,
         {number(1), missing()},
         {},
         DISP_E_PARAMNOTOPTIONAL,
         1},
        {"an assignment without a value", L"GridLines", put, {}, {}, DISP_E_PARAMNOTOPTIONAL},
        {"a value that is not marked as one", L"GridLines", put, {number(1)}, {}, DISP_E_PARAMNOTOPTIONAL},
        {"a number of no parameter",
         L"ColumnsAdd",
         call,
         {number(1), text(L"a")},
         {77},
         DISP_E_PARAMNOTFOUND,
         0},
        {"a number below all parameters",
         L"ColumnsAdd",
         call,
         {number(1), text(L"a")},
         {-3},
         DISP_E_PARAMNOTFOUND,
         0},
        {"a parameter with two arguments",
         L"ColumnsAdd",
         call,
         {text(L"b"), text(L"a")},
         {0},
         DISP_E_PARAMNOTFOUND,
         0},
        {"a parameter named twice",
         L"ColumnsAdd",
         call,
         {text(L"c"), text(L"b")},
         {0, 0},
         DISP_E_PARAMNOTFOUND,
         1},
        {"a text where a number belongs",
         L"ColumnsAdd",
         call,
         {text(L"wide"), missing(), missing(), missing(), missing(), text(L"a")},
         {},
         DISP_E_TYPEMISMATCH,
         0},
        {"a number where a picture belongs",
         L"ColumnsAdd",
         call,
         {number(1), text(L"a")},
         {},
         DISP_E_TYPEMISMATCH,
         0},
        {"the same by name", L"ColumnsAdd", call, {number(1), text(L"a")}, {1, 0}, DISP_E_TYPEMISMATCH, 0},
        {"no value where one belongs",
         L"GridLines",
         put,
         {empty(VT_NULL)},
         {assigned},
         DISP_E_TYPEMISMATCH,
         0},
        {"a text that is no Boolean",
         L"GridLines",
         put,
         {text(L"perhaps")},
         {assigned},
         DISP_E_TYPEMISMATCH,
         0},
        {"a number out of range", L"OLEDropMode", put, {text(L"3000000000")}, {assigned}, DISP_E_OVERFLOW, 0},
        {"a result that stands for an error, where a number belongs",
         L"ColumnWidth",
         put,
         {failure(E_FAIL), number(1)},
         {assigned},
         DISP_E_TYPEMISMATCH,
         0},
        {"an array where a number belongs",
         L"ColumnWidth",
         put,
         {empty(VT_ARRAY | VT_I4), number(1)},
         {assigned},
         DISP_E_TYPEMISMATCH,
         0},
        {"a type that no value has", L"ColumnText", get, {empty(VT_LPWSTR)}, {}, DISP_E_BADVARTYPE, 0},
        {"a mark of no type", L"ColumnText", get, {empty(0x0FFF)}, {}, DISP_E_BADVARTYPE, 0},
        {"a Variant that is no reference", L"ColumnText", get, {empty(VT_VARIANT)}, {}, DISP_E_BADVARTYPE, 0},
        {"a vector", L"ColumnText", get, {empty(VT_VECTOR | VT_I4)}, {}, DISP_E_BADVARTYPE, 0},
        {"an assigned value of no type",
         L"ColumnText",
         put,
         {empty(VT_LPSTR), number(1)},
         {assigned},
         DISP_E_BADVARTYPE,
         0},
        {"a reference that leads nowhere", L"ItemText", get, {number(1), nowhere(VT_I4)}, {}, E_POINTER, 1},
        {"an assigned value that leads nowhere",
         L"GridLines",
         put,
         {nowhere(VT_BOOL)},
         {assigned},
         E_POINTER,
         0},
        {"an assignment to what is read only",
         L"RowsCount",
         put,
         {number(1)},
         {assigned},
         DISP_E_MEMBERNOTFOUND,
         0},
        {"an assignment to a method", L"RowsClear", put, {number(1)}, {assigned}, DISP_E_MEMBERNOTFOUND, 0},
        {"a reference assigned to a value",
         L"GridLines",
         putRef,
         {number(1)},
         {assigned},
         DISP_E_MEMBERNOTFOUND,
         0},
        {"a value assigned to a reference", L"Skin", put, {number(1)}, {assigned}, DISP_E_MEMBERNOTFOUND, 0},
        {"no way of calling at all", L"RowsCount", 0, {}, {}, DISP_E_MEMBERNOTFOUND},
    };
    return all;
}

class Parameters : public ListFixture {
  protected:
    Parameters() { fill(1, {u"a", u"b"}); }

    struct Outcome {
        HRESULT result;
        UINT place;
    };
    Outcome invoke(DISPID id, WORD kind, std::vector<VARIANT> arguments, std::vector<DISPID> named = {}) {
        DISPPARAMS parameters{arguments.data(),
                              named.data(),
                              static_cast<UINT>(arguments.size()),
                              static_cast<UINT>(named.size())};
        EXCEPINFO details{};
        win32::OwnedVARIANT value;
        Outcome outcome{S_OK, noPlace};
        outcome.result = dispatch->Invoke(
            id, IID_NULL, LOCALE_USER_DEFAULT, kind, &parameters, value.out(), &details, &outcome.place);
        EXPECT_EQ(details.scode, 0);
        if (FAILED(outcome.result)) {
            EXPECT_EQ(V_VT(&value.get()), VT_EMPTY);
        }
        return outcome;
    }
    /// RowsAdd with its place by reference, in a variable of a type of the caller's.
    HRESULT addRow(VARTYPE type, void* variable) {
        VARIANT reference = empty(static_cast<VARTYPE>(VT_BYREF | type));
        V_BYREF(&reference) = variable;
        return invoke(rowsAdd, DISPATCH_METHOD, {reference}).result;
    }
};

TEST_F(Parameters, AreNumberedAsTheTestsHereBelieve) {
    EXPECT_EQ(idOf(dispatch.get(), L"ColumnsAdd"), columnsAdd);
    EXPECT_EQ(idOf(dispatch.get(), L"RowsAdd"), rowsAdd);
    EXPECT_EQ(idOf(dispatch.get(), L"Sort"), sort);
    EXPECT_EQ(idOf(dispatch.get(), L"RowsClear"), rowsClear);
}

TEST_F(Parameters, ThatAreWrongAreRefusedWithTheirResultAndPlace) {
    for (const Refusal& refusal : refusals()) {
        const Outcome outcome =
            invoke(idOf(dispatch.get(), refusal.member), refusal.kind, refusal.arguments, refusal.named);
        EXPECT_EQ(outcome.result, refusal.result) << refusal.rule;
        EXPECT_EQ(outcome.place, refusal.place) << refusal.rule;
    }
    EXPECT_EQ(get(L"RowsCount"), Variant(Long{2}));
    EXPECT_EQ(get(L"ColumnsCount"), Variant(Long{1}));
}

TEST_F(Parameters, ThatAreRefusedNeedNowhereToBeToldOf) {
    VARIANT wrong = text(L"perhaps");
    DISPID assigned = DISPID_PROPERTYPUT;
    DISPPARAMS parameters{&wrong, &assigned, 1, 1};
    EXPECT_EQ(dispatch->Invoke(idOf(dispatch.get(), L"GridLines"),
                               IID_NULL,
                               LOCALE_USER_DEFAULT,
                               DISPATCH_PROPERTYPUT,
                               &parameters,
                               nullptr,
                               nullptr,
                               nullptr),
              DISP_E_TYPEMISMATCH);
    VariantClear(&wrong);
}

TEST_F(Parameters, ByNameMayComeInAnyOrder) {
    VARIANT width = number(1500);
    EXPECT_EQ(invoke(columnsAdd, DISPATCH_METHOD, {text(L"named"), width}, {0, 5}).result, S_OK);
    EXPECT_EQ(get(L"ColumnText", {Long{2}}), Variant(u"named"));
    EXPECT_EQ(get(L"ColumnWidth", {Long{2}}), Variant(Single{1500}));
}

TEST_F(Parameters, ByNameMayFollowOthers) {
    EXPECT_EQ(invoke(columnsAdd, DISPATCH_METHOD, {number(700), text(L"first")}, {5}).result, S_OK);
    EXPECT_EQ(get(L"ColumnText", {Long{2}}), Variant(u"first"));
    EXPECT_EQ(get(L"ColumnWidth", {Long{2}}), Variant(Single{700}));
}

TEST_F(Parameters, MarkedAsLeftOutTakeTheirDefaultsAndStayAsTheyAre) {
    VARIANT place = missing();
    EXPECT_EQ(invoke(rowsAdd, DISPATCH_METHOD, {text(L"x"), missing(), referenceTo(place)}).result, S_OK);
    EXPECT_EQ(V_VT(&place), VT_ERROR);
    EXPECT_EQ(get(L"ItemText", {Long{3}, Long{1}}), Variant(u"x"));
}

TEST_F(Parameters, NullStructuresAreRefused) {
    DISPPARAMS moreNamesThanArguments{nullptr, nullptr, 0, 1};
    VARIANT one = number(1);
    DISPPARAMS namesWithoutNumbers{&one, nullptr, 1, 1};
    for (DISPPARAMS* parameters :
         {static_cast<DISPPARAMS*>(nullptr), &moreNamesThanArguments, &namesWithoutNumbers})
        EXPECT_EQ(dispatch->Invoke(rowsClear,
                                   IID_NULL,
                                   LOCALE_USER_DEFAULT,
                                   DISPATCH_METHOD,
                                   parameters,
                                   nullptr,
                                   nullptr,
                                   nullptr),
                  E_INVALIDARG);
    EXPECT_EQ(get(L"RowsCount"), Variant(Long{2}));
}

TEST_F(Parameters, AReferenceInACircleIsNoValue) {
    VARIANT circle = empty(VT_BYREF | VT_VARIANT);
    V_VARIANTREF(&circle) = &circle;
    const Outcome outcome = invoke(rowsAdd, DISPATCH_METHOD, {circle});
    EXPECT_EQ(outcome.result, DISP_E_TYPEMISMATCH);
    EXPECT_EQ(outcome.place, 0U);
}

TEST_F(Parameters, AReferenceToAReferenceIsFollowedAndWrittenThrough) {
    VARIANT place = number(0);
    VARIANT inner = referenceTo(place);
    EXPECT_EQ(invoke(rowsAdd, DISPATCH_METHOD, {referenceTo(inner)}).result, S_OK);
    EXPECT_EQ(get(L"NewIndex"), Variant(Long{0}));
    EXPECT_EQ(V_VT(&inner), VT_BYREF | VT_VARIANT);
    LONG typed = 99;
    inner = empty(VT_BYREF | VT_I4);
    V_I4REF(&inner) = &typed;
    EXPECT_EQ(invoke(rowsAdd, DISPATCH_METHOD, {referenceTo(inner)}).result, S_OK);
    EXPECT_EQ(typed, 3);
}

/// The third row of two goes to the end, place 2.
TEST_F(Parameters, ByReferenceComeBackWithEveryTypeOfNumber) {
    const auto comesBack = [&](VARTYPE type, auto variable, auto expected) {
        call(L"RowsClear");
        call(L"RowsAdd", {Long{-1}, u",", u"a"});
        call(L"RowsAdd", {Long{-1}, u",", u"b"});
        EXPECT_EQ(addRow(type, &variable), S_OK) << type;
        EXPECT_EQ(variable, expected) << type;
    };
    comesBack(VT_I1, CHAR{77}, CHAR{2});
    comesBack(VT_UI1, BYTE{77}, BYTE{2});
    comesBack(VT_I2, SHORT{77}, SHORT{2});
    comesBack(VT_UI2, USHORT{77}, USHORT{2});
    comesBack(VT_I4, LONG{77}, LONG{2});
    comesBack(VT_UI4, ULONG{77}, ULONG{2});
    comesBack(VT_INT, INT{77}, INT{2});
    comesBack(VT_UINT, UINT{77}, UINT{2});
    comesBack(VT_I8, LONGLONG{77}, LONGLONG{2});
    comesBack(VT_UI8, ULONGLONG{77}, ULONGLONG{2});
    comesBack(VT_R4, FLOAT{77}, FLOAT{2});
    comesBack(VT_R8, DOUBLE{77}, DOUBLE{2});
    comesBack(VT_DATE, DATE{77}, DATE{2});
}

TEST_F(Parameters, ByReferenceComeBackAsCurrencyAndDecimal) {
    CY currency{};
    currency.int64 = 770000; // ten-thousandths
    EXPECT_EQ(addRow(VT_CY, &currency), S_OK);
    EXPECT_EQ(currency.int64, 20000);
    DECIMAL decimal{};
    decimal.Lo64 = 77;
    EXPECT_EQ(addRow(VT_DECIMAL, &decimal), S_OK);
    EXPECT_EQ(decimal.Lo64, 3U);
    EXPECT_EQ(decimal.scale, 0);
    EXPECT_EQ(decimal.wReserved, 0);
}

TEST_F(Parameters, ByReferenceComeBackAsText) {
    BSTR place = SysAllocString(L"77");
    EXPECT_EQ(addRow(VT_BSTR, &place), S_OK);
    EXPECT_EQ(win32::textOf(place), u"2");
    SysFreeString(place);
}

TEST_F(Parameters, ByReferenceThatCannotComeBackStaysAsItWas) {
    IUnknown* place = nullptr;
    // Nothing at all is no index, and no number becomes an object.
    EXPECT_EQ(addRow(VT_UNKNOWN, &place), S_OK);
    EXPECT_EQ(place, nullptr);
}

TEST_F(Parameters, SeveralByReferenceComeBackEachToItsOwn) {
    LONG column = 1;
    SHORT mode = 1;
    VARIANT type = text(L"0");
    VARIANT columnReference = empty(VT_BYREF | VT_I4);
    V_I4REF(&columnReference) = &column;
    VARIANT modeReference = empty(VT_BYREF | VT_I2);
    V_I2REF(&modeReference) = &mode;
    EXPECT_EQ(invoke(sort, DISPATCH_METHOD, {referenceTo(type), modeReference, columnReference}).result,
              S_OK);
    EXPECT_EQ(column, 1);
    EXPECT_EQ(mode, 1);
    ASSERT_EQ(V_VT(&type), VT_BSTR) << "the list leaves this one as it is";
    EXPECT_EQ(win32::textOf(V_BSTR(&type)), u"0");
    VariantClear(&type);
}

TEST_F(Parameters, ByNameAndByReferenceComeBackToo) {
    VARIANT place = number(99);
    VARIANT reference = referenceTo(place);
    EXPECT_EQ(invoke(rowsAdd, DISPATCH_METHOD, {reference, text(L"x")}, {0, 2}).result, S_OK);
    EXPECT_EQ(V_I4(&place), 2);
}

/// The same object answers by dispatch number in each of its classes.
TEST_F(Parameters, OfTheHelpersAreCheckedAlike) {
    const auto helper = component.make("SpEv").as<IDispatch>();
    EXPECT_EQ(lumtex::testing::invoke(helper.get(), L"FileExists", DISPATCH_METHOD, {}).result,
              DISP_E_PARAMNOTOPTIONAL);
    EXPECT_EQ(lumtex::testing::invoke(helper.get(), L"ActiveXPTheme", DISPATCH_METHOD, {Long{1}}).result,
              DISP_E_BADPARAMCOUNT);
    EXPECT_EQ(lumtex::testing::invoke(helper.get(), L"ListRead", DISPATCH_METHOD, {Long{1}, u"x"}).result,
              DISP_E_TYPEMISMATCH);
    const auto reports = component.make("Error").as<IDispatch>();
    EXPECT_EQ(
        lumtex::testing::invoke(reports.get(), L"SilentError", DISPATCH_PROPERTYPUT, {u"perhaps"}).result,
        DISP_E_TYPEMISMATCH);
}

} // namespace
} // namespace lumtex::testing
