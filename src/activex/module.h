/// \file
/// The component's module: its file, its type library.
#pragma once

#include "worlds/win32/com_ref.h"

#include <oaidl.h>

namespace lumtex::win32 {

HINSTANCE moduleInstance();
/// The component's own file, with its path.
String modulePath();

/// The type library inside the module. Throws the RuntimeError of a library that cannot be loaded.
ComRef<ITypeLib> typeLibrary();
/// A type of it by its identifier.
ComRef<ITypeInfo> typeInfoOf(const GUID& guid);

} // namespace lumtex::win32
