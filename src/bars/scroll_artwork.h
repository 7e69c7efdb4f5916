/// \file
/// The pictures that come with the bars: bodies and grips of the thumbs, faces of the arrow buttons.
#pragma once

#include "bars/arrow.h"
#include "bars/axis.h"
#include "values/references/picture.h"

#include <array>

namespace lumtex::bars {

/// Where in a scheme's four pictures of a button a look stands.
enum class ButtonLook : Byte { normal = 1, hover = 2, pressed = 3, disabled = 4 };

/// Where in a scheme's six pictures of a thumb a look stands: the body. The grip comes three later.
enum class ThumbLook : Byte { pressed = 1, hover = 2, normal = 3 };

constexpr Long buttonPictures = 4; ///< for each scheme
constexpr Long thumbPictures = 6;  ///< for each scheme
constexpr Long gripAfterBody = 3;

/// Six for each of the schemes blue, silver and olive, from index 1. Bodies are 14 x 13 and grips 8 x 7 in a
/// vertical bar, 13 x 14 and 7 x 8 in a horizontal one.
using ThumbArtwork = std::array<PictureRef, 3 * thumbPictures + 1>;

/// Four for each scheme, from index 1; 17 x 17.
using ButtonArtwork = std::array<PictureRef, 3 * buttonPictures + 1>;

struct ScrollArtwork {
    std::array<ThumbArtwork, 2> thumbs;   ///< by Axis
    std::array<ButtonArtwork, 4> buttons; ///< by Arrow

    const ThumbArtwork& thumbOf(Axis axis) const { return thumbs[static_cast<std::size_t>(axis)]; }
    const ButtonArtwork& buttonOf(Arrow arrow) const { return buttons[static_cast<std::size_t>(arrow)]; }

    /// Shared by all bars of the process; drawn once from the rows of characters in the source.
    static const ScrollArtwork& standard();
};

/// Throws RuntimeError 9 for an index that has no picture.
const Picture& pictureAt(std::span<const PictureRef> img, Double index);

} // namespace lumtex::bars
