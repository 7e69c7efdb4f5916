/// \file
/// A tagged value with the classic conversions. All of their rules stand here, except those between texts and
/// numbers or dates, which a Locale has.
#pragma once

#include "values/decimal.h"
#include "values/references/font.h"
#include "values/references/object.h"
#include "values/references/picture.h"
#include "values/types.h"

#include <cstddef>
#include <cstring>
#include <new>
#include <optional>
#include <type_traits>
#include <utility>
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

/// Something that no property can hold: an array, a record, an error of an automation host. Converting it
/// fails with error 13.
struct Unsupported {
    bool operator==(const Unsupported&) const = default;
};

/// Holds a number, text, date, Boolean, object, or nothing (Empty, the start value).
///
/// Conversions throw RuntimeError 13 for a value of the wrong kind (text that is no number, an object, an
/// argument left out), 6 for one out of range, 94 for Null. True converts to -1, Empty to 0 or the empty
/// text. docs/conversions.md has the rules.
///
/// Most Variants are indices and colours, made and dropped at each access to a cell, so a value without text
/// or object is copied and dropped inline; for this the class keeps its own union in place of a std::variant.
class Variant {
  public:
    Variant() : Variant(std::monostate{}) {}
    Variant(std::nullptr_t) = delete;
    Variant(bool value) { hold(value); }
    Variant(Byte value) { hold(value); }
    Variant(Integer value) { hold(value); }
    Variant(Long value) { hold(value); }
    Variant(Single value) { hold(value); }
    Variant(Double value) { hold(value); }
    /// A colour number keeps its 32 bits and travels as a Long.
    Variant(OLE_COLOR color) : Variant(static_cast<Long>(color)) {}
    Variant(LongLong value) { hold(value); }
    Variant(UnsignedLongLong value) { hold(value); }
    Variant(Currency value) { hold(value); }
    Variant(const Decimal& value) { hold(value); }
    Variant(Date value) { hold(value); }
    Variant(std::monostate value) { hold(value); }
    Variant(Null value) { hold(value); }
    Variant(Missing value) { hold(value); }
    Variant(Unsupported value) { hold(value); }
    Variant(String value) { hold(std::move(value)); }
    Variant(StringView value) : Variant(String(value)) {}
    Variant(const char16_t* value) : Variant(String(value)) {}
    /// Any other pointer would silently become a Boolean.
    template <class T>
    Variant(T*) = delete;
    Variant(ObjectRef value) { hold(std::move(value)); }
    Variant(PictureRef value) { hold(std::move(value)); }
    Variant(FontRef value) { hold(std::move(value)); }

    Variant(const Variant& other) {
        if (other.isPlain())
            copyPlain(other);
        else
            copyHeld(other);
    }
    /// Leaves `other` with its kind, and with an empty text or reference if it held one.
    Variant(Variant&& other) noexcept {
        if (other.isPlain())
            copyPlain(other);
        else
            moveHeld(other);
    }
    Variant& operator=(const Variant& other) {
        if (isPlain() && other.isPlain()) {
            copyPlain(other);
        } else {
            replaceBy(Variant(other));
        }
        return *this;
    }
    Variant& operator=(Variant&& other) noexcept {
        if (isPlain() && other.isPlain()) {
            copyPlain(other);
        } else {
            replaceBy(Variant(std::move(other)));
        }
        return *this;
    }
    ~Variant() {
        if (!isPlain())
            dropHeld();
    }

    bool isEmpty() const { return kind_ == Kind::empty; }
    bool isNull() const { return kind_ == Kind::null; }
    bool isMissing() const { return kind_ == Kind::missing; }
    bool isUnsupported() const { return kind_ == Kind::unsupported; }
    bool isString() const { return kind_ == Kind::text; }
    /// True for an object, picture or font, and for an empty reference to one.
    bool isObject() const { return kind_ >= Kind::object; }
    /// True for a number, a Boolean, Empty, and for text that converts to a number; not for a Date.
    bool isNumeric() const;

    Long toLong() const;
    Integer toInteger() const;
    /// True gives 255.
    Byte toByte() const;
    Single toSingle() const;
    Double toDouble() const;
    /// Numbers: not zero. Text: "True", "False" (in any case) or a number. No other conversion knows these
    /// words.
    bool toBoolean() const;
    /// Text: a date, or a number of days.
    Date toDate() const;
    /// By the current locale, as all conversions from and to texts are (values/locale.h).
    String toText() const;
    /// A number's 32 bits; a value up to 0xFFFFFFFF and a negative Long both keep their bits.
    OLE_COLOR toColor() const;
    /// Never null: throws 91 for Empty and for an empty reference, 13 for a value, a picture or a font.
    ObjectRef toObject() const;
    /// Null for Empty or an empty reference; throws 13 for anything but that kind of object.
    PictureRef toPicture() const;
    FontRef toFont() const;

    /// The value if it is of the type `T`, without conversion. Empty has the type std::monostate.
    template <class T>
    const T* as() const {
        return kind_ == Types::kindOf<T>() ? &held<T>() : nullptr;
    }
    const String* text() const { return as<String>(); }

    /// Calls `visitor` with the value as the type that it has.
    template <class Visitor>
    decltype(auto) visit(Visitor&& visitor) const {
        switch (kind_) {
        case Kind::null:
            return visitor(held<Null>());
        case Kind::missing:
            return visitor(held<Missing>());
        case Kind::unsupported:
            return visitor(held<Unsupported>());
        case Kind::boolean:
            return visitor(held<bool>());
        case Kind::byteNumber:
            return visitor(held<Byte>());
        case Kind::integerNumber:
            return visitor(held<Integer>());
        case Kind::longNumber:
            return visitor(held<Long>());
        case Kind::singleNumber:
            return visitor(held<Single>());
        case Kind::doubleNumber:
            return visitor(held<Double>());
        case Kind::longLongNumber:
            return visitor(held<LongLong>());
        case Kind::unsignedLongLongNumber:
            return visitor(held<UnsignedLongLong>());
        case Kind::currency:
            return visitor(held<Currency>());
        case Kind::date:
            return visitor(held<Date>());
        case Kind::text:
            return visitor(held<String>());
        case Kind::decimal:
            return visitor(held<Decimal>());
        case Kind::object:
            return visitor(held<ObjectRef>());
        case Kind::picture:
            return visitor(held<PictureRef>());
        case Kind::font:
            return visitor(held<FontRef>());
        case Kind::empty:
            break;
        }
        return visitor(held<std::monostate>());
    }

    /// Same kind and same value; objects by identity. Not the converting comparison of scripts.
    bool operator==(const Variant& other) const {
        return kind_ == other.kind_ &&
               visit([&]<class T>(const T& value) { return value == other.held<T>(); });
    }

  private:
    /// Up to `date` the values are plain, from `object` on they are references.
    enum class Kind : Byte {
        empty,
        null,
        missing,
        unsupported,
        boolean,
        byteNumber,
        integerNumber,
        longNumber,
        singleNumber,
        doubleNumber,
        longLongNumber,
        unsignedLongLongNumber,
        currency,
        date,
        text,
        decimal,
        object,
        picture,
        font,
    };

    static constexpr std::size_t plainSize = sizeof(Double);

    template <class... Ts>
    struct TypeList {
        template <class T>
        static constexpr Kind kindOf() {
            static_assert((std::is_same_v<T, Ts> || ...), "a Variant holds no such type");
            Byte position = 0;
            static_cast<void>(((std::is_same_v<T, Ts> || (++position, false)) || ...));
            return static_cast<Kind>(position);
        }
    };
    /// In the order of `Kind`.
    using Types = TypeList<std::monostate,
                           Null,
                           Missing,
                           Unsupported,
                           bool,
                           Byte,
                           Integer,
                           Long,
                           Single,
                           Double,
                           LongLong,
                           UnsignedLongLong,
                           Currency,
                           Date,
                           String,
                           Decimal,
                           ObjectRef,
                           PictureRef,
                           FontRef>;

    template <class T>
    static constexpr bool isPlainType = Types::kindOf<T>() <= Kind::date;

    bool isPlain() const { return kind_ <= Kind::date; }

    template <class T>
    void hold(T value) {
        static_assert(sizeof(T) <= sizeof(bytes_) && alignof(T) <= alignof(Double));
        if constexpr (isPlainType<T>) {
            static_assert(sizeof(T) <= plainSize && std::is_trivially_copyable_v<T>);
            // All that copyPlain takes has a value.
            std::memset(bytes_, 0, plainSize);
        }
        ::new (static_cast<void*>(bytes_)) T(std::move(value));
        kind_ = Types::kindOf<T>();
    }
    template <class T>
    const T& held() const {
        return *std::launder(reinterpret_cast<const T*>(bytes_));
    }
    template <class T>
    T& held() {
        return *std::launder(reinterpret_cast<T*>(bytes_));
    }

    void copyPlain(const Variant& other) {
        std::memcpy(bytes_, other.bytes_, plainSize);
        kind_ = other.kind_;
    }
    void copyHeld(const Variant& other);
    void moveHeld(Variant& other) noexcept;
    void dropHeld() noexcept;
    void replaceBy(Variant fresh) noexcept;

    alignas(Double) std::byte bytes_[sizeof(String)];
    Kind kind_ = Kind::empty;
};

/// `value` - 1 by the rules of Variant arithmetic: text becomes a Double and a Boolean an Integer;
/// Byte, Integer and Long keep their kind if the result fits and widen if not; Single, Double and Date
/// keep it. Throws as the conversions do.
Variant minusOne(const Variant& value);

/// zeroBased for what is no positive Long.
Long zeroBasedSlow(const Variant& index);

/// The 0-based position that a 1-based `index` names: index - 1 computed on the Variant, then rounded.
inline Long zeroBased(const Variant& index) {
    // Each access to a cell comes through here, nearly always with a Long.
    const Long* held = index.as<Long>();
    return held != nullptr && *held > 0 ? *held - 1 : zeroBasedSlow(index);
}

/// Text to number by the invariant rules: surrounding blanks, a sign, digits with "." as the decimal mark, an
/// exponent with E or D, "&H" and "&O" integers. No group marks. Empty if the text is not a number, or one
/// that a Double cannot hold.
std::optional<Double> numberFromText(StringView text);

/// Text to a date by the invariant rules (documented in docs/conversions.md). Empty if it is not a date.
std::optional<Date> dateFromText(StringView text);

/// 15 significant digits for a Double, 7 for a Single, trailing zeros left out; "1E+15" where that many
/// digits before the point, or behind it, would not do.
String textFromNumber(Double value);
String textFromNumber(Single value);

/// "yyyy-mm-dd", with " hh:mm:ss" unless it is midnight; the time alone on the start day. Rounded to whole
/// seconds. Throws 6 for a moment before the year 100 or past 9999.
String textFromDate(Date value);

} // namespace lumtex
