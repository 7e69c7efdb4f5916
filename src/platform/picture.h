/// \file
/// A picture that a host shares with the control.
#pragma once

#include "platform/bitmap.h"

#include <memory>

namespace lumtex {

/// Held by reference and never changed: whoever wants another look assigns another picture.
class Picture {
  public:
    Picture() = default;
    Picture(const Picture&) = delete;
    Picture& operator=(const Picture&) = delete;
    virtual ~Picture() = default;

    /// The stored size in HIMETRIC units (1/100 millimetre), from which the size in pixels is computed anew.
    virtual Long Width() const = 0;
    virtual Long Height() const = 0;

    /// The picture's pixels at its own size. The reference lives as long as the picture.
    virtual const Bitmap& bitmap() const = 0;
};

using PictureRef = std::shared_ptr<const Picture>;

/// A picture made of pixels, at 96 pixels per inch.
class BitmapPicture final : public Picture {
  public:
    explicit BitmapPicture(Bitmap bitmap);

    Long Width() const override;
    Long Height() const override;
    const Bitmap& bitmap() const override { return bitmap_; }

  private:
    Bitmap bitmap_;
};

} // namespace lumtex
