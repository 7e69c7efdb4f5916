/// \file
/// Variants on their way to a parameter of the control, and back.
#pragma once

#include "automation/type_info.h"
#include "values/variant_conversion.h"

#include <type_traits>

namespace lumtex::automation::detail {

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

} // namespace lumtex::automation::detail
