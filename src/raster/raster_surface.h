/// \file
/// The drawing surface in memory.
#pragma once

#include "platform/surface.h"
#include "raster/canvas.h"
#include "raster/font_library.h"

#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace lumtex::raster {

/// 96 pixels per inch unless told otherwise, white and without drawing at first. Text is drawn with `fonts`,
/// which it shares.
class RasterSurface final : public Surface {
  public:
    RasterSurface(Long width, Long height, std::shared_ptr<FontLibrary> fonts);
    ~RasterSurface() override;

    /// What was drawn stays in so far as it still fits; new parts show BackColor. Negative sizes count as 0.
    void resize(Long width, Long height);

    /// The pixels as they are now, 0xFFRRGGBB, rows of `scaleWidth`. Valid until the next operation.
    std::span<const std::uint32_t> pixels();

    Long scaleWidth() const override { return width_; }
    Long scaleHeight() const override { return height_; }
    Double pixelsPerInchX() const override { return *pixelsPerInch_; }
    Double pixelsPerInchY() const override { return *pixelsPerInch_; }
    /// Fonts, whose sizes are points, grow with it. More than 0, and read anew whenever it is asked for, so
    /// that all surfaces of a screen may share it; what was drawn stays as it is.
    void letPixelsPerInch(std::shared_ptr<const Double> pixels) { pixelsPerInch_ = std::move(pixels); }

    void Cls() override;
    OLE_COLOR BackColor() const override { return backColor_; }
    void letBackColor(OLE_COLOR color) override;
    OLE_COLOR ForeColor() const override { return foreColor_; }
    void letForeColor(OLE_COLOR color) override { foreColor_ = color; }
    const FontSpec& font() const override { return font_; }
    void setFont(const FontSpec& font) override;

    void polygon(std::span<const Point> points, OLE_COLOR fill) override;
    void drawLine(Point from, Point to, OLE_COLOR color) override;
    void fillArea(const Rect& area, OLE_COLOR color) override;
    void blendPicture(const Bitmap& source, const Rect& part, const Rect& target) override;
    void stretchDIBits(Long x, Long y, Long width, Long height, const Dib24& source) override;

    void print(Single x, Single y, StringView text) override;
    Single textWidth(StringView text) override;
    Single textHeight(StringView text) override;
    Long drawText(StringView text, Rect& rect, TextFormat format) override;

    Bitmap image() const override;

  private:
    /// Where to paint; carries out a clearing that was put off.
    Canvas canvas();
    void carryOutClearing();
    Typeface& typeface();

    Long width_;
    Long height_;
    std::shared_ptr<const Double> pixelsPerInch_; ///< never null
    std::vector<Pixel> pixels_;
    PaintedParts painted_; ///< outside of these all is `ground_`
    Pixel ground_ = 0;
    /// The whole surface is this colour: a repaint clears twice in a row, and the second time counts.
    std::optional<Pixel> clearing_;
    OLE_COLOR backColor_ = white;
    OLE_COLOR foreColor_ = black;
    FontSpec font_{.Name = u"Verdana", .Size = 9.75F};
    std::shared_ptr<FontLibrary> fonts_;
    std::shared_ptr<Typeface> typeface_; ///< of `font_`; found when first needed
    Double typefaceDensity_ = 0;         ///< pixels per inch that it was found for
    String scratch_;
};

} // namespace lumtex::raster
