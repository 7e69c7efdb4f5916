/// \file
/// The component's module: its counts, its file, its type library.
#pragma once

#include "platform/win32/com_ref.h"

#include <oaidl.h>

namespace lumtex {

/// Keeps the module in memory. Every object that a host can hold has one, and so has each lock of the host.
class ModuleLock {
  public:
    ModuleLock() noexcept;
    ModuleLock(const ModuleLock& /*other*/) noexcept : ModuleLock() {}
    ModuleLock& operator=(const ModuleLock&) = default;
    ~ModuleLock();
};

/// Whether no ModuleLock is left, and nothing else of ours that a host holds.
bool moduleIsIdle() noexcept;

HINSTANCE moduleInstance();
/// The component's own file, with its path.
String modulePath();

/// The type library inside the module. Throws the RuntimeError of a library that cannot be loaded.
ComRef<ITypeLib> typeLibrary();
/// A type of it by its identifier.
ComRef<ITypeInfo> typeInfoOf(const GUID& guid);

} // namespace lumtex
