/// \file
/// What the list holds of its host's.
#pragma once

#include "guards/release_bin.h"
#include "values/variant.h"

#include <type_traits>
#include <utility>

namespace lumtex {

namespace detail {

/// The reference inside, or null if the value holds no object.
template <class T>
ReleaseBin::Reference referenceIn(T&& reference) noexcept {
    return std::forward<T>(reference);
}
inline ReleaseBin::Reference referenceIn(Variant&& value) noexcept {
    ReleaseBin::Reference reference;
    if (value.isObject())
        value.visit([&]<class T>(const T& held) {
            if constexpr (std::is_convertible_v<T, ReleaseBin::Reference>)
                reference = held;
        });
    return reference;
}
template <class T>
bool holdsReference(const T& reference) noexcept {
    return reference != nullptr;
}
inline bool holdsReference(const Variant& value) noexcept {
    return value.isObject();
}

} // namespace detail

/// A reference to an object of the host, or a Variant that may hold one, as a field of the list. What it held
/// goes to the thread's ReleaseBin, never directly, so that overwriting the field, or dropping it, runs no
/// host code.
///
/// Taking an object in makes room in the bin and may throw std::bad_alloc; the field is as it was then.
/// Letting go never needs memory.
template <class T>
class Held {
  public:
    Held() = default;
    template <class Value>
    requires(std::is_convertible_v<Value, T> && !std::is_same_v<Value, Held>) Held(Value value)
        : value_(std::move(value)) { // stands for its value
        if (detail::holdsReference(value_))
            ReleaseBin::ofThread().reserve();
    }
    Held(const Held& other) : Held(other.value_) {}
    Held(Held&& other) noexcept : value_(std::exchange(other.value_, T())) {}
    /// Leaves `other` with what was here.
    Held& operator=(Held&& other) noexcept {
        std::swap(value_, other.value_);
        return *this;
    }
    Held& operator=(const Held& other) {
        if (this != &other)
            *this = Held(other);
        return *this;
    }
    ~Held() { drop(); }

    const T& get() const { return value_; }
    operator const T&() const { return value_; }
    const T& operator->() const { return value_; }
    decltype(auto) operator*() const { return *value_; }
    explicit operator bool() const { return static_cast<bool>(value_); }

    bool operator==(const Held& other) const { return value_ == other.value_; }

  private:
    void drop() noexcept {
        if (detail::holdsReference(value_))
            ReleaseBin::ofThread().take(detail::referenceIn(std::exchange(value_, T())));
    }

    T value_;
};

/// Assigns to an argument of the caller's. What it held goes to the bin: the caller's object may be the last
/// of its kind.
inline void writeBack(Variant& argument, Variant value) {
    Held<Variant> before(argument);
    argument = std::move(value);
}

/// The type of a field's value, which for what is held is the reference itself.
template <class T>
struct ValueOfField {
    using Type = T;
};
template <class T>
struct ValueOfField<Held<T>> {
    using Type = T;
};
template <class T>
using ValueOf = typename ValueOfField<T>::Type;

} // namespace lumtex
