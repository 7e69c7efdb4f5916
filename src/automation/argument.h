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
            from_ = toVariant(std::move(value_));
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

/// A text is read where it lies: nobody but the call has the arguments.
template <>
class Argument<StringView> {
  public:
    explicit Argument(std::span<Variant> all, std::size_t position) {
        if (const String* text = all[position].text())
            view_ = *text;
        else
            view_ = converted_ = all[position].toText();
    }
    Argument(const Argument&) = delete;
    Argument& operator=(const Argument&) = delete;
    ~Argument() = default;

    StringView pass() { return view_; }
    void writeBack() {}

  private:
    String converted_;
    StringView view_;
};

template <>
class Argument<std::optional<StringView>> {
  public:
    explicit Argument(std::span<Variant> all, std::size_t position) {
        if (!all[position].isMissing())
            text_.emplace(all, position);
    }

    std::optional<StringView> pass() { return text_ ? std::optional(text_->pass()) : std::nullopt; }
    void writeBack() {}

  private:
    std::optional<Argument<StringView>> text_;
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
