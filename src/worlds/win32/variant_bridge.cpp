#include "worlds/win32/variant_bridge.h"

#include "values/runtime_error.h"
#include "worlds/win32/com_error.h"
#include "worlds/win32/com_ref.h"
#include "worlds/win32/object_bridge.h"
#include "worlds/win32/ole_font.h"
#include "worlds/win32/ole_picture.h"

#include <limits>
#include <type_traits>

namespace lumtex::win32 {

namespace {

Variant narrowed(std::uint32_t value) {
    if (std::in_range<Long>(value))
        return static_cast<Long>(value);
    return static_cast<Double>(value);
}

/// Throws for a number that is none: one with more decimals than there are.
Decimal fromDECIMAL(const DECIMAL& value) {
    constexpr unsigned bitsOfWord = 32;
    if (value.scale > Decimal::mostDecimals || (value.sign & ~DECIMAL_NEG) != 0)
        throw RuntimeError(ErrorNumber::typeMismatch);
    return {{static_cast<std::uint32_t>(value.Lo64),
             static_cast<std::uint32_t>(value.Lo64 >> bitsOfWord),
             static_cast<std::uint32_t>(value.Hi32)},
            value.scale,
            value.sign != 0};
}

Variant fromError(SCODE code) {
    if (code != DISP_E_PARAMNOTFOUND)
        return Unsupported{};
    return Missing{};
}

Variant fromUnknown(IUnknown* object) {
    if (object == nullptr)
        return ObjectRef();
    if (queryFor<IPicture>(object))
        return pictureFrom(queryFor<IPictureDisp>(object).get());
    if (queryFor<IFont>(object))
        return fontFrom(queryFor<IFontDisp>(object).get());
    const auto dispatch = queryFor<IDispatch>(object);
    if (!dispatch)
        throw RuntimeError(ErrorNumber::typeMismatch);
    return objectFrom(dispatch.get());
}

VARIANT empty(VARTYPE type) {
    VARIANT value;
    VariantInit(&value);
    V_VT(&value) = type;
    return value;
}

VARIANT ofDispatch(IDispatch* owned) {
    VARIANT value = empty(VT_DISPATCH);
    V_DISPATCH(&value) = owned;
    return value;
}

struct ToVARIANT {
    VARIANT operator()(std::monostate) const { return empty(VT_EMPTY); }
    VARIANT operator()(Null) const { return empty(VT_NULL); }
    VARIANT operator()(Missing) const {
        VARIANT value = empty(VT_ERROR);
        V_ERROR(&value) = DISP_E_PARAMNOTFOUND;
        return value;
    }
    VARIANT operator()(Unsupported) const { throw RuntimeError(ErrorNumber::typeMismatch); }
    VARIANT operator()(bool held) const {
        VARIANT value = empty(VT_BOOL);
        V_BOOL(&value) = held ? VARIANT_TRUE : VARIANT_FALSE;
        return value;
    }
    VARIANT operator()(Byte held) const {
        VARIANT value = empty(VT_UI1);
        V_UI1(&value) = held;
        return value;
    }
    VARIANT operator()(Integer held) const {
        VARIANT value = empty(VT_I2);
        V_I2(&value) = held;
        return value;
    }
    VARIANT operator()(Long held) const {
        VARIANT value = empty(VT_I4);
        V_I4(&value) = held;
        return value;
    }
    VARIANT operator()(Single held) const {
        VARIANT value = empty(VT_R4);
        V_R4(&value) = held;
        return value;
    }
    VARIANT operator()(Double held) const {
        VARIANT value = empty(VT_R8);
        V_R8(&value) = held;
        return value;
    }
    VARIANT operator()(LongLong held) const {
        VARIANT value = empty(VT_I8);
        V_I8(&value) = held.value;
        return value;
    }
    VARIANT operator()(UnsignedLongLong held) const {
        VARIANT value = empty(VT_UI8);
        V_UI8(&value) = held.value;
        return value;
    }
    VARIANT operator()(Currency held) const {
        VARIANT value = empty(VT_CY);
        V_CY(&value).int64 = held.tenThousandths;
        return value;
    }
    VARIANT operator()(const Decimal& held) const {
        VARIANT value;
        VariantInit(&value);
        // The number fills the whole value, the place of its kind too.
        V_DECIMAL(&value) = toDECIMAL(held);
        V_VT(&value) = VT_DECIMAL;
        return value;
    }
    VARIANT operator()(Date held) const {
        VARIANT value = empty(VT_DATE);
        V_DATE(&value) = held.days;
        return value;
    }
    VARIANT operator()(const String& held) const {
        VARIANT value = empty(VT_BSTR);
        V_BSTR(&value) = newBSTR(held);
        return value;
    }
    VARIANT operator()(const ObjectRef& held) const { return ofDispatch(toIDispatch(held).detach()); }
    VARIANT operator()(const PictureRef& held) const {
        return ofDispatch(toIPicture(held).as<IDispatch>().detach());
    }
    VARIANT operator()(const FontRef& held) const {
        return ofDispatch(toIFont(held).as<IDispatch>().detach());
    }
};

} // namespace

DECIMAL toDECIMAL(const Decimal& value) {
    constexpr unsigned bitsOfWord = 32;
    DECIMAL number{};
    number.Lo64 = value.words[0] | (std::uint64_t{value.words[1]} << bitsOfWord);
    number.Hi32 = value.words[2];
    number.scale = value.scale;
    number.sign = value.negative ? DECIMAL_NEG : 0;
    return number;
}

BSTR newBSTR(StringView text) {
    BSTR copy =
        text.size() <= std::numeric_limits<UINT>::max() / 2 - sizeof(text.size())
            ? SysAllocStringLen(reinterpret_cast<const wchar_t*>(text.data()), static_cast<UINT>(text.size()))
            : nullptr;
    if (copy == nullptr)
        throw RuntimeError(ErrorNumber::outOfMemory);
    return copy;
}

StringView viewBSTR(BSTR text) {
    return textOf(text, SysStringLen(text));
}

const VARIANT& endOfReferences(const VARIANT& value) {
    constexpr int longestChain = 64;
    const VARIANT* last = &value;
    for (int i = 0; i < longestChain && V_VT(last) == (VT_BYREF | VT_VARIANT) && V_BYREF(last) != nullptr;
         ++i)
        last = V_VARIANTREF(last);
    return *last;
}

Variant fromVARIANT(const VARIANT& value) {
    if ((V_VT(&value) & VT_ARRAY) != 0)
        return Unsupported{};
    if (V_ISBYREF(&value)) {
        const VARIANT& last = endOfReferences(value);
        if (!V_ISBYREF(&last))
            return fromVARIANT(last);
        if (V_BYREF(&last) == nullptr || V_VT(&last) == (VT_BYREF | VT_VARIANT))
            throw RuntimeError(ErrorNumber::typeMismatch);
        OwnedVARIANT direct;
        demand(VariantCopyInd(direct.out(), const_cast<VARIANT*>(&last)));
        return fromVARIANT(direct.get());
    }
    switch (V_VT(&value)) {
    case VT_EMPTY:
        return {};
    case VT_NULL:
        return Null{};
    case VT_ERROR:
        return fromError(V_ERROR(&value));
    case VT_BOOL:
        return V_BOOL(&value) != VARIANT_FALSE;
    case VT_I1:
        return static_cast<Integer>(static_cast<signed char>(V_I1(&value)));
    case VT_UI1:
        return static_cast<Byte>(V_UI1(&value));
    case VT_I2:
        return static_cast<Integer>(V_I2(&value));
    case VT_UI2:
        return static_cast<Long>(V_UI2(&value));
    case VT_I4:
    case VT_INT:
        return static_cast<Long>(V_I4(&value));
    case VT_UI4:
    case VT_UINT:
        return narrowed(static_cast<std::uint32_t>(V_UI4(&value)));
    case VT_I8:
        return LongLong{V_I8(&value)};
    case VT_UI8:
        return UnsignedLongLong{V_UI8(&value)};
    case VT_R4:
        return V_R4(&value);
    case VT_R8:
        return V_R8(&value);
    case VT_CY:
        return Currency{V_CY(&value).int64};
    case VT_DECIMAL:
        return fromDECIMAL(V_DECIMAL(&value));
    case VT_DATE:
        return Date{V_DATE(&value)};
    case VT_BSTR:
        return String(viewBSTR(V_BSTR(&value)));
    case VT_RECORD:
        return Unsupported{};
    case VT_DISPATCH:
        return fromUnknown(V_DISPATCH(&value));
    case VT_UNKNOWN:
        return fromUnknown(V_UNKNOWN(&value));
    default:
        throw RuntimeError(ErrorNumber::typeMismatch);
    }
}

OwnedVARIANT toVARIANT(const Variant& value) {
    return OwnedVARIANT(value.visit(ToVARIANT{}));
}

} // namespace lumtex::win32
