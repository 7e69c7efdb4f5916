/// \file
/// Pictures as file images.
#pragma once

#include "values/references/picture.h"
#include "values/types.h"

#include <span>
#include <vector>

namespace lumtex {

/// A file image is all bytes of a bitmap file or of an icon file, by the picture's kind.
class PictureImages {
  public:
    PictureImages() = default;
    PictureImages(const PictureImages&) = delete;
    PictureImages& operator=(const PictureImages&) = delete;
    virtual ~PictureImages() = default;

    /// Throws RuntimeError 481 for a picture without pixels, 7 for one too large.
    virtual std::vector<Byte> imageOfPicture(const Picture& picture) const = 0;
    /// The other way, with the same kind and pixels. Throws 481 for bytes that are no such image, and for one
    /// that declares more than eight pixels to a byte, which no uncompressed image has.
    virtual PictureRef pictureOfImage(std::span<const Byte> image) const = 0;
};

} // namespace lumtex
