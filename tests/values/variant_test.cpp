#include "support/error_number.h"
#include "values/color.h"
#include "values/variant.h"

#include <cmath>
#include <functional>
#include <limits>
#include <ostream>
#include <vector>

namespace lumtex {
namespace {

class PlainObject final : public Object {
  public:
    Variant get(StringView /*name*/, std::span<Variant> /*arguments*/) override {
        throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
    }
    void put(StringView /*name*/, const Variant& /*value*/) override {
        throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
    }
    Variant call(StringView /*name*/, std::span<Variant> /*arguments*/) override {
        throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
    }
};

class PlainPicture final : public Picture {
  public:
    Long Width() const override { return 0; }
    Long Height() const override { return 0; }
    const Bitmap& bitmap() const override { return bitmap_; }

  private:
    Bitmap bitmap_;
};

ObjectRef anObject() {
    return std::make_shared<PlainObject>();
}
PictureRef aPicture() {
    return std::make_shared<PlainPicture>();
}
FontRef aFont() {
    return std::make_shared<Font>(FontSpec{});
}

/// For messages, where the value itself has no text.
std::string kindOf(const Variant& value) {
    return value.visit([]<class T>(const T& /*held*/) { return ::testing::internal::GetTypeName<T>(); });
}

/// A conversion's outcome: the value, or the number of the error.
template <class T>
struct Outcome {
    T value{};
    Long error = noError;

    bool operator==(const Outcome&) const = default;
    friend std::ostream& operator<<(std::ostream& out, const Outcome& outcome) {
        return out << (outcome.error != noError ? "error " + std::to_string(outcome.error)
                                                : ::testing::PrintToString(outcome.value));
    }
};

template <class T>
struct Row {
    const char* name;
    Variant from;
    Outcome<T> outcome;
};

template <class T>
Outcome<T> fails(ErrorNumber error) {
    return {T{}, numberOf(error)};
}

template <class T>
Outcome<T> outcomeOf(const std::function<T()>& conversion) {
    Outcome<T> outcome;
    outcome.error = errorNumberOf([&] { outcome.value = conversion(); });
    return outcome;
}

template <class T>
void expectRows(T (Variant::*conversion)() const, const std::vector<Row<T>>& rows) {
    for (const Row<T>& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(outcomeOf<T>([&] { return (row.from.*conversion)(); }), row.outcome);
    }
}

/// What no conversion to a value accepts.
template <class T>
std::vector<Row<T>> unconvertible() {
    return {
        {"Null", Null{}, fails<T>(ErrorNumber::invalidUseOfNull)},
        {"an argument left out", Missing{}, fails<T>(ErrorNumber::typeMismatch)},
        {"an object", anObject(), fails<T>(ErrorNumber::typeMismatch)},
        {"a picture", aPicture(), fails<T>(ErrorNumber::typeMismatch)},
        {"a font", aFont(), fails<T>(ErrorNumber::typeMismatch)},
        {"no object", ObjectRef(), fails<T>(ErrorNumber::typeMismatch)},
        {"no picture", PictureRef(), fails<T>(ErrorNumber::typeMismatch)},
        {"no font", FontRef(), fails<T>(ErrorNumber::typeMismatch)},
    };
}

/// What no conversion to a number accepts.
template <class T>
std::vector<Row<T>> noNumbers() {
    std::vector<Row<T>> rows = unconvertible<T>();
    rows.push_back({"no text", u"", fails<T>(ErrorNumber::typeMismatch)});
    rows.push_back({"def", u"def", fails<T>(ErrorNumber::typeMismatch)});
    rows.push_back({"a date as text", u"2024-02-29", fails<T>(ErrorNumber::typeMismatch)});
    rows.push_back({"a text too large for any number", u"1e999", fails<T>(ErrorNumber::overflow)});
    return rows;
}

TEST(VariantToLong, RoundsAndRefusesWhatDoesNotFit) {
    expectRows<Long>(&Variant::toLong,
                     {
                         {"Empty", {}, {0}},
                         {"False", false, {0}},
                         {"True", true, {-1}},
                         {"Byte", Byte{200}, {200}},
                         {"Integer", Integer{-7}, {-7}},
                         {"Long", Long{123456}, {123456}},
                         {"Single", 2.5F, {2}},
                         {"Double", 3.5, {4}},
                         {"Date", Date{45351.75}, {45352}},
                         {"text", u" 12.5 ", {12}},
                         {"hexadecimal text", u"&HFF", {255}},
                         {"a colour of the system as text", u"&H8000000F", {-2147483633}},
                         {"the largest Long", 2147483647.4, {2147483647}},
                         {"above it", 2147483647.5, fails<Long>(ErrorNumber::overflow)},
                         {"above it as text", u"2147483648", fails<Long>(ErrorNumber::overflow)},
                         {"not a number", std::nan(""), fails<Long>(ErrorNumber::overflow)},
                         {"a word for a Boolean", u"True", fails<Long>(ErrorNumber::typeMismatch)},
                     });
    expectRows<Long>(&Variant::toLong, noNumbers<Long>());
}

TEST(VariantToInteger, RoundsAndRefusesWhatDoesNotFit) {
    expectRows<Integer>(&Variant::toInteger,
                        {
                            {"Empty", {}, {0}},
                            {"True", true, {-1}},
                            {"the largest", Long{32767}, {32767}},
                            {"above it", Long{32768}, fails<Integer>(ErrorNumber::overflow)},
                            {"the smallest", Long{-32768}, {-32768}},
                            {"below it", Long{-32769}, fails<Integer>(ErrorNumber::overflow)},
                            {"a half goes to the even number", 0.5, {0}},
                            {"text", u"-1.5", {-2}},
                            {"Date", Date{2.0}, {2}},
                        });
    expectRows<Integer>(&Variant::toInteger, noNumbers<Integer>());
}

TEST(VariantToByte, RoundsAndRefusesWhatDoesNotFit) {
    expectRows<Byte>(
        &Variant::toByte,
        {
            {"Empty", {}, {0}},
            {"False", false, {0}},
            // Wanted: True is 255 as a Byte, all bits set, though -1 as a number is out of range.
            {"True", true, {255}},
            {"minus one as a number", Integer{-1}, fails<Byte>(ErrorNumber::overflow)},
            {"the largest", Long{255}, {255}},
            {"above it", Long{256}, fails<Byte>(ErrorNumber::overflow)},
            {"text", u"1.5", {2}},
        });
    expectRows<Byte>(&Variant::toByte, noNumbers<Byte>());
}

TEST(VariantToSingle, RoundsAndRefusesWhatDoesNotFit) {
    expectRows<Single>(&Variant::toSingle,
                       {
                           {"Empty", {}, {0}},
                           {"True", true, {-1}},
                           {"Single", 0.1F, {0.1F}},
                           {"Double", 0.1, {0.1F}},
                           {"Long", Long{16777217}, {16777216.0F}},
                           {"the largest",
                            static_cast<Double>(std::numeric_limits<Single>::max()),
                            {std::numeric_limits<Single>::max()}},
                           {"above it", 1e39, fails<Single>(ErrorNumber::overflow)},
                           {"below the smallest", -1e39, fails<Single>(ErrorNumber::overflow)},
                           {"too small becomes zero", 1e-60, {0}},
                           {"text", u"1.5", {1.5F}},
                       });
    expectRows<Single>(&Variant::toSingle, noNumbers<Single>());
}

TEST(VariantToDouble, TakesAnyNumber) {
    expectRows<Double>(&Variant::toDouble,
                       {
                           {"Empty", {}, {0}},
                           {"True", true, {-1}},
                           {"Byte", Byte{255}, {255}},
                           {"Integer", Integer{-32768}, {-32768}},
                           {"Long", Long{2147483647}, {2147483647}},
                           {"Single", 0.5F, {0.5}},
                           {"Double", 0.1, {0.1}},
                           {"Date", Date{-1.25}, {-1.25}},
                           {"text", u"1e5", {100000}},
                       });
    expectRows<Double>(&Variant::toDouble, noNumbers<Double>());
}

TEST(VariantToBoolean, NumbersByZeroAndTextByWordOrNumber) {
    expectRows<bool>(&Variant::toBoolean,
                     {
                         {"Empty", {}, {false}},
                         {"True", true, {true}},
                         {"zero", Long{0}, {false}},
                         {"any other number", Long{2}, {true}},
                         {"a small number", 0.1, {true}},
                         {"the start day", Date{0}, {false}},
                         {"another day", Date{1}, {true}},
                         {"the word True", u"True", {true}},
                         {"the word False", u"False", {false}},
                         {"in other case", u"tRUE", {true}},
                         {"False in other case", u"FALSE", {false}},
                         {"a number as text", u"0.5", {true}},
                         {"zero as text", u"0", {false}},
                         {"a word with a blank", u"True ", fails<bool>(ErrorNumber::typeMismatch)},
                         {"another word", u"yes", fails<bool>(ErrorNumber::typeMismatch)},
                     });
    expectRows<bool>(&Variant::toBoolean, noNumbers<bool>());
}

TEST(VariantToDate, NumbersAreDaysAndTextIsADateOrANumber) {
    const auto check = [](const std::vector<Row<Double>>& rows) {
        for (const Row<Double>& row : rows) {
            SCOPED_TRACE(row.name);
            EXPECT_EQ(outcomeOf<Double>([&] { return row.from.toDate().days; }), row.outcome);
        }
    };
    check({
        {"Empty", {}, {0}},
        {"True", true, {-1}},
        {"Date", Date{1.5}, {1.5}},
        {"Long", Long{45351}, {45351}},
        {"Double", 45351.25, {45351.25}},
        {"a date as text", u"29.02.2024 06:00", {45351.25}},
        {"a number as text", u"45351.25", {45351.25}},
        {"the last day", Long{2958465}, {2958465}},
        {"past it", Long{2958466}, fails<Double>(ErrorNumber::overflow)},
        {"the first day", Long{-657434}, {-657434}},
        {"before it", Long{-657435}, fails<Double>(ErrorNumber::overflow)},
        {"no date", u"31.02.2024", fails<Double>(ErrorNumber::typeMismatch)},
        {"no text", u"", fails<Double>(ErrorNumber::typeMismatch)},
        {"def", u"def", fails<Double>(ErrorNumber::typeMismatch)},
    });
    check(unconvertible<Double>());
}

TEST(VariantToText, EachKindHasItsForm) {
    expectRows<String>(&Variant::toText,
                       {
                           {"Empty", {}, {u""}},
                           {"True", true, {u"True"}},
                           {"False", false, {u"False"}},
                           {"Byte", Byte{255}, {u"255"}},
                           {"Integer", Integer{-32768}, {u"-32768"}},
                           {"Long", Long{-2147483647 - 1}, {u"-2147483648"}},
                           {"Single", 0.1F, {u"0.1"}},
                           {"Double", 0.1, {u"0.1"}},
                           {"a large Double", 1e15, {u"1E+15"}},
                           {"a large Single", 1e7F, {u"1E+07"}},
                           {"Date", Date{45351.25}, {u"2024-02-29 06:00:00"}},
                           {"a Date outside the calendar", Date{1e9}, fails<String>(ErrorNumber::overflow)},
                           {"text", u"def", {u"def"}},
                           {"text with a zero", String(u"a\0b", 3), {String(u"a\0b", 3)}},
                           {"text with an unpaired surrogate", String(1, u'\xD800'), {String(1, u'\xD800')}},
                       });
    expectRows<String>(&Variant::toText, unconvertible<String>());
}

TEST(VariantToColor, KeepsTheBits) {
    expectRows<OLE_COLOR>(
        &Variant::toColor,
        {
            {"Empty", {}, {0}},
            {"a colour", OLE_COLOR{0x030201}, {0x030201}},
            {"a colour of the system", buttonFace, {0x8000000F}},
            {"the same as a Long", Long{-2147483633}, {0x8000000F}},
            {"the same as a Double", 2147483663.0, {0x8000000F}},
            {"the same as a negative Double", -2147483633.0, {0x8000000F}},
            {"the same as text", u"2147483663", {0x8000000F}},
            {"the same as negative text", u"-2147483633", {0x8000000F}},
            {"the same as hexadecimal text", u"&H8000000F", {0x8000000F}},
            {"all bits", 4294967295.0, {0xFFFFFFFF}},
            {"a rest rounds away", 4294967295.4, {0xFFFFFFFF}},
            {"a half rounds past all bits", 4294967295.5, fails<OLE_COLOR>(ErrorNumber::overflow)},
            {"more than all bits", 4294967296.0, fails<OLE_COLOR>(ErrorNumber::overflow)},
            {"between the halves", 2147483647.5, {0x80000000}},
            {"a half goes to the even number", 2.5, {2}},
            {"above the Longs, too", 2147483650.5, {0x80000002}},
            {"below the Longs", -2147483649.0, fails<OLE_COLOR>(ErrorNumber::overflow)},
            {"True", true, {0xFFFFFFFF}},
        });
    expectRows<OLE_COLOR>(&Variant::toColor, noNumbers<OLE_COLOR>());
}

TEST(VariantToColor, AColourTravelsAsALong) {
    const Variant color(buttonFace);
    EXPECT_EQ(color, Variant(Long{-2147483633}));
    EXPECT_EQ(color.toLong(), -2147483633);
    EXPECT_EQ(color.toText(), u"-2147483633");
    EXPECT_EQ(Variant(color.toText()).toColor(), buttonFace);
    EXPECT_EQ(Variant(color.toDouble()).toColor(), buttonFace);
}

TEST(VariantIsNumeric, TellsWhetherItConvertsToANumber) {
    const std::vector<std::pair<const char*, Variant>> numeric = {
        {"Empty", {}},
        {"Boolean", true},
        {"Byte", Byte{1}},
        {"Integer", Integer{1}},
        {"Long", Long{1}},
        {"Single", 1.0F},
        {"Double", 1.0},
        {"a number as text", u" -1.5e3 "},
        {"hexadecimal text", u"&HFF"},
    };
    for (const auto& [name, value] : numeric)
        EXPECT_TRUE(value.isNumeric()) << name;
    const std::vector<std::pair<const char*, Variant>> notNumeric = {
        {"Null", Null{}},
        {"an argument left out", Missing{}},
        {"Date", Date{1}},
        {"no text", u""},
        {"def", u"def"},
        {"True as text", u"True"},
        {"a date as text", u"2024-02-29"},
        {"a group mark", u"1,234"},
        {"too large", u"1e999"},
        {"object", anObject()},
        {"no object", ObjectRef()},
        {"picture", aPicture()},
        {"font", aFont()},
    };
    for (const auto& [name, value] : notNumeric)
        EXPECT_FALSE(value.isNumeric()) << name;
}

TEST(VariantToObject, GivesAnObjectOrFails) {
    const ObjectRef object = anObject();
    EXPECT_EQ(Variant(object).toObject(), object);
    const std::vector<std::pair<Variant, ErrorNumber>> rows = {
        {Variant(), ErrorNumber::objectVariableNotSet},
        {Variant(ObjectRef()), ErrorNumber::objectVariableNotSet},
        {Variant(PictureRef()), ErrorNumber::objectVariableNotSet},
        {Variant(FontRef()), ErrorNumber::objectVariableNotSet},
        {Variant(aPicture()), ErrorNumber::typeMismatch},
        {Variant(aFont()), ErrorNumber::typeMismatch},
        {Variant(Long{1}), ErrorNumber::typeMismatch},
        {Variant(u""), ErrorNumber::typeMismatch},
        {Variant(Missing{}), ErrorNumber::typeMismatch},
        {Variant(Null{}), ErrorNumber::invalidUseOfNull},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(kindOf(row.first));
        EXPECT_EQ(errorNumberOf([&] { row.first.toObject(); }), row.second);
    }
}

TEST(VariantToPicture, GivesAPictureOrNoneOrFails) {
    const PictureRef picture = aPicture();
    EXPECT_EQ(Variant(picture).toPicture(), picture);
    for (const Variant& nothing :
         {Variant(), Variant(ObjectRef()), Variant(PictureRef()), Variant(FontRef())})
        EXPECT_EQ(nothing.toPicture(), nullptr) << kindOf(nothing);
    for (const Variant& other : {Variant(anObject()), Variant(aFont()), Variant(Long{0}), Variant(u"")})
        EXPECT_EQ(errorNumberOf([&] { other.toPicture(); }), ErrorNumber::typeMismatch) << kindOf(other);
    EXPECT_EQ(errorNumberOf([] { Variant(Null{}).toPicture(); }), ErrorNumber::invalidUseOfNull);
}

TEST(VariantToFont, GivesAFontOrNoneOrFails) {
    const FontRef font = aFont();
    EXPECT_EQ(Variant(font).toFont(), font);
    for (const Variant& nothing :
         {Variant(), Variant(ObjectRef()), Variant(PictureRef()), Variant(FontRef())})
        EXPECT_EQ(nothing.toFont(), nullptr) << kindOf(nothing);
    for (const Variant& other : {Variant(anObject()), Variant(aPicture()), Variant(true), Variant(u"")})
        EXPECT_EQ(errorNumberOf([&] { other.toFont(); }), ErrorNumber::typeMismatch) << kindOf(other);
    EXPECT_EQ(errorNumberOf([] { Variant(Null{}).toFont(); }), ErrorNumber::invalidUseOfNull);
}

TEST(Variant, KnowsWhatItHolds) {
    EXPECT_TRUE(Variant().isEmpty());
    EXPECT_TRUE(Variant(Null{}).isNull());
    EXPECT_TRUE(Variant(Missing{}).isMissing());
    EXPECT_TRUE(Variant(u"").isString());
    EXPECT_FALSE(Variant(u"").isEmpty());
    EXPECT_FALSE(Variant(Null{}).isEmpty());
    EXPECT_TRUE(Variant(ObjectRef()).isObject());
    EXPECT_TRUE(Variant(PictureRef()).isObject());
    EXPECT_TRUE(Variant(FontRef()).isObject());
    EXPECT_FALSE(Variant().isObject());
    EXPECT_EQ(*Variant(u"a").text(), u"a");
    EXPECT_EQ(Variant(Long{1}).text(), nullptr);
}

TEST(Variant, EqualsByKindAndValueAndObjectsByIdentity) {
    const ObjectRef object = anObject();
    EXPECT_EQ(Variant(Long{1}), Variant(Long{1}));
    EXPECT_NE(Variant(Long{1}), Variant(Long{2}));
    EXPECT_NE(Variant(Long{1}), Variant(Integer{1}));
    EXPECT_NE(Variant(Long{1}), Variant(true));
    EXPECT_NE(Variant(1.0), Variant(Date{1}));
    EXPECT_EQ(Variant(), Variant());
    EXPECT_NE(Variant(), Variant(u""));
    EXPECT_EQ(Variant(u"a"), Variant(String(u"a")));
    EXPECT_NE(Variant(u"a"), Variant(u"A"));
    EXPECT_EQ(Variant(object), Variant(object));
    EXPECT_NE(Variant(object), Variant(anObject()));
    EXPECT_NE(Variant(ObjectRef()), Variant(PictureRef()));
}

/// One of each kind, so that what holds for all is said for all.
std::vector<Variant> oneOfEach() {
    return {{},
            Null{},
            Missing{},
            true,
            Byte{1},
            Integer{2},
            Long{3},
            4.5F,
            5.5,
            Date{6.25},
            u"short",
            String(100, u'x'),
            anObject(),
            aPicture(),
            aFont()};
}

TEST(Variant, CopiesAndMovesBetweenAllKinds) {
    for (const Variant& from : oneOfEach()) {
        for (const Variant& to : oneOfEach()) {
            SCOPED_TRACE(::testing::Message() << kindOf(from) << " to " << kindOf(to));
            Variant target = to;
            target = from;
            EXPECT_EQ(target, from);
            Variant moved = std::move(target);
            EXPECT_EQ(moved, from);
            Variant assigned = to;
            assigned = std::move(moved);
            EXPECT_EQ(assigned, from);
        }
    }
}

TEST(Variant, SharesObjectsAndLetsThemGo) {
    const ObjectRef object = anObject();
    {
        const Variant first(object);
        const Variant second = first;
        EXPECT_EQ(object.use_count(), 3);
        Variant third = second;
        third = Long{1};
        EXPECT_EQ(object.use_count(), 3);
    }
    EXPECT_EQ(object.use_count(), 1);
}

/// Runs code of the host when the last reference goes.
class NoisyObject final : public Object {
  public:
    explicit NoisyObject(std::function<void()> onDrop) : onDrop_(std::move(onDrop)) {}
    ~NoisyObject() override { onDrop_(); }

    Variant get(StringView /*name*/, std::span<Variant> /*arguments*/) override { return {}; }
    void put(StringView /*name*/, const Variant& /*value*/) override {}
    Variant call(StringView /*name*/, std::span<Variant> /*arguments*/) override { return {}; }

  private:
    std::function<void()> onDrop_;
};

TEST(Variant, AnObjectThatIsDroppedSeesTheNewValue) {
    Variant tag;
    String seen;
    tag = ObjectRef(std::make_shared<NoisyObject>([&] { seen = tag.toText(); }));
    tag = u"new";
    EXPECT_EQ(seen, u"new");
    tag = ObjectRef(std::make_shared<NoisyObject>([&] { tag = u"newer"; }));
    tag = Long{5};
    EXPECT_EQ(tag, Variant(u"newer"));
}

TEST(Variant, AssignedToItselfItStaysItself) {
    for (const Variant& value : oneOfEach()) {
        SCOPED_TRACE(kindOf(value));
        Variant held = value;
        Variant& itself = held;
        held = itself;
        EXPECT_EQ(held, value);
        held = std::move(itself);
        EXPECT_EQ(held, value);
    }
}

TEST(Variant, MovedFromItKeepsItsKindAndNothingElse) {
    Variant text(String(100, u'x'));
    const Variant first = std::move(text);
    EXPECT_EQ(text, Variant(u""));
    Variant object(anObject());
    const Variant second = std::move(object);
    EXPECT_EQ(object, Variant(ObjectRef()));
}

TEST(Variant, IsSmall) {
    EXPECT_LE(sizeof(Variant), sizeof(String) + alignof(Double));
}

TEST(VariantMinusOne, KeepsTheKindAndWidensWhereItMust) {
    struct MinusOneRow {
        const char* name;
        Variant from;
        Variant result;
    };
    const std::vector<MinusOneRow> rows = {
        {"Empty", {}, Integer{-1}},
        {"False", false, Integer{-1}},
        {"True", true, Integer{-2}},
        {"Byte", Byte{5}, Byte{4}},
        {"the smallest Byte", Byte{0}, Integer{-1}},
        {"Integer", Integer{5}, Integer{4}},
        {"the smallest Integer", Integer{-32768}, Long{-32769}},
        {"Long", Long{5}, Long{4}},
        {"the smallest Long", std::numeric_limits<Long>::min(), -2147483649.0},
        {"Single", 1.5F, 0.5F},
        {"Double", 1.25, 0.25},
        {"Date", Date{2.5}, Date{1.5}},
        {"text", u"3", 2.0},
        {"text with a fraction", u" 2.5 ", 1.5},
        {"hexadecimal text", u"&H10", 15.0},
    };
    for (const MinusOneRow& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(minusOne(row.from), row.result);
    }
    for (const Row<Double>& row : noNumbers<Double>()) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(errorNumberOf([&] { minusOne(row.from); }), row.outcome.error);
    }
}

TEST(VariantZeroBased, SubtractsFirstAndThenRounds) {
    struct ZeroBasedRow {
        const char* name;
        Variant index;
        Outcome<Long> position;
    };
    const std::vector<ZeroBasedRow> rows = {
        {"the first", Long{1}, {0}},
        {"zero", Long{0}, {-1}},
        {"negative", Long{-5}, {-6}},
        {"the largest", Long{2147483647}, {2147483646}},
        {"the smallest", std::numeric_limits<Long>::min(), fails<Long>(ErrorNumber::overflow)},
        {"Empty", {}, {-1}},
        {"True", true, {-2}},
        {"Byte zero", Byte{0}, {-1}},
        {"the smallest Integer", Integer{-32768}, {-32769}},
        {"text", u"3", {2}},
        {"half of the first", 1.5, {0}},
        {"half of the second", 2.5, {2}},
        {"half of the third", 3.5, {2}},
        {"a Single", 1.5F, {0}},
        {"a Date", Date{3}, {2}},
        {"the last that a Double reaches", 2147483648.0, {2147483647}},
        {"past it", 2147483649.0, fails<Long>(ErrorNumber::overflow)},
    };
    for (const ZeroBasedRow& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(outcomeOf<Long>([&] { return zeroBased(row.index); }), row.position);
    }
    for (const Row<Long>& row : noNumbers<Long>()) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(errorNumberOf([&] { zeroBased(row.from); }), row.outcome.error);
    }
}

TEST(Variant, TextsOfTenMillionUnitsConvertOrFail) {
    constexpr std::size_t many = 10'000'000;
    const Variant nines(String(many, u'9'));
    EXPECT_EQ(errorNumberOf([&] { nines.toLong(); }), ErrorNumber::overflow);
    EXPECT_EQ(errorNumberOf([&] { nines.toDate(); }), ErrorNumber::overflow);
    EXPECT_EQ(errorNumberOf([&] { nines.toBoolean(); }), ErrorNumber::overflow);
    EXPECT_FALSE(nines.isNumeric());
    EXPECT_EQ(nines.toText().size(), many);
}

} // namespace
} // namespace lumtex
