/// \file
/// The drawing operations. Everything that the control shows is made of these.
#pragma once

#include "values/color.h"
#include "values/geometry.h"
#include "values/references/font.h"
#include "values/references/picture.h"

#include <span>

namespace lumtex {

/// How `drawText` sets a text, bit by bit; left, centre and right are 0, 1 and 2.
enum class TextFormat : Long {
    left = 0x0,
    center = 0x1,
    right = 0x2,
    vCenter = 0x4,
    singleLine = 0x20,
    calcRect = 0x400, ///< nothing is painted, and the rectangle becomes what the text needs
    wordEllipsis = 0x40000,
};

constexpr TextFormat operator|(TextFormat a, TextFormat b) {
    return static_cast<TextFormat>(static_cast<Long>(a) | static_cast<Long>(b));
}
constexpr TextFormat operator&(TextFormat a, TextFormat b) {
    return static_cast<TextFormat>(static_cast<Long>(a) & static_cast<Long>(b));
}
constexpr bool has(TextFormat format, TextFormat bit) {
    return (format & bit) == bit;
}

/// A rectangle in whole or broken pixels.
struct Area {
    Single x = 0;
    Single y = 0;
    Single width = 0;
    Single height = 0;
};

/// A device-independent bitmap of 24 bits per pixel: blue, green, red; the first row is the lowest; each row
/// padded to a multiple of four bytes.
struct Dib24 {
    Long width = 0;
    Long height = 0;
    std::span<const Byte> bytes;
};

/// A persistent drawing surface, measured in pixels from its left upper corner.
///
/// Coordinates are floating point and are rounded to whole pixels, ties to even; one that is not finite or
/// does not fit throws RuntimeError 6. Everything is clipped to the surface. Colours may name system colours.
/// Never null, owned by whoever made it; nothing keeps a picture or font beyond the call.
///
/// Operations that can be made of others are, once for all backends; a backend does not override them.
class Surface {
  public:
    Surface() = default;
    Surface(const Surface&) = delete;
    Surface& operator=(const Surface&) = delete;
    virtual ~Surface() = default;

    virtual Long scaleWidth() const = 0;
    virtual Long scaleHeight() const = 0;
    /// Pixels per inch, by which twips and HIMETRIC units are converted.
    virtual Double pixelsPerInchX() const = 0;
    virtual Double pixelsPerInchY() const = 0;

    /// Clears to BackColor.
    virtual void Cls() = 0;

    virtual OLE_COLOR BackColor() const = 0;
    /// Fills the whole surface at once, erasing all that was drawn.
    virtual void letBackColor(OLE_COLOR color) = 0;
    /// Colour of text and of a polygon's outline.
    virtual OLE_COLOR ForeColor() const = 0;
    virtual void letForeColor(OLE_COLOR color) = 0;
    virtual const FontSpec& font() const = 0;
    virtual void setFont(const FontSpec& font) = 0;

    // Shapes

    /// One pixel wide; the last pixel is not set, so a line of no length sets none.
    virtual void line(Single x1, Single y1, Single x2, Single y2, OLE_COLOR color);
    /// Outlined rectangle, both corners included.
    virtual void box(Single x1, Single y1, Single x2, Single y2, OLE_COLOR color);
    /// Filled rectangle, both corners included, in whatever order they are given.
    virtual void fillBox(Single x1, Single y1, Single x2, Single y2, OLE_COLOR color);
    virtual void pset(Single x, Single y, OLE_COLOR color);
    /// Filled in `fill`, outlined in ForeColor. Alternate winding; the fill leaves out right and lower edges,
    /// the outline covers them.
    virtual void polygon(std::span<const Point> points, OLE_COLOR fill) = 0;

    /// As `line`.
    virtual void drawLine(Point from, Point to, OLE_COLOR color) = 0;
    /// `area` with its right and lower edges left out.
    virtual void fillArea(const Rect& area, OLE_COLOR color) = 0;

    // Pictures

    /// At its own size, from HIMETRIC units.
    virtual void paintPicture(const Picture& picture, Single x, Single y);
    /// Stretched to `width` x `height` pixels; nothing for a size of zero or less.
    virtual void paintPicture(const Picture& picture, Single x, Single y, Single width, Single height);
    /// A part of the picture, in pixels of the picture, copied to `target`. What lies outside the picture is
    /// not painted.
    virtual void paintPicture(const Picture& picture, const Area& target, const Area& part);

    /// Lays `part` of `source` over `target`, blended, both without their right and lower edges; `part` lies
    /// inside `source`. Enlarging repeats the nearest pixel, reducing takes the average.
    virtual void blendPicture(const Bitmap& source, const Rect& part, const Rect& target) = 0;
    /// Stretches `source` over the target by plain copy; a target without extent paints nothing.
    virtual void stretchDIBits(Long x, Long y, Long width, Long height, const Dib24& source) = 0;

    // A text ends at its first zero character when it is drawn or measured for drawing; `textWidth` and
    // `textHeight` count all of it.

    /// Writes one line in ForeColor, from its left upper corner.
    virtual void print(Single x, Single y, StringView text) = 0;

    /// Extent in the current font, in whole pixels. The height of a text is its lines times the line height.
    virtual Single textWidth(StringView text) = 0;
    virtual Single textHeight(StringView text) = 0;

    /// The platform's formatted output, clipped to `rect`. Returns the height of the text in pixels, counted
    /// from the top of `rect`. Lines break at CR, LF and CR LF, never at words. A line too wide for `rect`
    /// ends in an ellipsis if the format says so.
    virtual Long drawText(StringView text, Rect& rect, TextFormat format) = 0;

    /// A copy of what stands on the surface now, as a picture box's `Image` gives it.
    virtual Bitmap image() const = 0;
};

/// `value` in another unit, unrounded, computed in double precision and held as Single.
Single scaleX(const Surface& surface, Double value, Unit from, Unit to);
Single scaleY(const Surface& surface, Double value, Unit from, Unit to);
/// The size of a picture on a surface, in whole pixels. Throws RuntimeError 6 for one beyond all numbers.
Point pictureSize(const Surface& surface, const Picture& picture);

} // namespace lumtex
