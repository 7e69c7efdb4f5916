/// \file
/// Saved settings as a stream of bytes.
#pragma once

#include "platform/property_bag.h"
#include "worlds/win32/windows_api.h"

namespace lumtex::win32 {

// The stream holds a mark and a version, each 4 bytes, the number of values, and for each value its name, its
// type and its bytes; fonts and pictures as the system's objects save themselves. All numbers are
// little-endian.

/// Throws RuntimeError 57 if the stream takes no more.
void saveSettings(IStream& stream, const MemoryPropertyBag& bag);

/// The stream comes from a document, which nobody trusts: no class is made because the stream names it, and
/// fonts and pictures are made under the keys alone that hold them. Throws RuntimeError 321 for a stream that
/// `saveSettings` did not write, that is damaged, or that ends too early.
void loadSettings(IStream& stream, MemoryPropertyBag& bag);

} // namespace lumtex::win32
