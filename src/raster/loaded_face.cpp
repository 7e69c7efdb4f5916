/// Drawing glyphs.
#include "raster/typeface_implementation.h"
#include "values/picture_scale.h"
#include "values/rounding.h"

#include <algorithm>

#include <hb-ft.h>
#include FT_OUTLINE_H
#include FT_SYNTHESIS_H

namespace lumtex::raster {

namespace {

/// Stems and bars on whole pixels in both directions, which is what keeps small text crisp.
constexpr FT_Int32 outlineFlags = FT_LOAD_NO_BITMAP | FT_LOAD_TARGET_NORMAL | FT_LOAD_FORCE_AUTOHINT;

/// From 26.6 fixed point to whole pixels.
Long wholePixels(FT_Pos value) {
    return static_cast<Long>((value + 32) >> 6);
}

/// A picture of glyphs as one of ours: both hold premultiplied pixels, here as bytes from blue to alpha.
Bitmap bitmapOf(const FT_Bitmap& drawn) {
    Bitmap bitmap(static_cast<Long>(drawn.width), static_cast<Long>(drawn.rows));
    for (Long y = 0; y < bitmap.height; ++y) {
        const unsigned char* byte = drawn.buffer + std::ptrdiff_t{y} * drawn.pitch;
        for (Long x = 0; x < bitmap.width; ++x, byte += 4)
            bitmap.at(x, y) =
                byte[0] | unsigned{byte[1]} << 8U | unsigned{byte[2]} << 16U | unsigned{byte[3]} << 24U;
    }
    return bitmap;
}

Bitmap resized(const Bitmap& source, Long width, Long height) {
    Bitmap result(width, height);
    for (Long y = 0; y < height; ++y) {
        const PixelSpan rows = sourceSpan(y, height, 0, source.height);
        for (Long x = 0; x < width; ++x)
            result.at(x, y) = averagePixel(source, sourceSpan(x, width, 0, source.width), rows);
    }
    return result;
}

} // namespace

LoadedFace::LoadedFace(FtFaceHandle face, FaceFile file, Long pixels)
    : face_(std::move(face)), file_(std::move(file)) {
    if (isOfPictures() && face_->size->metrics.y_ppem != 0)
        reduction_ = static_cast<Double>(pixels) / face_->size->metrics.y_ppem;
}

Long LoadedFace::pixelsOf(FT_Pos distance) const {
    return isOfPictures() ? roundToLong(static_cast<Double>(distance) * reduction_ / 64)
                          : wholePixels(distance);
}

FT_Int32 LoadedFace::loadFlags() const {
    return isOfPictures() ? FT_LOAD_COLOR : outlineFlags;
}

bool LoadedFace::has(char32_t character) const {
    return FT_Get_Char_Index(face_.get(), character) != 0;
}

const Glyph& LoadedFace::glyphOf(char32_t character) {
    return glyphAt(FT_Get_Char_Index(face_.get(), character));
}

const Glyph& LoadedFace::glyphAt(std::uint32_t index) {
    std::unique_ptr<Glyph>& slot = glyphs_[index];
    if (!slot)
        slot = std::make_unique<Glyph>(draw(index));
    return *slot;
}

Glyph LoadedFace::draw(std::uint32_t index) {
    return isOfPictures() ? drawPicture(index) : drawOutline(index);
}

Glyph LoadedFace::drawPicture(std::uint32_t index) {
    Glyph glyph;
    if (FT_Load_Glyph(face_.get(), index, loadFlags()) != 0)
        return glyph;
    const FT_GlyphSlot slot = face_->glyph;
    glyph.advance = pixelsOf(slot->advance.x);
    if (slot->format != FT_GLYPH_FORMAT_BITMAP || slot->bitmap.pixel_mode != FT_PIXEL_MODE_BGRA ||
        slot->bitmap.width == 0 || slot->bitmap.rows == 0)
        return glyph;
    glyph.left = pixelsOf(FT_Pos{slot->bitmap_left} * 64);
    glyph.top = pixelsOf(FT_Pos{slot->bitmap_top} * 64);
    glyph.width = std::max<Long>(pixelsOf(FT_Pos{slot->bitmap.width} * 64), 1);
    const Long height = std::max<Long>(pixelsOf(FT_Pos{slot->bitmap.rows} * 64), 1);
    glyph.picture = resized(bitmapOf(slot->bitmap), glyph.width, height);
    return glyph;
}

Glyph LoadedFace::drawOutline(std::uint32_t index) {
    Glyph glyph;
    if (FT_Load_Glyph(face_.get(), index, outlineFlags) != 0)
        return glyph;
    const FT_GlyphSlot slot = face_->glyph;
    glyph.advance = wholePixels(slot->advance.x);
    if (file_.embolden)
        FT_GlyphSlot_Embolden(slot);
    if (file_.slant)
        FT_GlyphSlot_Oblique(slot);
    if (FT_Render_Glyph(slot, FT_RENDER_MODE_NORMAL) != 0)
        return glyph;
    const FT_Bitmap& drawn = slot->bitmap;
    glyph.left = slot->bitmap_left;
    glyph.top = slot->bitmap_top;
    glyph.width = static_cast<Long>(drawn.width);
    glyph.mask = Mask(glyph.width, static_cast<Long>(drawn.rows));
    for (Long y = 0; y < glyph.mask.height; ++y)
        std::copy_n(drawn.buffer + std::ptrdiff_t{y} * drawn.pitch, drawn.width, glyph.mask.row(y));
    return glyph;
}

hb_font_t* LoadedFace::shaper() {
    if (!shaper_) {
        shaper_.reset(hb_ft_font_create_referenced(face_.get()));
        hb_ft_font_set_load_flags(shaper_.get(), loadFlags());
    }
    return shaper_.get();
}

} // namespace lumtex::raster
