#include "raster/text_painter.h"

#include "platform/surface.h"

#include <algorithm>
#include <utility>

namespace lumtex::raster {

namespace {

constexpr char16_t prefix = u'&';
constexpr StringView ellipsis = u"...";
constexpr TextFormat alignmentMask = TextFormat::center | TextFormat::right;

Long clampToLong(std::int64_t value) {
    return static_cast<Long>(std::clamp<std::int64_t>(value, -0x7FFFFFFF, 0x7FFFFFFF));
}

constexpr bool isBreak(char16_t unit) {
    return unit == u'\r' || unit == u'\n';
}

/// Takes the first line off `rest`: up to CR, LF or CR LF. A text that ends in a break has no further line.
StringView takeLine(StringView& rest) {
    const auto end = static_cast<std::size_t>(std::find_if(rest.begin(), rest.end(), isBreak) - rest.begin());
    const StringView line = rest.substr(0, end);
    if (end == rest.size()) {
        rest = {};
    } else {
        const bool pair = rest[end] == u'\r' && end + 1 < rest.size() && rest[end + 1] == u'\n';
        rest.remove_prefix(end + (pair ? 2 : 1));
    }
    return line;
}

struct WithoutPrefixes {
    StringView text;
    std::size_t underlined;
};

/// "&x" marks x, "&&" stands for one "&", and so does an "&" at the end.
WithoutPrefixes withoutPrefixes(StringView line, String& scratch) {
    WithoutPrefixes result{line, StringView::npos};
    if (line.find(prefix) == StringView::npos)
        return result;
    scratch.clear();
    for (std::size_t i = 0; i < line.size(); ++i) {
        if (line[i] == prefix && i + 1 < line.size()) {
            ++i;
            if (line[i] != prefix)
                result.underlined = scratch.size();
        }
        scratch.push_back(line[i]);
    }
    result.text = scratch;
    return result;
}

} // namespace

void TextPainter::rules(std::int64_t from, std::int64_t to, std::int64_t y, const Rect& clip) {
    const Long thickness = typeface_.rule();
    const auto bar = [&](Long top) {
        const Rect area{
            clampToLong(from), clampToLong(y + top), clampToLong(to), clampToLong(y + top + thickness)};
        fillArea(canvas_, intersection(area, clip), color_);
    };
    if (underline_)
        bar(typeface_.underlineTop());
    if (strikethrough_)
        bar(typeface_.strikeTop());
}

void TextPainter::drawGlyph(const Glyph& glyph, Point at, const Rect& clip) {
    const Bitmap& picture = glyph.picture;
    if (picture.width == 0)
        blendMask(canvas_, clip, at, glyph.mask, color_);
    else
        blendPicture(canvas_,
                     clip,
                     picture,
                     {0, 0, picture.width, picture.height},
                     {at.x,
                      at.y,
                      clampToLong(std::int64_t{at.x} + picture.width),
                      clampToLong(std::int64_t{at.y} + picture.height)});
}

/// Glyphs from the pen on. Returns where the pen ends up.
std::int64_t TextPainter::drawGlyphs(StringView text, std::int64_t x, std::int64_t y, const Rect& clip) {
    const std::int64_t baseLine = y + typeface_.ascent();
    while (!text.empty() && x < clip.Right) {
        const StringView piece = Typeface::firstPiece(text);
        text.remove_prefix(piece.size());
        for (const PlacedGlyph& placed : typeface_.run(piece).glyphs) {
            const Glyph& glyph = *placed.glyph;
            const std::int64_t left = x + glyph.left + placed.shiftX;
            const std::int64_t top = baseLine - glyph.top + placed.shiftY;
            if (left < clip.Right && left + glyph.width > clip.Left)
                drawGlyph(glyph, {clampToLong(left), clampToLong(top)}, clip);
            x += placed.advance;
        }
    }
    return x;
}

/// What of a line is drawn in `room` pixels. In the narrowest places that is the dots alone.
TextPainter::Shown TextPainter::shownOf(StringView line, std::int64_t room, TextFormat format) {
    if (!has(format, TextFormat::wordEllipsis))
        return {typeface_.width(line), line.size(), false};
    const auto most = static_cast<Long>(std::clamp<std::int64_t>(room, 0, Typeface::maximum - 1));
    const Long whole = typeface_.width(line, most);
    if (whole <= most)
        return {whole, line.size(), false};
    const Long dots = typeface_.width(ellipsis);
    const Beginning letters = typeface_.beginning(line, most - dots);
    return {letters.width + dots, letters.units, true};
}

void TextPainter::drawLine(StringView line, std::int64_t x, std::int64_t y, const Rect& clip) {
    rules(x, drawGlyphs(line, x, y, clip), y, clip);
}

void TextPainter::drawLineIn(const Line& line, const Rect& rect, std::int64_t y, TextFormat format) {
    const Rect clip = intersection(rect, canvas_.bounds());
    if (clip.Left >= clip.Right || y >= clip.Bottom || y + typeface_.lineHeight() <= clip.Top)
        return;
    const std::int64_t room = std::int64_t{rect.Right} - rect.Left;
    const Shown shown = shownOf(line.text, room, format);
    const StringView letters = line.text.substr(0, shown.units);
    std::int64_t x = rect.Left;
    if ((format & alignmentMask) == TextFormat::center)
        x += (room - shown.width) / 2;
    else if ((format & alignmentMask) == TextFormat::right)
        x += room - shown.width;
    std::int64_t end = drawGlyphs(letters, x, y, clip);
    if (shown.cut)
        end = drawGlyphs(ellipsis, end, y, clip);
    rules(x, end, y, clip);
    if (line.underlined >= letters.size())
        return;
    const Extent marked = typeface_.extentOf(letters, line.underlined);
    const std::int64_t top = y + typeface_.underlineTop();
    const Rect area{
        clampToLong(x + marked.from), clampToLong(top), clampToLong(x + marked.to), clampToLong(top + 1)};
    fillArea(canvas_, intersection(area, clip), color_);
}

Long TextPainter::drawText(StringView text, Rect& rect, TextFormat format, String& scratch) {
    const Long lineHeight = typeface_.lineHeight();
    const bool singleLine = has(format, TextFormat::singleLine);
    const bool calculate = has(format, TextFormat::calcRect);
    // In a single line breaks are drawn like other controls: not at all.
    const auto nextLine = [&](StringView& rest) {
        const StringView raw = singleLine ? std::exchange(rest, {}) : takeLine(rest);
        const WithoutPrefixes line = withoutPrefixes(raw, scratch);
        return Line{line.text, line.underlined};
    };

    if (calculate) {
        std::int64_t height = 0;
        Long widest = 0;
        const std::int64_t room = std::int64_t{rect.Right} - rect.Left;
        StringView rest = text;
        do {
            widest = std::max(widest, shownOf(nextLine(rest).text, room, format).width);
            height += lineHeight;
        } while (!rest.empty());
        rect.Right = clampToLong(std::int64_t{rect.Left} + widest);
        rect.Bottom = clampToLong(rect.Top + height);
        return clampToLong(height);
    }

    std::int64_t y = rect.Top;
    if (singleLine && has(format, TextFormat::vCenter))
        y += (std::int64_t{rect.Bottom} - rect.Top) / 2 - lineHeight / 2;
    StringView rest = text;
    do {
        drawLineIn(nextLine(rest), rect, y, format);
        y += lineHeight;
    } while (!rest.empty());
    return clampToLong(y - rect.Top);
}

} // namespace lumtex::raster
