/// \file
/// Characters of a UTF-16 text.
#pragma once

#include "values/types.h"

namespace lumtex::raster {

/// The character at a code unit; half a pair stands for itself.
constexpr char32_t characterAt(StringView text, std::size_t index) {
    const char32_t unit = text[index];
    if (unit >= 0xD800 && unit < 0xDC00 && index + 1 < text.size()) {
        const char32_t next = text[index + 1];
        if (next >= 0xDC00 && next < 0xE000)
            return 0x10000 + ((unit - 0xD800) << 10U) + (next - 0xDC00);
    }
    return unit;
}

constexpr std::size_t unitsOf(char32_t character) {
    return character >= 0x10000 ? 2 : 1;
}

/// Neither drawn nor given any room, but for the tab, which is a space.
constexpr bool isControl(char32_t character) {
    return character < 0x20 || (character >= 0x7F && character < 0xA0);
}

/// People, things, flags: what is a picture in colours where any face has it so. The blocks from "Mahjong
/// Tiles" to "Symbols and Pictographs Extended-A".
constexpr bool isPictograph(char32_t character) {
    return character >= 0x1F000 && character < 0x1FB00;
}

} // namespace lumtex::raster
