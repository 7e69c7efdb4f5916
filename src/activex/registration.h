/// \file
/// The component's entries in the registry.
#pragma once

#include "worlds/win32/windows_api.h"

namespace lumtex::win32 {

/// Whose registry; the one of all users needs the rights to write there.
enum class Registry { machine, user };

/// Writes all entries; takes back what it wrote if one fails.
HRESULT registerComponent(Registry registry) noexcept;
/// Takes all entries back. A missing one is not a failure.
HRESULT unregisterComponent(Registry registry) noexcept;

} // namespace lumtex::win32
