/// \file
/// Glyphs of one face at one size, with faces to fall back on.
#pragma once

#include "raster/font_library_implementation.h"

#include <array>
#include <string_view>
#include <unordered_map>

namespace lumtex::raster {

/// An opened face whose glyphs are drawn once and kept.
class LoadedFace {
  public:
    /// `pixels` is the size that was asked for.
    LoadedFace(FtFaceHandle face, FaceFile file, Long pixels);

    bool has(char32_t character) const;
    const Glyph& glyphOf(char32_t character);
    const Glyph& glyphAt(std::uint32_t index);
    /// Glyphs are pictures in colours, of a size of their own, and not outlines.
    bool isOfPictures() const { return FT_HAS_COLOR(face_.get()) && !FT_IS_SCALABLE(face_.get()); }
    bool canDraw() const { return FT_IS_SCALABLE(face_.get()) || isOfPictures(); }
    /// A distance in the face's own size, in 26.6 fixed point, as pixels of the size that was asked for.
    Long pixelsOf(FT_Pos distance) const;
    FT_Face face() const { return face_.get(); }
    hb_font_t* shaper();

  private:
    Glyph draw(std::uint32_t index);
    Glyph drawOutline(std::uint32_t index);
    Glyph drawPicture(std::uint32_t index);
    FT_Int32 loadFlags() const;

    FtFaceHandle face_;
    FaceFile file_;
    Double reduction_ = 1; ///< of its pictures
    HbFontHandle shaper_;
    std::unordered_map<std::uint32_t, std::unique_ptr<Glyph>> glyphs_;
};

struct TextHash {
    using is_transparent = void;
    std::size_t operator()(StringView text) const { return std::hash<StringView>{}(text); }
};

/// Whether every letter stands alone: no shaping, no direction, no marks.
bool isSimple(StringView text);

struct Typeface::Implementation {
    static std::unique_ptr<Implementation> make(std::shared_ptr<FontLibrary> library, FaceRequest request);

    /// Characters below this one stand alone.
    static constexpr char16_t simpleEnd = 0x300;

    const Glyph& simpleGlyph(char16_t unit);
    LoadedFace& faceFor(char32_t character);
    LoadedFace& findFaceFor(char32_t character);
    /// Looks for a face among all files, and keeps it if it draws the character; null if none does.
    LoadedFace* loadFaceFor(char32_t character, FontLibrary::Implementation::Coloring coloring);

    /// Code units of a text that one face draws in one script; a control character is one without a face.
    struct Stretch {
        std::size_t from;
        std::size_t length;
        LoadedFace* face;
        hb_script_t script;
    };

    /// Adds the glyphs of a text, leftmost first.
    void shape(StringView text, GlyphRun& run);
    void shapePart(StringView text, std::size_t from, std::size_t length, bool rightToLeft, GlyphRun& run);
    void shapeStretch(StringView text, const Stretch& stretch, bool rightToLeft, GlyphRun& run);
    Stretch stretchAt(StringView text, std::size_t from);

    std::shared_ptr<FontLibrary> library;
    FaceRequest request;
    /// The face itself, then those that were needed for characters it lacks.
    std::vector<std::unique_ptr<LoadedFace>> faces;
    std::unordered_map<char32_t, LoadedFace*> found; ///< what each character is drawn with
    std::array<const Glyph*, simpleEnd> simple{};
    std::unordered_map<String, GlyphRun, TextHash, std::equal_to<>> shaped;
    HbBufferHandle buffer;
    GlyphRun scratch;
    Long ascent = 0;
    Long lineHeight = 0;
    Long underlineTop = 0;
    Long strikeTop = 0;
    Long rule = 1;
};

} // namespace lumtex::raster
