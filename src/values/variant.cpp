#include "values/variant.h"

#include "values/date_text.h"
#include "values/locale.h"
#include "values/rounding.h"
#include "values/runtime_error.h"
#include "values/text.h"

#include <cmath>
#include <limits>

namespace lumtex {

namespace {

struct ToDouble {
    Double operator()(std::monostate) const { return 0; }
    Double operator()(Null) const { throw RuntimeError(ErrorNumber::invalidUseOfNull); }
    Double operator()(bool value) const { return value ? -1 : 0; }
    Double operator()(Byte value) const { return value; }
    Double operator()(Integer value) const { return value; }
    Double operator()(Long value) const { return value; }
    Double operator()(Single value) const { return static_cast<Double>(value); }
    Double operator()(Double value) const { return value; }
    Double operator()(LongLong value) const { return static_cast<Double>(value.value); }
    Double operator()(UnsignedLongLong value) const { return static_cast<Double>(value.value); }
    Double operator()(Currency value) const { return lumtex::toDouble(toDecimal(value)); }
    Double operator()(const Decimal& value) const { return lumtex::toDouble(value); }
    Double operator()(Date value) const { return value.days; }
    Double operator()(const String& text) const { return numberFrom(text); }
    template <class NoValue>
    Double operator()(const NoValue&) const {
        throw RuntimeError(ErrorNumber::typeMismatch);
    }
};

struct ToText {
    String operator()(std::monostate) const { return {}; }
    String operator()(Null) const { throw RuntimeError(ErrorNumber::invalidUseOfNull); }
    String operator()(bool value) const { return value ? u"True" : u"False"; }
    String operator()(const String& text) const { return text; }
    String operator()(Byte value) const { return (*this)(LongLong{value}); }
    String operator()(Integer value) const { return (*this)(LongLong{value}); }
    String operator()(Long value) const { return (*this)(LongLong{value}); }
    String operator()(LongLong value) const { return currentLocale().textOf(value); }
    String operator()(UnsignedLongLong value) const { return currentLocale().textOf(value); }
    String operator()(Single value) const { return currentLocale().textOf(value); }
    String operator()(Double value) const { return currentLocale().textOf(value); }
    String operator()(Currency value) const { return currentLocale().textOf(value); }
    String operator()(const Decimal& value) const { return currentLocale().textOf(value); }
    String operator()(Date value) const { return currentLocale().textOf(value); }
    template <class NoValue>
    String operator()(const NoValue&) const {
        throw RuntimeError(ErrorNumber::typeMismatch);
    }
};

struct MinusOne {
    Variant operator()(std::monostate) const { return Integer{-1}; }
    Variant operator()(Null) const { throw RuntimeError(ErrorNumber::invalidUseOfNull); }
    Variant operator()(bool value) const { return static_cast<Integer>((value ? -1 : 0) - 1); }
    Variant operator()(Byte value) const {
        if (value == 0)
            return Integer{-1};
        return static_cast<Byte>(value - 1);
    }
    Variant operator()(Integer value) const {
        if (value == std::numeric_limits<Integer>::min())
            return Long{value} - 1;
        return static_cast<Integer>(value - 1);
    }
    Variant operator()(Long value) const {
        if (value == std::numeric_limits<Long>::min())
            return static_cast<Double>(value) - 1;
        return value - 1;
    }
    Variant operator()(Single value) const { return value - 1; }
    Variant operator()(Double value) const { return value - 1; }
    Variant operator()(LongLong value) const {
        if (value.value == std::numeric_limits<std::int64_t>::min())
            return ToDouble()(value) - 1;
        return LongLong{value.value - 1};
    }
    Variant operator()(UnsignedLongLong value) const {
        if (value.value == 0)
            return Double{-1};
        return UnsignedLongLong{value.value - 1};
    }
    Variant operator()(Currency value) const {
        constexpr std::int64_t one = 10'000;
        if (value.tenThousandths < std::numeric_limits<std::int64_t>::min() + one)
            return ToDouble()(value) - 1;
        return Currency{value.tenThousandths - one};
    }
    Variant operator()(const Decimal& value) const { return ToDouble()(value) - 1; }
    Variant operator()(Date value) const { return Date{value.days - 1}; }
    Variant operator()(const String& text) const { return numberFrom(text) - 1; }
    template <class NoValue>
    Variant operator()(const NoValue&) const {
        throw RuntimeError(ErrorNumber::typeMismatch);
    }
};

/// The reference that a Variant of kind `Ref` holds; none for Empty, and for a reference of another kind that
/// holds nothing, since nothing is the same of every kind.
template <class Ref>
struct ToReference {
    Ref operator()(std::monostate) const { return nullptr; }
    Ref operator()(Null) const { throw RuntimeError(ErrorNumber::invalidUseOfNull); }
    Ref operator()(const Ref& held) const { return held; }
    template <class T>
    Ref operator()(const std::shared_ptr<T>& other) const {
        if (other)
            throw RuntimeError(ErrorNumber::typeMismatch);
        return nullptr;
    }
    template <class NoObject>
    Ref operator()(const NoObject&) const {
        throw RuntimeError(ErrorNumber::typeMismatch);
    }
};

} // namespace

bool Variant::isNumeric() const {
    if (const String* held = text())
        return numberIn(*held).has_value();
    return !isNull() && !isMissing() && !isUnsupported() && !isObject() && as<Date>() == nullptr;
}

Long Variant::toLong() const {
    if (const Long* held = as<Long>())
        return *held;
    return roundToLong(toDouble());
}

Integer Variant::toInteger() const {
    return roundToInteger(toDouble());
}

Byte Variant::toByte() const {
    // Wanted: True is 255 as a Byte, all bits set, though -1 as a number is out of range.
    if (const bool* held = as<bool>())
        return *held ? std::numeric_limits<Byte>::max() : Byte{0};
    return roundToByte(toDouble());
}

Single Variant::toSingle() const {
    if (const Single* held = as<Single>())
        return *held;
    const auto value = static_cast<Single>(toDouble());
    if (std::isinf(value))
        throw RuntimeError(ErrorNumber::overflow);
    return value;
}

Double Variant::toDouble() const {
    return visit(ToDouble{});
}

bool Variant::toBoolean() const {
    if (const String* held = text()) {
        if (sameName(*held, u"True"))
            return true;
        if (sameName(*held, u"False"))
            return false;
    }
    return toDouble() != 0;
}

Date Variant::toDate() const {
    if (const Date* held = as<Date>())
        return *held;
    if (const String* held = text())
        return dateFrom(*held);
    const Double value = toDouble();
    if (!isDateInRange(value))
        throw RuntimeError(ErrorNumber::overflow);
    return Date{value};
}

String Variant::toText() const {
    return visit(ToText{});
}

OLE_COLOR Variant::toColor() const {
    if (const Long* held = as<Long>())
        return static_cast<OLE_COLOR>(*held);
    const Double value = toDouble();
    constexpr Double span = 4294967296.0;
    // What lies above the Longs comes down by a whole turn, so that one rounding rule serves both halves.
    const bool aboveLongs = value > std::numeric_limits<Long>::max() && value < span - 0.5;
    return static_cast<OLE_COLOR>(roundToLong(aboveLongs ? value - span : value));
}

ObjectRef Variant::toObject() const {
    ObjectRef held = visit(ToReference<ObjectRef>{});
    if (!held)
        throw RuntimeError(ErrorNumber::objectVariableNotSet);
    return held;
}

PictureRef Variant::toPicture() const {
    return visit(ToReference<PictureRef>{});
}

FontRef Variant::toFont() const {
    return visit(ToReference<FontRef>{});
}

Variant minusOne(const Variant& value) {
    return value.visit(MinusOne{});
}

Long zeroBasedSlow(const Variant& index) {
    return minusOne(index).toLong();
}

} // namespace lumtex
