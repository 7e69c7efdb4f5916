/// \file
/// Variants to and from types that are known when the code is compiled.
#pragma once

#include "values/variant.h"

#include <type_traits>
#include <utility>

namespace lumtex {

/// The value as a `T`. Throws as the conversions of Variant do; nothing is an object of its own, not a
/// failure.
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
        const ObjectRef* held = value.as<ObjectRef>();
        return value.isEmpty() || (held != nullptr && !*held) ? nullptr : value.toObject();
    } else {
        static_assert(std::is_enum_v<T>, "a type that no Variant converts to");
        return static_cast<T>(value.toLong());
    }
}

/// An enumeration travels as a Long.
template <class T>
Variant toVariant(T value) {
    if constexpr (std::is_enum_v<T>)
        return static_cast<Long>(value);
    else
        return Variant(std::move(value));
}

} // namespace lumtex
