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
/// Conversions throw RuntimeError 13 for a value of the wrong kind (text that is no number), 6 for one out of
/// range, 94 for Null. True converts to -1, Empty to 0 or the empty text.
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
    Variant(ObjectRef value) : value_(std::move(value)) {}
    Variant(PictureRef value) : value_(std::move(value)) {}
    Variant(FontRef value) : value_(std::move(value)) {}

    bool isEmpty() const { return std::holds_alternative<std::monostate>(value_); }
    bool isNull() const { return std::holds_alternative<Null>(value_); }
    bool isMissing() const { return std::holds_alternative<Missing>(value_); }
    bool isString() const { return std::holds_alternative<String>(value_); }
    bool isObject() const;
    /// True for a number, a Boolean, Empty, and for text that converts to a number.
    bool isNumeric() const;

    Long toLong() const;
    Integer toInteger() const;
    Byte toByte() const;
    Single toSingle() const;
    Double toDouble() const;
    /// Numbers: not zero. Text: "True", "False" (in any case) or a number.
    bool toBoolean() const;
    Date toDate() const;
    String toText() const;
    /// A number's 32 bits; a value up to 0xFFFFFFFF and a negative Long both keep their bits.
    OLE_COLOR toColor() const;
    /// Throws 91 where the variant holds no object, 13 where it holds none of that kind.
    ObjectRef toObject() const;
    /// None for Empty or an empty reference.
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

/// `value` - 1 as the language computes it on a Variant: text becomes a Double, integers stay integers and
/// widen on overflow. Throws as the conversions do.
Variant minusOne(const Variant& value);

/// The 0-based position that a 1-based `index` names: index - 1 computed on the Variant, then rounded.
Long zeroBased(const Variant& index);

/// Text to number by the invariant rules: surrounding blanks, a sign, digits with "." as the decimal mark, an
/// exponent with E or D, "&H" and "&O" integers. None where the text is not a number.
std::optional<Double> numberFromText(StringView text);

/// Text to a date by the invariant rules (documented in docs/conversions.md). None where it is not a date.
std::optional<Date> dateFromText(StringView text);

/// The shortest text that reads back as the same number (7 digits for a Single, 15 for a Double).
String textFromNumber(Double value);
String textFromNumber(Single value);
String textFromDate(Date value);

} // namespace lumtex
