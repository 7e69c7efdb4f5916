/// \file
/// The drawing surface in memory.
#pragma once

#include "platform/surface.h"
#include "raster/canvas.h"
#include "raster/font_library.h"

#include <memory>
#include <optional>
#include <vector>

namespace lumtex {

/// 96 pixels per inch, white and without drawing at first. Text is drawn with `fonts`, which it shares.
class RasterSurface final : public Surface {
  public:
    RasterSurface(Long width, Long height, std::shared_ptr<raster::FontLibrary> fonts);
    ~RasterSurface() override;

    /// What was drawn stays in so far as it still fits; new parts show BackColor. Negative sizes count as 0.
    void resize(Long width, Long height);

    /// The pixels as they are now, 0xFFRRGGBB, rows of `scaleWidth`. Valid until the next operation.
    std::span<const std::uint32_t> pixels();

    Long scaleWidth() const override { return width_; }
    Long scaleHeight() const override { return height_; }
    Double pixelsPerInchX() const override { return 96; }
    Double pixelsPerInchY() const override { return 96; }

    void Cls() override;
    OLE_COLOR BackColor() const override { return backColor_; }
    void letBackColor(OLE_COLOR color) override;
    OLE_COLOR ForeColor() const override { return foreColor_; }
    void letForeColor(OLE_COLOR color) override { foreColor_ = color; }
    OLE_COLOR FillColor() const override { return fillColor_; }
    void letFillColor(OLE_COLOR color) override { fillColor_ = color; }
    FillStyle fillStyle() const override { return fillStyle_; }
    void letFillStyle(FillStyle style) override { fillStyle_ = style; }
    const FontSpec& font() const override { return font_; }
    void setFont(const FontSpec& font) override;

    void line(Single x1, Single y1, Single x2, Single y2, OLE_COLOR color) override;
    void box(Single x1, Single y1, Single x2, Single y2, OLE_COLOR color) override;
    void fillBox(Single x1, Single y1, Single x2, Single y2, OLE_COLOR color) override;
    void pset(Single x, Single y, OLE_COLOR color) override;
    void polygon(std::span<const Point> points) override;

    void paintPicture(const Picture& picture, Single x, Single y) override;
    void paintPicture(const Picture& picture, Single x, Single y, Single width, Single height) override;
    void paintPicture(const Picture& picture,
                      Single x,
                      Single y,
                      Single width,
                      Single height,
                      Single sourceX,
                      Single sourceY,
                      Single sourceWidth,
                      Single sourceHeight) override;
    void stretchDIBits(Long x, Long y, Long width, Long height, const Dib24& source) override;

    Single CurrentX() const override { return currentX_; }
    Single CurrentY() const override { return currentY_; }
    void letCurrentX(Single x) override { currentX_ = x; }
    void letCurrentY(Single y) override { currentY_ = y; }
    void print(StringView text) override;
    Single textWidth(StringView text) override;
    Single textHeight(StringView text) override;
    Long drawText(StringView text, Rect& rect, Long format) override;

    Bitmap image() const override;

  private:
    /// Where to paint; carries out a clearing that was put off.
    raster::Canvas canvas();
    void carryOutClearing();
    raster::Typeface& typeface();

    Long width_;
    Long height_;
    std::vector<raster::Pixel> pixels_;
    /// The whole surface is this colour: a repaint clears twice in a row, and the second time counts.
    std::optional<raster::Pixel> clearing_;
    OLE_COLOR backColor_ = white;
    OLE_COLOR foreColor_ = black;
    OLE_COLOR fillColor_ = black;
    FillStyle fillStyle_ = FillStyle::transparent;
    FontSpec font_{.Name = u"Verdana", .Size = 9.75F};
    std::shared_ptr<raster::FontLibrary> fonts_;
    std::shared_ptr<raster::Typeface> typeface_; ///< of `font_`; found when first needed
    Single currentX_ = 0;
    Single currentY_ = 0;
    String scratch_;
};

} // namespace lumtex
