/// \file
/// The component's entries in the registry.
#pragma once

#include "worlds/win32/windows_api.h"

namespace lumtex {

/// Whose registry: that of all users needs their rights.
enum class Registry { machine, user };

/// Writes all entries; takes back what it wrote where one fails.
HRESULT registerComponent(Registry registry) noexcept;
/// Takes all entries back. One that is missing already is none that fails.
HRESULT unregisterComponent(Registry registry) noexcept;

} // namespace lumtex
