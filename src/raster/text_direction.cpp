#include "raster/text_direction.h"

#include "raster/characters.h"
#include "values/runtime_error.h"

#include <algorithm>
#include <numeric>

#include <fribidi.h>

namespace lumtex::raster {

namespace {

/// Hebrew, Arabic and their neighbours, presentation forms, halves of the scripts beyond, and the marks that
/// turn text.
constexpr bool mayTurnUnit(char16_t unit) {
    if (unit < 0x590)
        return false;
    return unit < 0x900 || (unit >= 0xFB1D && unit < 0xFE00) || (unit >= 0xFE70 && unit < 0xFF00) ||
           unit == 0xD802 || unit == 0xD803 || unit == 0xD83A || unit == 0xD83B || unit == 0x200F ||
           (unit >= 0x202A && unit <= 0x202E) || (unit >= 0x2066 && unit <= 0x2069);
}

struct Characters {
    std::vector<FriBidiChar> characters;
    std::vector<std::size_t> units; ///< where each begins, and the end of the text
};

Characters charactersOf(StringView line) {
    Characters all;
    all.characters.reserve(line.size());
    all.units.reserve(line.size() + 1);
    for (std::size_t at = 0; at < line.size();) {
        const char32_t character = characterAt(line, at);
        all.characters.push_back(character);
        all.units.push_back(at);
        at += unitsOf(character);
    }
    all.units.push_back(line.size());
    return all;
}

/// Levels of embedding, and the index of the character at each place from the left.
struct Order {
    std::vector<FriBidiLevel> levels;
    std::vector<FriBidiStrIndex> characters;
};

Order orderOf(const std::vector<FriBidiChar>& characters) {
    const auto length = static_cast<FriBidiStrIndex>(characters.size());
    std::vector<FriBidiCharType> types(characters.size());
    std::vector<FriBidiBracketType> brackets(characters.size());
    fribidi_get_bidi_types(characters.data(), length, types.data());
    fribidi_get_bracket_types(characters.data(), length, types.data(), brackets.data());

    Order order{std::vector<FriBidiLevel>(characters.size()),
                std::vector<FriBidiStrIndex>(characters.size())};
    std::iota(order.characters.begin(), order.characters.end(), 0);
    FriBidiParType direction = FRIBIDI_PAR_LTR;
    if (fribidi_get_par_embedding_levels_ex(
            types.data(), brackets.data(), length, &direction, order.levels.data()) == 0 ||
        fribidi_reorder_line(FRIBIDI_FLAGS_DEFAULT,
                             types.data(),
                             length,
                             0,
                             direction,
                             order.levels.data(),
                             nullptr,
                             order.characters.data()) == 0)
        throw RuntimeError(ErrorNumber::outOfMemory);
    return order;
}

} // namespace

bool mayTurn(StringView text) {
    return std::any_of(text.begin(), text.end(), mayTurnUnit);
}

std::vector<DirectedText> inVisualOrder(StringView line) {
    std::vector<DirectedText> parts;
    if (line.empty())
        return parts;
    const Characters all = charactersOf(line);
    const Order order = orderOf(all.characters);
    FriBidiStrIndex next = -1; // the character that would go on with the last part
    for (const FriBidiStrIndex character : order.characters) {
        const auto index = static_cast<std::size_t>(character);
        const bool rightToLeft = FRIBIDI_LEVEL_IS_RTL(order.levels[index]) != 0;
        const std::size_t from = all.units[index];
        const std::size_t length = all.units[index + 1] - from;
        if (character == next && parts.back().rightToLeft == rightToLeft) {
            parts.back().length += length;
            parts.back().from = std::min(parts.back().from, from);
        } else {
            parts.push_back({from, length, rightToLeft});
        }
        next = character + (rightToLeft ? -1 : 1);
    }
    return parts;
}

} // namespace lumtex::raster
