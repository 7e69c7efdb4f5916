/// Values on their way between automation and us.
#include "error_number.h"
#include "test_object.h"
#include "values/runtime_error.h"
#include "variant_printing.h"
#include "worlds/win32/object_bridge.h"
#include "worlds/win32/variant_bridge.h"

#include <array>
#include <cstring>
#include <limits>

#include <gtest/gtest.h>

namespace lumtex::testing {
namespace {

VARIANT numberVARIANT(VARTYPE type, std::int64_t bits) {
    VARIANT value;
    VariantInit(&value);
    V_VT(&value) = type;
    V_I8(&value) = bits;
    return value;
}

VARIANT realVARIANT(VARTYPE type, Double number) {
    VARIANT value;
    VariantInit(&value);
    V_VT(&value) = type;
    V_R8(&value) = number;
    return value;
}

VARIANT singleVARIANT(Single number) {
    VARIANT value;
    VariantInit(&value);
    V_VT(&value) = VT_R4;
    V_R4(&value) = number;
    return value;
}

struct Row {
    const char* name;
    VARIANT given;
    Variant expected;
};

TEST(FromVARIANT, TakesEachKindOfValue) {
    const Row table[] = {
        {"empty", numberVARIANT(VT_EMPTY, 0), Variant()},
        {"null", numberVARIANT(VT_NULL, 0), Null{}},
        {"left out", numberVARIANT(VT_ERROR, DISP_E_PARAMNOTFOUND), Missing{}},
        {"true", numberVARIANT(VT_BOOL, VARIANT_TRUE), true},
        {"true of another language", numberVARIANT(VT_BOOL, 1), true},
        {"false", numberVARIANT(VT_BOOL, VARIANT_FALSE), false},
        {"signed byte", numberVARIANT(VT_I1, -5), Integer{-5}},
        {"byte", numberVARIANT(VT_UI1, 250), Byte{250}},
        {"16 bits", numberVARIANT(VT_I2, -30000), Integer{-30000}},
        {"16 bits without sign", numberVARIANT(VT_UI2, 60000), Long{60000}},
        {"32 bits", numberVARIANT(VT_I4, -2000000000), Long{-2000000000}},
        {"machine integer", numberVARIANT(VT_INT, 7), Long{7}},
        {"32 bits without sign, in range", numberVARIANT(VT_UI4, 2000000000), Long{2000000000}},
        {"32 bits without sign, out of range", numberVARIANT(VT_UI4, 4000000000), 4000000000.0},
        {"machine integer without sign", numberVARIANT(VT_UINT, 4000000000), 4000000000.0},
        {"64 bits, in range", numberVARIANT(VT_I8, -9), LongLong{-9}},
        {"64 bits, out of range", numberVARIANT(VT_I8, 1LL << 60), LongLong{1LL << 60}},
        {"64 bits without sign", numberVARIANT(VT_UI8, -1), UnsignedLongLong{~std::uint64_t{0}}},
        {"single", singleVARIANT(1.5F), 1.5F},
        {"double", realVARIANT(VT_R8, 2.25), 2.25},
        {"date", realVARIANT(VT_DATE, 36526.5), Date{36526.5}},
        {"currency", numberVARIANT(VT_CY, 12345), Currency{12345}},
    };
    for (const Row& row : table)
        EXPECT_EQ(win32::fromVARIANT(row.given), row.expected) << row.name;
}

TEST(FromVARIANT, TakesADecimalNumberWithAllItsDigits) {
    VARIANT value;
    VariantInit(&value);
    DECIMAL& number = V_DECIMAL(&value);
    number.Hi32 = 0xFFFFFFFF;
    number.Lo64 = 0xFFFFFFFF00000001;
    number.scale = 28;
    number.sign = DECIMAL_NEG;
    V_VT(&value) = VT_DECIMAL;
    const Variant taken = win32::fromVARIANT(value);
    EXPECT_EQ(taken, Variant(Decimal{{1, 0xFFFFFFFF, 0xFFFFFFFF}, 28, true}));
    const win32::OwnedVARIANT back = win32::toVARIANT(taken);
    EXPECT_EQ(V_VT(&back.get()), VT_DECIMAL);
    EXPECT_EQ(std::memcmp(&back.get(), &value, sizeof(DECIMAL)), 0);
    number.scale = 29;
    EXPECT_EQ(errorNumberOf([&] { win32::fromVARIANT(value); }), ErrorNumber::typeMismatch);
}

TEST(ToVARIANT, KeepsTheKindOfExactNumbers) {
    EXPECT_EQ(V_VT(&win32::toVARIANT(LongLong{1}).get()), VT_I8);
    EXPECT_EQ(V_VT(&win32::toVARIANT(UnsignedLongLong{1}).get()), VT_UI8);
    const win32::OwnedVARIANT amount = win32::toVARIANT(Currency{-12345});
    EXPECT_EQ(V_VT(&amount.get()), VT_CY);
    EXPECT_EQ(V_CY(&amount.get()).int64, -12345);
}

TEST(FromVARIANT, KeepsZerosInsideAText) {
    const String text(u"a\0b", 3);
    win32::OwnedVARIANT value;
    V_VT(&value.get()) = VT_BSTR;
    V_BSTR(&value.get()) = win32::newBSTR(text);
    EXPECT_EQ(win32::fromVARIANT(value.get()), Variant(text));
}

TEST(FromVARIANT, TakesANullTextAsTheEmptyOne) {
    EXPECT_EQ(win32::fromVARIANT(numberVARIANT(VT_BSTR, 0)), Variant(u""));
}

TEST(FromVARIANT, FollowsReferences) {
    LONG number = 77;
    VARIANT toNumber;
    VariantInit(&toNumber);
    V_VT(&toNumber) = VT_BYREF | VT_I4;
    V_I4REF(&toNumber) = &number;
    EXPECT_EQ(win32::fromVARIANT(toNumber), Variant(Long{77}));
    VARIANT toVariant;
    VariantInit(&toVariant);
    V_VT(&toVariant) = VT_BYREF | VT_VARIANT;
    V_VARIANTREF(&toVariant) = &toNumber;
    EXPECT_EQ(win32::fromVARIANT(toVariant), Variant(Long{77}));
}

TEST(FromVARIANT, TakesArraysRecordsAndErrorValuesAsWhatNothingConverts) {
    SAFEARRAY* array = SafeArrayCreateVector(VT_I4, 0, 2);
    VARIANT value;
    VariantInit(&value);
    V_VT(&value) = VT_ARRAY | VT_I4;
    V_ARRAY(&value) = array;
    EXPECT_EQ(win32::fromVARIANT(value), Variant(Unsupported{}));
    VARIANT reference;
    VariantInit(&reference);
    V_VT(&reference) = VT_BYREF | VT_ARRAY | VT_I4;
    V_ARRAYREF(&reference) = &array;
    EXPECT_EQ(win32::fromVARIANT(reference), Variant(Unsupported{}));
    VariantClear(&value);
    EXPECT_EQ(win32::fromVARIANT(numberVARIANT(VT_RECORD, 0)), Variant(Unsupported{}));
    EXPECT_EQ(win32::fromVARIANT(numberVARIANT(VT_ERROR, E_FAIL)), Variant(Unsupported{}));
    EXPECT_EQ(errorNumberOf([] { win32::toVARIANT(Unsupported{}); }), ErrorNumber::typeMismatch);
}

TEST(FromVARIANT, TakesNothingAsAnEmptyReference) {
    for (const VARTYPE type : {VT_DISPATCH, VT_UNKNOWN}) {
        const Variant value = win32::fromVARIANT(numberVARIANT(type, 0));
        ASSERT_TRUE(value.isObject());
        EXPECT_EQ(*value.as<ObjectRef>(), nullptr);
    }
}

TEST(ToVARIANT, GivesBackWhatCameIn) {
    const Variant values[] = {Variant(),
                              Null{},
                              Missing{},
                              true,
                              false,
                              Byte{9},
                              Integer{-3},
                              Long{70000},
                              1.5F,
                              2.25,
                              Date{1.5},
                              Variant(u"text"),
                              Variant(String(u"\0", 1)),
                              Variant(ObjectRef())};
    for (const Variant& value : values)
        EXPECT_EQ(win32::fromVARIANT(win32::toVARIANT(value).get()), value);
}

TEST(ToVARIANT, PicturesAndFontsComeBackAsTheSameOnes) {
    const PictureRef picture = std::make_shared<BitmapPicture>(Bitmap(2, 2, 0xFF00FF00U));
    const FontRef font = std::make_shared<Font>(FontSpec{.Name = u"Tahoma", .Size = 9});
    const win32::OwnedVARIANT pictureSeen = win32::toVARIANT(picture);
    const win32::OwnedVARIANT fontSeen = win32::toVARIANT(font);
    EXPECT_TRUE(win32::queryFor<IPicture>(V_DISPATCH(&pictureSeen.get())));
    EXPECT_TRUE(win32::queryFor<IFont>(V_DISPATCH(&fontSeen.get())));
    EXPECT_EQ(win32::fromVARIANT(pictureSeen.get()).toPicture(), picture);
    EXPECT_EQ(win32::fromVARIANT(fontSeen.get()).toFont(), font);
    EXPECT_EQ(V_DISPATCH(&win32::toVARIANT(Variant(PictureRef())).get()), nullptr);
}

TEST(ToVARIANT, WritesTheKindsThatHostsExpect) {
    EXPECT_EQ(V_VT(&win32::toVARIANT(Long{1}).get()), VT_I4);
    EXPECT_EQ(V_VT(&win32::toVARIANT(Integer{1}).get()), VT_I2);
    EXPECT_EQ(V_VT(&win32::toVARIANT(true).get()), VT_BOOL);
    EXPECT_EQ(V_BOOL(&win32::toVARIANT(true).get()), VARIANT_TRUE);
    EXPECT_EQ(V_VT(&win32::toVARIANT(Variant(u"x")).get()), VT_BSTR);
    EXPECT_EQ(V_VT(&win32::toVARIANT(Variant(ObjectRef())).get()), VT_DISPATCH);
    EXPECT_EQ(V_DISPATCH(&win32::toVARIANT(Variant(ObjectRef())).get()), nullptr);
}

TEST(FromVARIANT, RefusesReferencesThatLeadNowhere) {
    for (const VARTYPE type : {VT_VARIANT, VT_I2, VT_I4, VT_R8, VT_BSTR, VT_BOOL, VT_DISPATCH, VT_DECIMAL}) {
        VARIANT reference;
        VariantInit(&reference);
        V_VT(&reference) = static_cast<VARTYPE>(VT_BYREF | type);
        V_BYREF(&reference) = nullptr;
        EXPECT_EQ(errorNumberOf([&] { win32::fromVARIANT(reference); }), ErrorNumber::typeMismatch) << type;
    }
}

TEST(FromVARIANT, FollowsReferencesToVariantsUnlessTheyGoInACircle) {
    VARIANT value = numberVARIANT(VT_I4, 5);
    std::array<VARIANT, 5> chain{};
    for (std::size_t i = 0; i < chain.size(); ++i) {
        V_VT(&chain[i]) = VT_BYREF | VT_VARIANT;
        V_VARIANTREF(&chain[i]) = i == 0 ? &value : &chain[i - 1];
    }
    EXPECT_EQ(win32::fromVARIANT(chain.back()), Variant(Long{5}));
    V_VARIANTREF(&chain[0]) = &chain.back();
    EXPECT_EQ(errorNumberOf([&] { win32::fromVARIANT(chain.back()); }), ErrorNumber::typeMismatch);
}

} // namespace
} // namespace lumtex::testing
