/// \file
/// Taking an OLE_COLOR apart. Resolving a system colour is the surface's work, since it knows the theme.
#pragma once

#include "values/types.h"

namespace lumtex {

constexpr OLE_COLOR systemColorBit = 0x80000000U;
constexpr OLE_COLOR buttonFace = 0x8000000FU;
constexpr OLE_COLOR grayText = 0x80000011U;
constexpr OLE_COLOR black = 0x000000U;
constexpr OLE_COLOR white = 0xFFFFFFU;

constexpr bool isSystemColor(OLE_COLOR color) {
    return (color & systemColorBit) != 0;
}
constexpr unsigned systemColorIndex(OLE_COLOR color) {
    return color & 0xFFU;
}

constexpr Byte redOf(OLE_COLOR color) {
    return static_cast<Byte>(color & 0xFFU);
}
constexpr Byte greenOf(OLE_COLOR color) {
    return static_cast<Byte>((color >> 8U) & 0xFFU);
}
constexpr Byte blueOf(OLE_COLOR color) {
    return static_cast<Byte>((color >> 16U) & 0xFFU);
}

} // namespace lumtex
