#include "raster/typeface.h"

#include "raster/typeface_implementation.h"
#include "values/runtime_error.h"

#include <algorithm>

namespace lumtex::raster {

namespace {

/// Shaped texts kept for each typeface before all are let go, and the longest one kept.
constexpr std::size_t shapedTextsKept = 4096;
constexpr std::size_t longestShapedText = 256;

Long ceiling(FT_Pos value) {
    return static_cast<Long>((value + 63) >> 6);
}

bool isSimple(StringView text) {
    return std::all_of(
        text.begin(), text.end(), [](char16_t unit) { return unit < Typeface::Implementation::simpleEnd; });
}

/// Neither drawn nor given any room.
constexpr bool isControl(char16_t unit) {
    return unit < 0x20 || (unit >= 0x7F && unit < 0xA0);
}

char32_t characterAt(StringView text, std::size_t index) {
    const char32_t unit = text[index];
    if (unit >= 0xD800 && unit < 0xDC00 && index + 1 < text.size()) {
        const char32_t next = text[index + 1];
        if (next >= 0xDC00 && next < 0xE000)
            return 0x10000 + ((unit - 0xD800) << 10U) + (next - 0xDC00);
    }
    return unit;
}

constexpr std::size_t unitsOf(char32_t character) {
    return character >= 0x10000 ? 2 : 1;
}

} // namespace

std::unique_ptr<Typeface::Implementation> Typeface::Implementation::make(std::shared_ptr<FontLibrary> library,
                                                                         FaceRequest request) {
    auto made = std::make_unique<Implementation>();
    made->library = std::move(library);
    made->request = std::move(request);
    const FontLibrary::Implementation& fonts = made->library->implementation();
    FaceFile file = fonts.find(made->request);
    made->faces.push_back(std::make_unique<LoadedFace>(fonts.open(file, made->request.pixels), file));
    const FT_Face face = made->faces.front()->face();
    const FT_Size_Metrics& metrics = face->size->metrics;
    made->ascent = ceiling(metrics.ascender);
    made->lineHeight = std::max<Long>(made->ascent + ceiling(-metrics.descender), 1);
    const FT_Pos thickness = FT_MulFix(face->underline_thickness, metrics.y_scale);
    const FT_Pos position = FT_MulFix(face->underline_position, metrics.y_scale);
    made->rule = std::max<Long>(static_cast<Long>((thickness + 32) >> 6), 1);
    made->underlineTop = std::min(made->ascent + std::max<Long>(ceiling(-position - thickness / 2), 1),
                                  made->lineHeight - made->rule);
    made->strikeTop = made->ascent - std::max<Long>(made->request.pixels / 4, 1);
    made->buffer.reset(hb_buffer_create());
    return made;
}

const Glyph& Typeface::Implementation::simpleGlyph(char16_t unit) {
    const Glyph*& slot = simple[unit];
    if (slot == nullptr) {
        static const Glyph nothing;
        if (unit == u'\t')
            slot = &simpleGlyph(u' ');
        else
            slot = isControl(unit) ? &nothing : &faceFor(unit).glyphOf(unit);
    }
    return *slot;
}

/// The first face that has the character; the main one where none has.
LoadedFace& Typeface::Implementation::faceFor(char32_t character) {
    for (const auto& face : faces) {
        if (face->has(character))
            return *face;
    }
    const auto [entry, isNew] = fallbacks.try_emplace(character, faces.front().get());
    if (isNew) {
        const FontLibrary::Implementation& fonts = library->implementation();
        const FaceFile file = fonts.find(request, character);
        if (!file.path.empty()) {
            auto face = std::make_unique<LoadedFace>(fonts.open(file, request.pixels), file);
            if (face->has(character)) {
                entry->second = face.get();
                faces.push_back(std::move(face));
            }
        }
    }
    return *entry->second;
}

void Typeface::Implementation::shapePiece(LoadedFace& face,
                                          StringView text,
                                          std::size_t offset,
                                          GlyphRun& run) {
    hb_buffer_reset(buffer.get());
    hb_buffer_add_utf16(buffer.get(),
                        reinterpret_cast<const std::uint16_t*>(text.data()),
                        static_cast<int>(text.size()),
                        0,
                        static_cast<int>(text.size()));
    hb_buffer_guess_segment_properties(buffer.get());
    hb_shape(face.shaper(), buffer.get(), nullptr, 0);
    unsigned count = 0;
    const hb_glyph_info_t* infos = hb_buffer_get_glyph_infos(buffer.get(), &count);
    const hb_glyph_position_t* positions = hb_buffer_get_glyph_positions(buffer.get(), &count);
    for (unsigned i = 0; i < count; ++i) {
        const Long advance = static_cast<Long>((positions[i].x_advance + 32) >> 6);
        run.glyphs.push_back({&face.glyphAt(infos[i].codepoint),
                              advance,
                              static_cast<Long>((positions[i].x_offset + 32) >> 6),
                              -static_cast<Long>((positions[i].y_offset + 32) >> 6),
                              static_cast<std::uint32_t>(offset) + infos[i].cluster});
        run.width += advance;
    }
}

/// Shapes stretch by stretch, each in the face that has its characters.
void Typeface::Implementation::shape(StringView text, GlyphRun& run) {
    std::size_t start = 0;
    while (start < text.size()) {
        LoadedFace& face = faceFor(characterAt(text, start));
        std::size_t end = start;
        while (end < text.size()) {
            const char32_t character = characterAt(text, end);
            // Marks and joiners stay with what they stand on.
            const bool belongs = (character >= 0x300 && character < 0x370) || character == 0x200D ||
                                 &faceFor(character) == &face;
            if (end > start && !belongs)
                break;
            end += unitsOf(character);
        }
        shapePiece(face, text.substr(start, end - start), start, run);
        start = end;
    }
}

Typeface::Typeface(std::unique_ptr<Implementation> implementation)
    : implementation_(std::move(implementation)) {}
Typeface::~Typeface() = default;

Long Typeface::ascent() const {
    return implementation_->ascent;
}
Long Typeface::lineHeight() const {
    return implementation_->lineHeight;
}
Long Typeface::underlineTop() const {
    return implementation_->underlineTop;
}
Long Typeface::strikeTop() const {
    return implementation_->strikeTop;
}
Long Typeface::rule() const {
    return implementation_->rule;
}

const GlyphRun& Typeface::run(StringView text) {
    Implementation& self = *implementation_;
    GlyphRun& scratch = self.scratch;
    if (isSimple(text)) {
        scratch.glyphs.clear();
        scratch.width = 0;
        for (std::size_t i = 0; i < text.size(); ++i) {
            const Glyph& glyph = self.simpleGlyph(text[i]);
            scratch.glyphs.push_back({&glyph, glyph.advance, 0, 0, static_cast<std::uint32_t>(i)});
            scratch.width += glyph.advance;
        }
        return scratch;
    }
    if (const auto found = self.shaped.find(text); found != self.shaped.end())
        return found->second;
    scratch.glyphs.clear();
    scratch.width = 0;
    self.shape(text, scratch);
    if (text.size() > longestShapedText)
        return scratch;
    if (self.shaped.size() >= shapedTextsKept)
        self.shaped.clear();
    return self.shaped.emplace(String(text), scratch).first->second;
}

Long Typeface::width(StringView text, Long enough) {
    Implementation& self = *implementation_;
    std::int64_t total = 0;
    while (!text.empty() && total <= enough) {
        const StringView piece = text.substr(0, longestRun);
        text.remove_prefix(piece.size());
        if (isSimple(piece)) {
            for (const char16_t unit : piece)
                total += self.simpleGlyph(unit).advance;
        } else {
            total += run(piece).width;
        }
    }
    return static_cast<Long>(std::min<std::int64_t>(total, maximum));
}

} // namespace lumtex::raster
