#include "platform/property_bag.h"

#include "values/text.h"

#include <algorithm>

namespace lumtex {

namespace {

bool isNumber(const Variant& value) {
    return !value.isEmpty() && !value.isString() && value.isNumeric();
}

bool isNothing(const Variant& value) {
    return value.visit([](const auto& held) {
        if constexpr (requires { held == nullptr; })
            return held == nullptr;
        else
            return false;
    });
}

} // namespace

bool sameValue(const Variant& a, const Variant& b) {
    const FontRef* const font = a.as<FontRef>();
    const FontRef* const other = b.as<FontRef>();
    if (font != nullptr && other != nullptr && *font && *other)
        return (*font)->spec == (*other)->spec;
    if (isNumber(a) && isNumber(b))
        return a.toDouble() == b.toDouble();
    return a == b || (isNothing(a) && isNothing(b));
}

Variant MemoryPropertyBag::ReadProperty(StringView name, const Variant& defaultValue) const {
    for (const Entry& entry : entries_) {
        if (sameName(entry.name, name))
            return entry.value;
    }
    return defaultValue;
}

void MemoryPropertyBag::WriteProperty(StringView name, const Variant& value, const Variant& defaultValue) {
    const auto found = std::find_if(
        entries_.begin(), entries_.end(), [&](const Entry& entry) { return sameName(entry.name, name); });
    if (sameValue(value, defaultValue)) {
        if (found != entries_.end())
            entries_.erase(found);
    } else if (found != entries_.end()) {
        found->value = value;
    } else {
        entries_.push_back({String(name), value});
    }
}

} // namespace lumtex
