/// Typed arguments and results.
#include "activex/dual_arguments.h"

#include "values/runtime_error.h"
#include "worlds/win32/com_error.h"
#include "worlds/win32/com_ref.h"
#include "worlds/win32/write_back.h"

#include <utility>

namespace lumtex::win32 {

namespace {

/// None for an empty reference.
template <class Interface>
Interface* objectIn(const Variant& value) {
    if (value.isEmpty())
        return nullptr;
    const OwnedVARIANT held = toVARIANT(value);
    if (V_VT(&held.get()) != VT_DISPATCH)
        throw RuntimeError(ErrorNumber::typeMismatch);
    return queryFor<Interface>(V_DISPATCH(&held.get())).detach();
}

} // namespace

Variant dualArgument(const VARIANT& value) {
    return argumentFrom(value);
}

Variant dualArgument(BSTR text) {
    return String(viewBSTR(text));
}

Variant dualArgument(IDispatch* object) {
    VARIANT value;
    VariantInit(&value);
    V_VT(&value) = VT_DISPATCH;
    V_DISPATCH(&value) = object;
    return fromVARIANT(value);
}

void appendArgument(std::pmr::vector<Variant>& arguments, BSTR text, SpareText& spare) {
    arguments.push_back(spare.copyOf(viewBSTR(text)));
}

void appendArgument(std::pmr::vector<Variant>& arguments, SAFEARRAY* list, SpareText& /*spare*/) {
    if (list == nullptr)
        return;
    if (SafeArrayGetDim(list) != 1)
        throw RuntimeError(ErrorNumber::typeMismatch);
    LONG first = 0;
    LONG last = -1;
    demand(SafeArrayGetLBound(list, 1, &first));
    demand(SafeArrayGetUBound(list, 1, &last));
    for (LONG i = first; i <= last; ++i) {
        OwnedVARIANT item;
        demand(SafeArrayGetElement(list, &i, item.out()));
        arguments.push_back(argumentFrom(item.get()));
    }
}

void storeResult(const Variant& value, BSTR& place) {
    const String* const text = value.text();
    place = text != nullptr ? newBSTR(*text) : newBSTR(value.toText());
}

void storeResult(const Variant& value, VARIANT& place) {
    place = toVARIANT(value).release();
}

void storeResult(const Variant& value, IDispatch*& place) {
    place = objectIn<IDispatch>(value);
}

void storeResult(const Variant& value, IPictureDisp*& place) {
    place = objectIn<IPictureDisp>(value);
}

void storeResult(const Variant& value, IFontDisp*& place) {
    place = objectIn<IFontDisp>(value);
}

void storeResult(const Variant& value, FindResultsRecord& place) {
    const ObjectRef record = value.toObject();
    place.FindSuccessful = record->get(u"FindSuccessful").toBoolean() ? VARIANT_TRUE : VARIANT_FALSE;
    place.FindRow = record->get(u"FindRow").toLong();
    place.FindColumn = record->get(u"FindColumn").toLong();
}

void storeBack(const Variant& value, VARIANT* argument) {
    // Most are places of rows that come back as the kind of number that they were.
    if (const Long* const number = value.as<Long>(); number != nullptr && V_VT(argument) == VT_I4) {
        V_I4(argument) = *number;
        return;
    }
    VARIANT place;
    VariantInit(&place);
    V_VT(&place) = VT_BYREF | VT_VARIANT;
    V_VARIANTREF(&place) = argument;
    // An argument that was left out has no variable behind it.
    if (V_VT(argument) != VT_ERROR)
        writeBack(value, place);
}

void storeBack(const Variant& value, BSTR* argument) {
    SysFreeString(std::exchange(*argument, newBSTR(value.toText())));
}

void storeBack(const Variant& value, long* argument) {
    *argument = value.toLong();
}

} // namespace lumtex::win32
