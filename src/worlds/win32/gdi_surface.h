/// \file
/// The drawing surface of Windows: a bitmap in memory on which the system's own routines draw.
#pragma once

#include "platform/surface.h"
#include "worlds/win32/gdi_font.h"
#include "worlds/win32/memory_bitmap.h"

#include <memory>
#include <vector>

namespace lumtex::win32 {

/// White and without drawing at first. Which pixels a line, a polygon or a stretched picture covers is the
/// system's decision; this class rounds, clips and translates. Belongs to one thread.
class GdiSurface final : public Surface {
  public:
    /// Negative sizes count as 0. Throws RuntimeError 7 if there is no room.
    GdiSurface(Long width, Long height, Long pixelsPerInchX, Long pixelsPerInchY);
    ~GdiSurface() override;

    /// What was drawn stays in so far as it still fits; new parts show BackColor. Negative sizes count as 0.
    /// Throws RuntimeError 7 if there is no room, and stays as it was.
    void resize(Long width, Long height);

    /// The context that all drawing goes through. Changes with each `resize`. Whoever draws on it leaves pen,
    /// brush, font and modes as they were.
    HDC memoryDc() const { return bitmap_->dc(); }

    /// Copies all pixels to the left upper corner of `target`.
    void present(HDC target) const;

    Long scaleWidth() const override { return width_; }
    Long scaleHeight() const override { return height_; }
    Double pixelsPerInchX() const override { return pixelsPerInchX_; }
    Double pixelsPerInchY() const override { return pixelsPerInchY_; }

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
    /// Sets up a fresh context: modes, stock pen and brush.
    void prepare();
    /// The context with the current font and text colour.
    HDC textDc();
    /// `drawText` for a text without characters.
    Long placeNothing(Rect& rect, TextFormat format);

    Long width_;
    Long height_;
    Long pixelsPerInchX_;
    Long pixelsPerInchY_;
    OLE_COLOR backColor_ = white;
    OLE_COLOR foreColor_ = black;
    FontSpec font_{.Name = u"Verdana", .Size = 9.75F};
    bool fontSelected_ =
        false; ///< the context holds the font that `font_` names; it is found when first needed
    /// The font that was selected last. Outlives the bitmap, whose context may hold it.
    std::shared_ptr<const GdiFont> gdiFont_;
    std::unique_ptr<MemoryBitmap> bitmap_;
    /// Where pictures lie while they are painted; as large as the largest that was seen so far.
    std::unique_ptr<MemoryBitmap> sheet_;
};

/// A surface with the screen's pixels per inch.
std::unique_ptr<GdiSurface> makeGdiSurface(Long width, Long height);

} // namespace lumtex::win32
