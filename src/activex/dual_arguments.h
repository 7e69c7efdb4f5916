/// \file
/// Arguments of calls through the table of functions, to and from the control's own values.
#pragma once

#include "activex/argument_bridge.h"
#include "activex/spare_text.h"
#include "automation/argument_list.h"
#include "worlds/win32/variant_bridge.h"

#include <memory_resource>
#include <vector>

namespace lumtex::win32 {

/// The record as early-bound callers know it.
struct FindResultsRecord {
    VARIANT_BOOL FindSuccessful = VARIANT_FALSE;
    long FindRow = 0;
    long FindColumn = 0;
};

/// For calls that give nothing.
struct NoResult {};
inline constexpr NoResult noResult{};

// A value as the control takes it. A Boolean comes as the Integer that it is; a null text is the empty one.
// These throw NullArgument for a pointer to nothing.

Variant dualArgument(const VARIANT& value);
Variant dualArgument(BSTR text);
inline Variant dualArgument(short value) {
    return static_cast<Integer>(value);
}
inline Variant dualArgument(long value) {
    return static_cast<Long>(value);
}
inline Variant dualArgument(OLE_COLOR color) {
    return color;
}
inline Variant dualArgument(float value) {
    return value;
}
Variant dualArgument(IDispatch* object);
inline Variant dualArgument(IPictureDisp* picture) {
    return dualArgument(static_cast<IDispatch*>(picture));
}
inline Variant dualArgument(IFontDisp* font) {
    return dualArgument(static_cast<IDispatch*>(font));
}
template <class T>
Variant dualArgument(T* place) {
    if (place == nullptr)
        throw NullArgument();
    return dualArgument(*place);
}

/// Appends one argument, or each item of an array. A null array has no items.
template <class T>
void appendArgument(std::pmr::vector<Variant>& arguments, T value, SpareText& /*spare*/) {
    arguments.push_back(dualArgument(value));
}
void appendArgument(std::pmr::vector<Variant>& arguments, BSTR text, SpareText& spare);
void appendArgument(std::pmr::vector<Variant>& arguments, SAFEARRAY* list, SpareText& spare);

/// The arguments of one call, from the caller's values.
class DualArguments {
  public:
    template <class... Values>
    explicit DualArguments(SpareText& spare, Values... values) : spare_(spare) {
        (appendArgument(list_.values(), values, spare), ...);
    }
    DualArguments(const DualArguments&) = delete;
    DualArguments& operator=(const DualArguments&) = delete;
    ~DualArguments() { spare_.takeFrom(list_.values()); }

    automation::ArgumentList& list() { return list_; }

  private:
    SpareText& spare_;
    automation::ArgumentList list_;
};

// What the control gave, put to where a caller wants it. What stood there before is not freed.

inline void storeResult(const Variant& value, short& place) {
    place = value.toInteger();
}
inline void storeResult(const Variant& value, long& place) {
    place = value.toLong();
}
inline void storeResult(const Variant& value, OLE_COLOR& place) {
    place = value.toColor();
}
inline void storeResult(const Variant& value, float& place) {
    place = value.toSingle();
}
void storeResult(const Variant& value, BSTR& place);
void storeResult(const Variant& value, VARIANT& place);
void storeResult(const Variant& value, IDispatch*& place);
void storeResult(const Variant& value, IPictureDisp*& place);
void storeResult(const Variant& value, IFontDisp*& place);
void storeResult(const Variant& value, FindResultsRecord& place);

/// Puts what the control left in a by-reference argument to where it came from; nothing for a value.
template <class T>
void storeBack(const Variant& /*value*/, T /*argument*/) {}
void storeBack(const Variant& value, VARIANT* argument);
void storeBack(const Variant& value, BSTR* argument);
void storeBack(const Variant& value, long* argument);

} // namespace lumtex::win32
