/// \file
/// Fonts and pictures among saved settings.
#pragma once

#include "activex/settings_bytes.h"
#include "values/variant.h"

namespace lumtex::win32 {

// Each stands as the system's own object of its kind saves itself: the class, then its bytes. No class is
// made because a stream names it: the bytes are read here, and what they say is made with the system's own
// procedures for fonts and pictures.

/// What may stand under a key.
enum class SettingsKind : Byte { plain, font, picture };

/// By the keys that the control knows; any other one is `plain`.
SettingsKind settingsKindOf(StringView key);

/// Null for a value without an object, and for a picture without pixels: those are not saved.
bool isSavedObject(const Variant& value);
/// A font or a picture.
void saveSettingsObject(SettingsWriter& to, const Variant& value);

/// Reads an object. It becomes a value if it is what `kind` asks for; for `plain`, its bytes are
/// read over, nothing is made, and there is no value. Throws RuntimeError 321 for an object of any other
/// class, and for one that is damaged.
Variant loadSettingsObject(SettingsReader& from, SettingsKind kind);

} // namespace lumtex::win32
