/// \file
/// Late binding in both directions: objects of the host as ours, and ours as the host's.
#pragma once

#include "values/references/object.h"
#include "worlds/win32/com_ref.h"

namespace lumtex::win32 {

/// An object of the host. Keeps a reference to `dispatch`; null for null.
///
/// Members are found by name without regard to case, also in objects of script languages. `call` passes its
/// arguments by reference and reads them back; `get` and `put` pass values.
ObjectRef objectFrom(IDispatch* dispatch);

/// The very object of the host if `object` came from one, otherwise one that answers late-bound calls with
/// `object`'s members. Null for null.
ComRef<IDispatch> toIDispatch(const ObjectRef& object);

} // namespace lumtex::win32
