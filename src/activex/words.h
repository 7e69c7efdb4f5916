/// \file
/// Words for designers, in the language that they ask for.
#pragma once

#include "model/help.h"
#include "worlds/win32/windows_api.h"

namespace lumtex::win32 {

/// The German words for a locale of the German language, the English ones for any other.
inline StringView inLanguage(const Help& words, LCID locale) {
    return PRIMARYLANGID(LANGIDFROMLCID(locale)) == LANG_GERMAN ? words.german : words.english;
}

} // namespace lumtex::win32
