/// Values to and from a container's bag.
#include "activex/host_property_bag.h"

#include "values/runtime_error.h"
#include "worlds/win32/com_error.h"
#include "worlds/win32/variant_bridge.h"

namespace lumtex::win32 {

namespace {

/// Whether a bag that did not give a value has it nevertheless, and could not convert it. Bags say in more
/// ways than one that a name is missing, and one of these is what others say of a conversion.
bool couldNotConvert(IPropertyBag& bag, const wchar_t* name, HRESULT result) {
    if (SUCCEEDED(result) || result == E_INVALIDARG)
        return false;
    if (result == DISP_E_TYPEMISMATCH || result == DISP_E_OVERFLOW || result == DISP_E_BADVARTYPE)
        return true;
    OwnedVARIANT asItIs;
    return SUCCEEDED(bag.Read(name, &asItIs.get(), nullptr)) && V_VT(&asItIs.get()) != VT_EMPTY;
}

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
    String key(name);
    const HRESULT read = bag_.Read(wide(key.data()), &value.get(), log_);
    if (couldNotConvert(bag_, wide(key.data()), read))
        throw RuntimeError(read == DISP_E_OVERFLOW ? ErrorNumber::overflow : ErrorNumber::typeMismatch);
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

} // namespace lumtex::win32
