/// \file
/// Makes the objects of the public classes.
#pragma once

#include "worlds/win32/windows_api.h"

namespace lumtex::win32 {

/// The factory of a class by its identifier: CLASS_E_CLASSNOTAVAILABLE for one that is not the component's.
/// The control alone can live inside another object.
HRESULT classFactory(const CLSID& classId, REFIID iid, void** found) noexcept;

} // namespace lumtex::win32
