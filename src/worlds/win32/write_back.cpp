#include "worlds/win32/write_back.h"

#include "values/runtime_error.h"
#include "worlds/win32/com_error.h"
#include "worlds/win32/variant_bridge.h"

#include <cstring>
#include <utility>

namespace lumtex::win32 {

namespace {

/// Of a type that holds nothing to be freed; 0 for any other one.
std::size_t plainSize(VARTYPE type) {
    switch (type) {
    case VT_I1:
    case VT_UI1:
        return 1;
    case VT_I2:
    case VT_UI2:
    case VT_BOOL:
        return 2;
    case VT_I4:
    case VT_UI4:
    case VT_INT:
    case VT_UINT:
    case VT_R4:
        return 4;
    case VT_I8:
    case VT_UI8:
    case VT_R8:
    case VT_CY:
    case VT_DATE:
        return 8;
    default:
        return 0;
    }
}

template <class T>
void replace(T*& place, T* fresh) {
    T* const old = std::exchange(place, fresh);
    if (old != nullptr)
        old->Release();
}

void writeToVariant(OwnedVARIANT fresh, VARIANT& place) {
    VariantClear(&place);
    place = fresh.release();
}

} // namespace

void writeBack(const Variant& value, VARIANT& argument, LCID locale) {
    if (!V_ISBYREF(&argument) || value.isUnsupported())
        return;
    const auto type = static_cast<VARTYPE>(V_VT(&argument) & ~VT_BYREF);
    if (type == VT_VARIANT) {
        auto& place = const_cast<VARIANT&>(endOfReferences(argument));
        if (V_VT(&place) == (VT_BYREF | VT_VARIANT))
            throw RuntimeError(ErrorNumber::typeMismatch);
        if (V_ISBYREF(&place))
            writeBack(value, place, locale);
        else
            writeToVariant(toVARIANT(value), place);
        return;
    }
    OwnedVARIANT fresh = toVARIANT(value);
    demand(VariantChangeTypeEx(&fresh.get(), &fresh.get(), locale, 0, type));
    switch (type) {
    case VT_BSTR:
        SysFreeString(std::exchange(*V_BSTRREF(&argument), V_BSTR(&fresh.get())));
        fresh.release();
        return;
    case VT_DISPATCH:
        replace(*V_DISPATCHREF(&argument), V_DISPATCH(&fresh.get()));
        fresh.release();
        return;
    case VT_UNKNOWN:
        replace(*V_UNKNOWNREF(&argument), V_UNKNOWN(&fresh.get()));
        fresh.release();
        return;
    case VT_DECIMAL:
        *V_DECIMALREF(&argument) = V_DECIMAL(&fresh.get());
        V_DECIMALREF(&argument)->wReserved = 0; // where the Variant kept its type
        return;
    default:
        break;
    }
    const std::size_t size = plainSize(type);
    if (size == 0)
        throw RuntimeError(ErrorNumber::typeMismatch);
    std::memcpy(V_BYREF(&argument), &V_I8(&fresh.get()), size);
}

} // namespace lumtex::win32
