/// \file
/// Reading the settings store as text.
#pragma once

#include "platform/runtime.h"

namespace lumtex {

/// The text of a setting, or the digits of a number; empty for one of another type.
String textOfSetting(const StoredSetting& stored);

/// The text of a value, or the digits of a number; empty for a value that is not there, is of another type,
/// or is longer than 1024 bytes. Looks at the store anew each time.
String RegistryValue(const Runtime& runtime, std::uint32_t hive, StringView key, StringView valueName);

} // namespace lumtex
