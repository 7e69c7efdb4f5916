/// Texts that are more than one letter after another: marks, joined letters, both directions, several faces.
#include "raster/characters.h"
#include "raster/text_direction.h"
#include "raster/typeface_implementation.h"

#include <algorithm>

namespace lumtex::raster {

namespace {

hb_script_t scriptOf(char32_t character) {
    return hb_unicode_script(hb_unicode_funcs_get_default(), character);
}

constexpr bool isReal(hb_script_t script) {
    return script != HB_SCRIPT_COMMON && script != HB_SCRIPT_INHERITED && script != HB_SCRIPT_UNKNOWN &&
           script != HB_SCRIPT_INVALID;
}

/// Joiners, direction marks and selectors of variants: they say how others are drawn and need no face.
constexpr bool isIgnorable(char32_t character) {
    return (character >= 0x200B && character <= 0x200F) || (character >= 0x202A && character <= 0x202E) ||
           (character >= 0x2060 && character <= 0x206F) || (character >= 0xFE00 && character <= 0xFE0F);
}

bool isMark(char32_t character) {
    const auto category = hb_unicode_general_category(hb_unicode_funcs_get_default(), character);
    return category == HB_UNICODE_GENERAL_CATEGORY_NON_SPACING_MARK ||
           category == HB_UNICODE_GENERAL_CATEGORY_ENCLOSING_MARK ||
           category == HB_UNICODE_GENERAL_CATEGORY_SPACING_MARK;
}

/// The marks for all scripts alike stay even where the face lacks them: apart from their letter they say
/// nothing.
constexpr bool isCommonMark(char32_t character) {
    return character >= 0x300 && character < 0x370;
}

/// How far a cut may move to the front to keep a letter and its marks together.
constexpr std::size_t longestLetter = 32;

/// Whether a text may be cut before this code unit, which is not the first.
bool startsLetter(StringView text, std::size_t index) {
    const char16_t unit = text[index];
    if (unit < Typeface::Implementation::simpleEnd)
        return true;
    if (unit >= 0xDC00 && unit < 0xE000 && text[index - 1] >= 0xD800 && text[index - 1] < 0xDC00)
        return false;
    const char32_t character = characterAt(text, index);
    return !isIgnorable(character) && !isMark(character);
}

} // namespace

StringView Typeface::firstPiece(StringView text) {
    if (text.size() <= longestRun)
        return text;
    std::size_t end = longestRun;
    while (end > longestRun - longestLetter && !startsLetter(text, end))
        --end;
    return text.substr(0, end);
}

/// The face and the script of what follows, as far as both stay the same.
Typeface::Implementation::Stretch Typeface::Implementation::stretchAt(StringView text, std::size_t from) {
    const char32_t first = characterAt(text, from);
    Stretch stretch{from, unitsOf(first), nullptr, scriptOf(first)};
    if (isControl(first))
        return stretch;
    stretch.face = &faceFor(first);
    while (from + stretch.length < text.size()) {
        const char32_t character = characterAt(text, from + stretch.length);
        const bool stays = isIgnorable(character) || isCommonMark(character) ||
                           (isMark(character) && stretch.face->has(character));
        if (!stays && (isControl(character) || &faceFor(character) != stretch.face))
            break;
        const hb_script_t script = scriptOf(character);
        if (isReal(script)) {
            if (isReal(stretch.script) && script != stretch.script)
                break;
            stretch.script = script;
        }
        stretch.length += unitsOf(character);
    }
    return stretch;
}

void Typeface::Implementation::shapeStretch(StringView text,
                                            const Stretch& stretch,
                                            bool rightToLeft,
                                            GlyphRun& run) {
    const auto offset = static_cast<std::uint32_t>(stretch.from);
    if (stretch.face == nullptr) {
        const Glyph& glyph = simpleGlyph(text[stretch.from]);
        run.glyphs.push_back({&glyph, glyph.advance, 0, 0, offset});
        run.width += glyph.advance;
        return;
    }
    hb_buffer_reset(buffer.get());
    // With what stands around, for letters that join across a change of faces.
    hb_buffer_add_utf16(buffer.get(),
                        reinterpret_cast<const std::uint16_t*>(text.data()),
                        static_cast<int>(text.size()),
                        offset,
                        static_cast<int>(stretch.length));
    hb_buffer_set_direction(buffer.get(), rightToLeft ? HB_DIRECTION_RTL : HB_DIRECTION_LTR);
    hb_buffer_set_script(buffer.get(), isReal(stretch.script) ? stretch.script : HB_SCRIPT_COMMON);
    hb_buffer_set_language(buffer.get(), hb_language_get_default());
    hb_shape(stretch.face->shaper(), buffer.get(), nullptr, 0);
    unsigned count = 0;
    const hb_glyph_info_t* infos = hb_buffer_get_glyph_infos(buffer.get(), &count);
    const hb_glyph_position_t* positions = hb_buffer_get_glyph_positions(buffer.get(), &count);
    for (unsigned i = 0; i < count; ++i) {
        const Long advance = stretch.face->pixelsOf(positions[i].x_advance);
        run.glyphs.push_back({&stretch.face->glyphAt(infos[i].codepoint),
                              advance,
                              stretch.face->pixelsOf(positions[i].x_offset),
                              -stretch.face->pixelsOf(positions[i].y_offset),
                              infos[i].cluster});
        run.width += advance;
    }
}

void Typeface::Implementation::shapePart(
    StringView text, std::size_t from, std::size_t length, bool rightToLeft, GlyphRun& run) {
    std::vector<Stretch> stretches;
    const StringView upToEnd = text.substr(0, from + length);
    for (std::size_t at = from; at < upToEnd.size(); at += stretches.back().length)
        stretches.push_back(stretchAt(upToEnd, at));
    if (rightToLeft)
        std::reverse(stretches.begin(), stretches.end());
    for (const Stretch& stretch : stretches)
        shapeStretch(text, stretch, rightToLeft, run);
}

void Typeface::Implementation::shape(StringView text, GlyphRun& run) {
    if (!mayTurn(text)) {
        shapePart(text, 0, text.size(), false, run);
        return;
    }
    for (const DirectedText& part : inVisualOrder(text))
        shapePart(text, part.from, part.length, part.rightToLeft, run);
}

} // namespace lumtex::raster
