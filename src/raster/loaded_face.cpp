/// Drawing glyphs.
#include "raster/typeface_implementation.h"

#include <algorithm>

#include <hb-ft.h>
#include FT_OUTLINE_H
#include FT_SYNTHESIS_H

namespace lumtex::raster {

namespace {

/// Stems and bars on whole pixels in both directions, which is what keeps small text crisp.
constexpr FT_Int32 loadFlags = FT_LOAD_NO_BITMAP | FT_LOAD_TARGET_NORMAL | FT_LOAD_FORCE_AUTOHINT;

/// From 26.6 fixed point to whole pixels.
Long wholePixels(FT_Pos value) {
    return static_cast<Long>((value + 32) >> 6);
}

} // namespace

LoadedFace::LoadedFace(FtFaceHandle face, FaceFile file) : face_(std::move(face)), file_(std::move(file)) {}

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
    Glyph glyph;
    if (FT_Load_Glyph(face_.get(), index, loadFlags) != 0)
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
    glyph.mask.resize(std::size_t{drawn.width} * drawn.rows);
    for (unsigned y = 0; y < drawn.rows; ++y) {
        const unsigned char* row = drawn.buffer + static_cast<std::ptrdiff_t>(y) * drawn.pitch;
        std::copy_n(
            row, drawn.width, glyph.mask.begin() + static_cast<std::ptrdiff_t>(std::size_t{y} * drawn.width));
    }
    return glyph;
}

hb_font_t* LoadedFace::shaper() {
    if (!shaper_) {
        shaper_.reset(hb_ft_font_create_referenced(face_.get()));
        hb_ft_font_set_load_flags(shaper_.get(), loadFlags);
    }
    return shaper_.get();
}

} // namespace lumtex::raster
