/// Values to and from a container's bag.
#include "activex/host_property_bag.h"

#include "platform/win32/com_error.h"
#include "platform/win32/variant_bridge.h"

namespace lumtex {

namespace {

/// What the bag shall give: it converts texts, and makes objects, by the type that it is asked for.
VARTYPE typeOfDefault(const Variant& defaultValue) {
    if (defaultValue.isObject())
        return VT_UNKNOWN;
    return V_VT(&toVARIANT(defaultValue).get());
}

} // namespace

Variant HostPropertyBag::ReadProperty(StringView name, const Variant& defaultValue) const {
    OwnedVARIANT value;
    V_VT(&value.get()) = typeOfDefault(defaultValue);
    if (V_VT(&value.get()) == VT_UNKNOWN)
        V_UNKNOWN(&value.get()) = nullptr;
    const HRESULT read = bag_.Read(wide(String(name)), &value.get(), log_);
    // A bag says that a name is missing in more ways than one.
    if (FAILED(read) || V_VT(&value.get()) == VT_EMPTY)
        return defaultValue;
    return fromVARIANT(value.get());
}

void HostPropertyBag::WriteProperty(StringView name, const Variant& value, const Variant& defaultValue) {
    MemoryPropertyBag rule;
    rule.WriteProperty(name, value, defaultValue);
    if (rule.entries().empty() && !everything_)
        return;
    OwnedVARIANT held = toVARIANT(value);
    if (value.isObject() && V_DISPATCH(&held.get()) == nullptr)
        return;
    demand(bag_.Write(wide(String(name)), &held.get()));
}

} // namespace lumtex
