/// \file
/// Variants on their way to a parameter of the control, and back.
#pragma once

#include "automation/type_info.h"

#include <type_traits>

namespace lumtex::detail {

/// Throws as the conversions of Variant do.
template <class T>
T fromVariant(const Variant& value) {
    if constexpr (std::is_same_v<T, Variant>)
        return value;
    else if constexpr (std::is_same_v<T, bool>)
        return value.toBoolean();
    else if constexpr (std::is_same_v<T, Integer>)
        return value.toInteger();
    else if constexpr (std::is_same_v<T, Long>)
        return value.toLong();
    else if constexpr (std::is_same_v<T, Single>)
        return value.toSingle();
    else if constexpr (std::is_same_v<T, OLE_COLOR>)
        return value.toColor();
    else if constexpr (std::is_same_v<T, String>)
        return value.toText();
    else if constexpr (std::is_same_v<T, PictureRef>)
        return value.toPicture();
    else if constexpr (std::is_same_v<T, FontRef>)
        return value.toFont();
    else if constexpr (std::is_same_v<T, ObjectRef>) {
        // Nothing is a value of its own here, not a failure.
        const ObjectRef* held = value.as<ObjectRef>();
        return value.isEmpty() || (held != nullptr && !*held) ? nullptr : value.toObject();
    } else {
        static_assert(std::is_enum_v<T>, "a type that the interface does not know");
        return static_cast<T>(value.toLong());
    }
}

template <class T>
Variant toVariant(const T& value) {
    if constexpr (std::is_enum_v<T>)
        return static_cast<Long>(value);
    else
        return value;
}

/// Holds the value of a parameter for the time of a call. `T` is the type as the function declares it.
template <class T>
class Argument {
  public:
    explicit Argument(std::span<Variant> all, std::size_t position)
        : from_(all[position]), value_(fromVariant<Value>(from_)) {}

    T pass() { return static_cast<T>(value_); }
    void writeBack() {
        if constexpr (travelsBack<T>)
            from_ = toVariant(value_);
    }

  private:
    using Value = std::remove_cvref_t<T>;

    Variant& from_;
    Value value_;
};

/// A Variant goes to the control as the caller's own.
template <class T>
requires std::is_same_v<std::remove_cvref_t<T>, Variant>
class Argument<T> {
  public:
    explicit Argument(std::span<Variant> all, std::size_t position) : from_(all[position]) {}

    Variant& pass() { return from_; }
    void writeBack() {}

  private:
    Variant& from_;
};

template <>
class Argument<StringView> {
  public:
    explicit Argument(std::span<Variant> all, std::size_t position) : text_(all[position].toText()) {}

    StringView pass() { return text_; }
    void writeBack() {}

  private:
    String text_;
};

template <>
class Argument<std::optional<StringView>> {
  public:
    explicit Argument(std::span<Variant> all, std::size_t position) {
        if (!all[position].isMissing())
            text_ = all[position].toText();
    }

    std::optional<StringView> pass() { return text_; }
    void writeBack() {}

  private:
    std::optional<String> text_;
};

/// All arguments from here to the end.
template <>
class Argument<std::span<const Variant>> {
  public:
    explicit Argument(std::span<Variant> all, std::size_t position) : rest_(all.subspan(position)) {}

    std::span<const Variant> pass() { return rest_; }
    void writeBack() {}

  private:
    std::span<const Variant> rest_;
};

} // namespace lumtex::detail
