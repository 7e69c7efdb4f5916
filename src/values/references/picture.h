/// \file
/// A picture that a host shares with the control.
#pragma once

#include "values/bitmap.h"

#include <memory>

namespace lumtex {

/// What a picture was made as, by the numbers that hosts know. Says in which form it is stored.
enum class PictureKind : Byte {
    bitmap = 1, ///< all pixels opaque
    icon = 3,   ///< has a mask, or could have one
};

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

    virtual PictureKind kind() const { return kindOf(bitmap()); }

    /// Whether a surface of any density shows it at the size of its own pixels, as drawings of the product
    /// are shown, and not at its size in HIMETRIC units.
    virtual bool isPixelArt() const { return false; }

  protected:
    /// The kind that can hold these pixels.
    static PictureKind kindOf(const Bitmap& bitmap);
};

using PictureRef = std::shared_ptr<const Picture>;

/// A picture made of pixels, at 96 pixels per inch.
class BitmapPicture final : public Picture {
  public:
    /// Becomes an icon, whatever `kind` says, if a pixel is not opaque.
    explicit BitmapPicture(Bitmap bitmap, PictureKind kind = PictureKind::bitmap);

    Long Width() const override;
    Long Height() const override;
    const Bitmap& bitmap() const override { return bitmap_; }
    PictureKind kind() const override { return kind_; }

  private:
    Bitmap bitmap_;
    PictureKind kind_;
};

/// A drawing of the product's own: one of its pixels is one of the screen's. Its size in HIMETRIC units is
/// that at 96 pixels per inch.
class PixelArt final : public Picture {
  public:
    explicit PixelArt(Bitmap bitmap) : bitmap_(std::move(bitmap)) {}

    Long Width() const override;
    Long Height() const override;
    const Bitmap& bitmap() const override { return bitmap_; }
    bool isPixelArt() const override { return true; }

  private:
    Bitmap bitmap_;
};

} // namespace lumtex
