#include "activex/argument_bridge.h"

#include "worlds/win32/variant_bridge.h"

namespace lumtex::win32 {

Variant argumentFrom(const VARIANT& value) {
    const VARIANT& last = endOfReferences(value);
    if (V_ISBYREF(&last) && V_BYREF(&last) == nullptr)
        throw NullArgument();
    return fromVARIANT(last);
}

} // namespace lumtex::win32
