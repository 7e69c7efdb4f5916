/// \file
/// One font at one size: its measures and its glyphs as coverage masks, or as pictures.
#pragma once

#include "raster/mask.h"
#include "values/bitmap.h"

#include <memory>
#include <span>
#include <vector>

namespace lumtex::raster {

/// A drawn glyph. Distances are whole pixels, so that equal text looks equal wherever it stands.
struct Glyph {
    Long advance = 0;
    Long left = 0; ///< from the pen to the mask's left edge
    Long top = 0;  ///< from the base line up to the mask's upper edge
    Long width = 0;
    Mask mask;
    Bitmap picture; ///< in place of the mask, where a glyph has colours of its own
};

struct PlacedGlyph {
    const Glyph* glyph; ///< lives as long as the typeface
    Long advance;
    Long shiftX;
    Long shiftY;           ///< downwards
    std::uint32_t cluster; ///< code unit that it stands for
};

/// A piece of text as glyphs from left to right, which is not the order of its letters where scripts run both
/// ways.
struct GlyphRun {
    std::vector<PlacedGlyph> glyphs;
    Long width = 0;
};

/// The part of a text in front of a code unit.
struct Beginning {
    std::size_t units = 0;
    Long width = 0; ///< pixels
};

/// Pixels from the left end of a text.
struct Extent {
    Long from;
    Long to;
};

class FontLibrary;

/// Made by a FontLibrary, which it keeps alive.
class Typeface {
  public:
    /// The longest piece that `run` takes. Longer texts are handled piece by piece, and directions turn
    /// within a piece.
    static constexpr std::size_t longestRun = 1024;

    struct Implementation;
    explicit Typeface(std::unique_ptr<Implementation> implementation);
    Typeface(const Typeface&) = delete;
    Typeface& operator=(const Typeface&) = delete;
    ~Typeface();

    Long ascent() const;       ///< pixels from a line's top to its base line
    Long lineHeight() const;   ///< pixels
    Long underlineTop() const; ///< pixels below a line's top
    Long strikeTop() const;    ///< pixels below a line's top
    Long rule() const;         ///< thickness of both, in pixels

    /// What `run` takes of a text at once: no more than that, and no letter apart from its marks.
    static StringView firstPiece(StringView text);

    /// The glyphs of at most `longestRun` code units. Valid until the next call.
    const GlyphRun& run(StringView text);

    /// Width of a text of any length in pixels. Stops counting once past `enough`.
    Long width(StringView text, Long enough = maximum);

    /// The longest beginning, in the order of reading, that fits into `room` pixels. Letters and what joins
    /// with them stay whole.
    Beginning beginning(StringView text, Long room);

    /// Where the letter at a code unit stands.
    Extent extentOf(StringView text, std::size_t unit);

    static constexpr Long maximum = 0x7FFFFFFF;

  private:
    std::unique_ptr<Implementation> implementation_;
};

} // namespace lumtex::raster
