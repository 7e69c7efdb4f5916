/// \file
/// A bag of named values. A value equal to its default is not stored.
#pragma once

#include "values/variant.h"

namespace lumtex {

/// The host's bag, or one in memory. Names compare without regard to case.
class PropertyBag {
  public:
    PropertyBag() = default;
    PropertyBag(const PropertyBag&) = delete;
    PropertyBag& operator=(const PropertyBag&) = delete;
    virtual ~PropertyBag() = default;

    /// The value stored under `name`, or `defaultValue` if there is none.
    virtual Variant ReadProperty(StringView name, const Variant& defaultValue) const = 0;
    /// Stores `value`, or removes the name if the value equals the default (see `sameValue`).
    virtual void WriteProperty(StringView name, const Variant& value, const Variant& defaultValue) = 0;
};

/// How bags compare a value with its default: numbers and Booleans by value, fonts by their attributes,
/// other objects by identity, and an empty reference equals any other.
bool sameValue(const Variant& a, const Variant& b);

/// Keeps its values in the order in which they were first written.
class MemoryPropertyBag final : public PropertyBag {
  public:
    struct Entry {
        String name;
        Variant value;
    };

    Variant ReadProperty(StringView name, const Variant& defaultValue) const override;
    void WriteProperty(StringView name, const Variant& value, const Variant& defaultValue) override;

    const std::vector<Entry>& entries() const { return entries_; }

  private:
    std::vector<Entry> entries_;
};

} // namespace lumtex
