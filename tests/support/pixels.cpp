#include "pixels.h"

#include <algorithm>
#include <cstdio>
#include <limits>

namespace lumtex::testing {

namespace {

constexpr std::uint32_t colorBits = 0xFFFFFFU;

bool lies(const Bitmap& bitmap, Long x, Long y) {
    return x >= 0 && y >= 0 && x < bitmap.width && y < bitmap.height;
}

} // namespace

std::string drawing(const Bitmap& bitmap, const Rect& area, const Legend& legend) {
    std::map<std::uint32_t, char> letters;
    for (const auto& [letter, color] : legend)
        letters.emplace(color, letter);
    std::string rows;
    std::string strangers;
    for (Long y = area.Top; y < area.Bottom; ++y) {
        for (Long x = area.Left; x < area.Right; ++x) {
            if (!lies(bitmap, x, y)) {
                rows += ' ';
                continue;
            }
            const std::uint32_t color = bitmap.at(x, y) & colorBits;
            const auto [entry, isNew] = letters.emplace(color, '?');
            rows += entry->second;
            if (isNew) {
                char note[64];
                std::snprintf(note, sizeof note, "? at %d,%d is %06X\n", x, y, color);
                strangers += note;
            }
        }
        rows += '\n';
    }
    return rows + strangers;
}

std::string drawing(const Bitmap& bitmap, const Legend& legend) {
    return drawing(bitmap, {0, 0, bitmap.width, bitmap.height}, legend);
}

Rect inkOf(const Bitmap& bitmap, std::uint32_t ground) {
    constexpr Long far = std::numeric_limits<Long>::max();
    Rect ink{far, far, 0, 0};
    for (Long y = 0; y < bitmap.height; ++y) {
        for (Long x = 0; x < bitmap.width; ++x) {
            if ((bitmap.at(x, y) & colorBits) == ground)
                continue;
            ink = {std::min(ink.Left, x),
                   std::min(ink.Top, y),
                   std::max(ink.Right, x + 1),
                   std::max(ink.Bottom, y + 1)};
        }
    }
    return ink.Right == 0 ? Rect{} : ink;
}

} // namespace lumtex::testing
