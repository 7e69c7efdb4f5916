/// Arguments and the places that they came from.
#include "activex/argument_bridge.h"

#include "platform/runtime_error.h"
#include "platform/win32/com_error.h"

#include <cstring>
#include <utility>

namespace lumtex {

namespace {

template <class T>
void exchange(T*& place, T* fresh) {
    T* const old = std::exchange(place, fresh);
    if (old != nullptr)
        old->Release();
}

} // namespace

Variant argumentFrom(const VARIANT& value) {
    if (V_ISBYREF(&value) && V_BYREF(&value) == nullptr)
        throw NullArgument();
    if (V_VT(&value) == (VT_BYREF | VT_VARIANT))
        return argumentFrom(*V_VARIANTREF(&value));
    return fromVARIANT(value);
}

void writeBack(const Variant& value, VARIANT& argument) {
    if (!V_ISBYREF(&argument))
        return;
    OwnedVARIANT fresh = toVARIANT(value);
    if (V_VT(&argument) == (VT_BYREF | VT_VARIANT)) {
        VARIANT* const place = V_VARIANTREF(&argument);
        if (V_ISBYREF(place)) {
            writeBack(value, *place);
            return;
        }
        VariantClear(place);
        *place = fresh.release();
        return;
    }
    const auto type = static_cast<VARTYPE>(V_VT(&argument) & ~VT_BYREF);
    demand(VariantChangeType(&fresh.get(), &fresh.get(), 0, type));
    switch (type) {
    case VT_BSTR:
        SysFreeString(std::exchange(*V_BSTRREF(&argument), V_BSTR(&fresh.get())));
        fresh.release();
        return;
    case VT_DISPATCH:
        exchange(*V_DISPATCHREF(&argument), V_DISPATCH(&fresh.get()));
        fresh.release();
        return;
    case VT_UI1:
        *V_UI1REF(&argument) = V_UI1(&fresh.get());
        return;
    case VT_I2:
    case VT_BOOL:
        *V_I2REF(&argument) = V_I2(&fresh.get());
        return;
    case VT_I4:
    case VT_INT:
    case VT_UI4:
    case VT_R4:
        std::memcpy(V_BYREF(&argument), &V_I4(&fresh.get()), sizeof(LONG));
        return;
    case VT_R8:
    case VT_DATE:
    case VT_I8:
        std::memcpy(V_BYREF(&argument), &V_R8(&fresh.get()), sizeof(double));
        return;
    default:
        throw RuntimeError(typeMismatch);
    }
}

} // namespace lumtex
