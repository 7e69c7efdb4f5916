/// How much of a text fits, and where its letters stand.
#include "raster/typeface_implementation.h"

#include <algorithm>

namespace lumtex::raster {

namespace {

/// Where each letter begins and how wide it is, in the order of the text. What joins into one glyph is one
/// letter.
std::vector<Beginning> lettersOf(const GlyphRun& run) {
    std::vector<Beginning> letters;
    letters.reserve(run.glyphs.size());
    for (const PlacedGlyph& placed : run.glyphs) {
        if (!letters.empty() && letters.back().units == placed.cluster)
            letters.back().width += placed.advance;
        else
            letters.push_back({placed.cluster, placed.advance});
    }
    std::sort(letters.begin(), letters.end(), [](const Beginning& one, const Beginning& other) {
        return one.units < other.units;
    });
    return letters;
}

/// As `Typeface::beginning`, of one piece; all of it if there is room.
Beginning beginningOf(Typeface& typeface, StringView piece, Long room) {
    const std::vector<Beginning> letters = lettersOf(typeface.run(piece));
    std::size_t count = 0;
    Long width = 0;
    while (count < letters.size() && width + letters[count].width <= room)
        width += letters[count++].width;
    if (count == letters.size())
        return {piece.size(), width};
    // A letter at the end may look different from the same letter within, and be wider.
    while (count > 0) {
        const std::size_t units = letters[count].units;
        const Long alone = typeface.run(piece.substr(0, units)).width;
        if (alone <= room)
            return {units, alone};
        --count;
    }
    return {};
}

} // namespace

Beginning Typeface::beginning(StringView text, Long room) {
    Beginning fitting;
    while (!text.empty()) {
        const StringView piece = firstPiece(text);
        text.remove_prefix(piece.size());
        const Beginning part = beginningOf(*this, piece, room - fitting.width);
        fitting.units += part.units;
        fitting.width += part.width;
        if (part.units < piece.size())
            break;
    }
    return fitting;
}

Extent Typeface::extentOf(StringView text, std::size_t unit) {
    Long before = 0;
    StringView piece = firstPiece(text);
    while (unit >= piece.size() && piece.size() < text.size()) {
        before += width(piece);
        unit -= piece.size();
        text.remove_prefix(piece.size());
        piece = firstPiece(text);
    }
    const GlyphRun& drawn = run(piece);
    std::size_t letter = 0;
    for (const PlacedGlyph& placed : drawn.glyphs) {
        if (placed.cluster <= unit)
            letter = std::max<std::size_t>(letter, placed.cluster);
    }
    Long left = before;
    for (const PlacedGlyph& placed : drawn.glyphs) {
        if (placed.cluster == letter)
            break;
        left += placed.advance;
    }
    Long width = 0;
    for (const PlacedGlyph& placed : drawn.glyphs)
        width += placed.cluster == letter ? placed.advance : 0;
    return {left, left + width};
}

} // namespace lumtex::raster
