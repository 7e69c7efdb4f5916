#include "raster/typeface.h"

#include "raster/characters.h"
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

} // namespace

bool isSimple(StringView text) {
    return std::all_of(
        text.begin(), text.end(), [](char16_t unit) { return unit < Typeface::Implementation::simpleEnd; });
}

std::unique_ptr<Typeface::Implementation> Typeface::Implementation::make(std::shared_ptr<FontLibrary> library,
                                                                         FaceRequest request) {
    auto made = std::make_unique<Implementation>();
    made->library = std::move(library);
    made->request = std::move(request);
    const FontLibrary::Implementation& fonts = made->library->implementation();
    FaceFile file = fonts.find(made->request);
    made->faces.push_back(
        std::make_unique<LoadedFace>(fonts.open(file, made->request.pixels), file, made->request.pixels));
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

LoadedFace& Typeface::Implementation::faceFor(char32_t character) {
    const auto [entry, isNew] = found.try_emplace(character, faces.front().get());
    if (isNew)
        entry->second = &findFaceFor(character);
    return *entry->second;
}

/// The first face that has the character; the main one where none has. People and things are drawn in their
/// colours where a face has them, even if the main one has outlines of some.
LoadedFace& Typeface::Implementation::findFaceFor(char32_t character) {
    using Coloring = FontLibrary::Implementation::Coloring;
    if (isPictograph(character)) {
        for (const auto& face : faces)
            if (face->isOfPictures() && face->has(character))
                return *face;
        if (LoadedFace* const colored = loadFaceFor(character, Coloring::colored))
            return *colored;
    }
    for (const auto& face : faces)
        if (face->has(character))
            return *face;
    LoadedFace* const other = loadFaceFor(character, Coloring::any);
    return other != nullptr ? *other : *faces.front();
}

LoadedFace* Typeface::Implementation::loadFaceFor(char32_t character,
                                                  FontLibrary::Implementation::Coloring coloring) {
    const FontLibrary::Implementation& fonts = library->implementation();
    const FaceFile file = fonts.find(request, character, coloring);
    if (file.path.empty())
        return nullptr;
    auto face = std::make_unique<LoadedFace>(fonts.open(file, request.pixels), file, request.pixels);
    const bool isWanted = coloring == FontLibrary::Implementation::Coloring::any || face->isOfPictures();
    if (!isWanted || !face->has(character) || !face->canDraw())
        return nullptr;
    faces.push_back(std::move(face));
    return faces.back().get();
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
        const StringView piece = firstPiece(text);
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
