/// \file
/// A bag that keeps whatever is written into it.
#pragma once

#include "platform/property_bag.h"
#include "values/runtime_error.h"

#include <vector>

namespace lumtex::testing {

/// Keeps values that equal their default too.
class NosyBag final : public PropertyBag {
  public:
    Variant ReadProperty(StringView, const Variant& defaultValue) const override { return defaultValue; }
    void WriteProperty(StringView name, const Variant& value, const Variant& defaultValue) override {
        names.emplace_back(name);
        values.push_back(value);
        defaults.push_back(defaultValue);
        if (name == refused)
            throw RuntimeError(ErrorNumber::outOfMemory);
    }

    std::vector<String> names;
    std::vector<Variant> values;
    std::vector<Variant> defaults;
    String refused; ///< a key that cannot be written
};

} // namespace lumtex::testing
