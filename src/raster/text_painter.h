/// \file
/// Formatted text output, as the platform's own routine does it.
#pragma once

#include "platform/surface.h"
#include "raster/canvas.h"
#include "raster/typeface.h"

namespace lumtex::raster {

/// Paints text of one typeface and colour on a canvas.
class TextPainter {
  public:
    TextPainter(const Canvas& canvas, Typeface& typeface, Pixel color, bool underline, bool strikethrough)
        : canvas_(canvas), typeface_(typeface), color_(color), underline_(underline),
          strikethrough_(strikethrough) {}

    /// As `Surface::drawText`. `scratch` is room for texts that hold prefix characters.
    Long drawText(StringView text, Rect& rect, TextFormat format, String& scratch);

    /// One line whose upper left corner is at (`x`, `y`), clipped to `clip`.
    void drawLine(StringView line, std::int64_t x, std::int64_t y, const Rect& clip);

  private:
    struct Line {
        StringView text;
        std::size_t underlined; ///< index of the unit that a prefix character marks; npos for none
    };

    /// What is shown of a line; one that is cut ends in dots.
    struct Shown {
        Long width;        ///< pixels, with the dots
        std::size_t units; ///< how many of the line stand in front of the dots
        bool cut;
    };

    Shown shownOf(StringView line, std::int64_t room, TextFormat format);
    void drawLineIn(const Line& line, const Rect& rect, std::int64_t y, TextFormat format);
    void drawGlyph(const Glyph& glyph, Point at, const Rect& clip);
    std::int64_t drawGlyphs(StringView text, std::int64_t x, std::int64_t y, const Rect& clip);
    void rules(std::int64_t from, std::int64_t to, std::int64_t y, const Rect& clip);

    Canvas canvas_;
    Typeface& typeface_;
    Pixel color_;
    bool underline_;
    bool strikethrough_;
};

} // namespace lumtex::raster
