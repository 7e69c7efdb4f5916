/// \file
/// A tagged value with the classic conversions. All conversion rules of the system stand in this one place.
#pragma once

#include "platform/font.h"
#include "platform/object.h"
#include "platform/picture.h"
#include "platform/types.h"

#include <optional>
#include <variant>

namespace lumtex {

/// A moment as days since 30 December 1899; the fraction is the time of the day.
struct Date {
    Double days = 0;
    bool operator==(const Date&) const = default;
};

/// Nothing known, as a database field gives it. Every conversion but the test for it fails with error 94.
struct Null {
    bool operator==(const Null&) const = default;
};

/// An optional argument that the caller left out. Converting it fails with error 13.
struct Missing {
    bool operator==(const Missing&) const = default;
};

/// Holds a number, text, date, Boolean, object, or nothing (Empty, the start value).
///
/// Conversions throw RuntimeError 13 for a value of the wrong kind (text that is no number, an object, an
/// argument left out), 6 for one out of range, 94 for Null. True converts to -1, Empty to 0 or the empty
/// text. docs/conversions.md has the rules.
class Variant {
  public:
    Variant() = default;
    Variant(std::nullptr_t) = delete;
    Variant(bool value) : value_(value) {}
    Variant(Byte value) : value_(value) {}
    Variant(Integer value) : value_(value) {}
    Variant(Long value) : value_(value) {}
    Variant(Single value) : value_(value) {}
    Variant(Double value) : value_(value) {}
    /// A colour number keeps its 32 bits and travels as a Long.
    Variant(OLE_COLOR color) : value_(static_cast<Long>(color)) {}
    Variant(Date value) : value_(value) {}
    Variant(Null value) : value_(value) {}
    Variant(Missing value) : value_(value) {}
    Variant(String value) : value_(std::move(value)) {}
    Variant(StringView value) : value_(String(value)) {}
    Variant(const char16_t* value) : value_(String(value)) {}
    /// Any other pointer would silently become a Boolean.
    template <class T>
    Variant(T*) = delete;
    Variant(ObjectRef value) : value_(std::move(value)) {}
    Variant(PictureRef value) : value_(std::move(value)) {}
    Variant(FontRef value) : value_(std::move(value)) {}

    bool isEmpty() const { return std::holds_alternative<std::monostate>(value_); }
    bool isNull() const { return std::holds_alternative<Null>(value_); }
    bool isMissing() const { return std::holds_alternative<Missing>(value_); }
    bool isString() const { return std::holds_alternative<String>(value_); }
    /// True for an object, picture or font, and for an empty reference to one.
    bool isObject() const;
    /// True for a number, a Boolean, Empty, and for text that converts to a number; not for a Date.
    bool isNumeric() const;

    Long toLong() const;
    Integer toInteger() const;
    /// True gives 255.
    Byte toByte() const;
    Single toSingle() const;
    Double toDouble() const;
    /// Numbers: not zero. Text: "True", "False" (in any case) or a number. Only here these words mean
    /// anything.
    bool toBoolean() const;
    /// Text: a date, or a number of days.
    Date toDate() const;
    /// The invariant text forms; a Runtime has those of the user's settings.
    String toText() const;
    /// A number's 32 bits; a value up to 0xFFFFFFFF and a negative Long both keep their bits.
    OLE_COLOR toColor() const;
    /// Never none: throws 91 for Empty and for an empty reference, 13 for a value, a picture or a font.
    ObjectRef toObject() const;
    /// None for Empty or an empty reference; throws 13 for anything but that kind of object.
    PictureRef toPicture() const;
    FontRef toFont() const;

    /// The text if it holds one, without conversion.
    const String* text() const { return std::get_if<String>(&value_); }

    /// Same kind and same value; objects by identity. Not the language's `=`, which converts.
    bool operator==(const Variant&) const = default;

    using Storage = std::variant<std::monostate,
                                 Null,
                                 Missing,
                                 bool,
                                 Byte,
                                 Integer,
                                 Long,
                                 Single,
                                 Double,
                                 Date,
                                 String,
                                 ObjectRef,
                                 PictureRef,
                                 FontRef>;
    const Storage& storage() const { return value_; }

  private:
    Storage value_;
};

/// `value` - 1 as the language computes it on a Variant: text becomes a Double and a Boolean an Integer;
/// Byte, Integer and Long keep their kind where the result fits and widen where not; Single, Double and Date
/// keep it. Throws as the conversions do.
Variant minusOne(const Variant& value);

Long zeroBasedSlow(const Variant& index);

/// The 0-based position that a 1-based `index` names: index - 1 computed on the Variant, then rounded.
inline Long zeroBased(const Variant& index) {
    // Each access to a cell comes through here, nearly always with a Long.
    const Long* held = std::get_if<Long>(&index.storage());
    return held != nullptr && *held > 0 ? *held - 1 : zeroBasedSlow(index);
}

/// Text to number by the invariant rules: surrounding blanks, a sign, digits with "." as the decimal mark, an
/// exponent with E or D, "&H" and "&O" integers. No group marks. None where the text is not a number, or one
/// that a Double cannot hold.
std::optional<Double> numberFromText(StringView text);

/// Text to a date by the invariant rules (documented in docs/conversions.md). None where it is not a date.
std::optional<Date> dateFromText(StringView text);

/// 15 significant digits for a Double, 7 for a Single, trailing zeros left out; "1E+15" where that many
/// digits before the point, or behind it, would not do.
String textFromNumber(Double value);
String textFromNumber(Single value);

/// "yyyy-mm-dd", with " hh:mm:ss" unless it is midnight; the time alone on the start day. Rounded to whole
/// seconds. Throws 6 for a moment before the year 100 or past 9999.
String textFromDate(Date value);

} // namespace lumtex
