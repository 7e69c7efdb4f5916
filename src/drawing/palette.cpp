#include "drawing/palette.h"

#include "values/color.h"

#include <array>

namespace lumtex::drawing {

namespace {

struct RoleColors {
    OLE_COLOR blue;
    OLE_COLOR silver;
    OLE_COLOR olive;
    OLE_COLOR Properties::*custom; ///< null: `fixed` in the custom style too
    OLE_COLOR fixed = 0;
};

/// Indexed by `ColorRole`; 0xBBGGRR.
// clang-format off
constexpr auto colors = std::to_array<RoleColors>({
    {0xDBEAEB, 0xFDFAF9, 0xDBEAEB, &Properties::ColumnBackColor},
    {0xCDDEE2, 0xEFE7E6, 0xCDDEE2, &Properties::ColumnBackColor},
    {0xC2D2D6, 0xDED2D1, 0xC2D2D6, &Properties::ColumnBackColor},
    {0xB8C7CB, 0xCEBEBD, 0xB8C7CB, &Properties::ColumnBackColor},
    {0xB2C5C7, 0xC8B6B5, 0xB2C5C7, &Properties::ColumnBackColor},
    {0xFFFFFF, 0xFFFFFF, 0xFFFFFF, nullptr, 0xFFFFFF},
    {0xF3F8FA, 0xFEFEFE, 0xF3F8FA, &Properties::ColumnHoverColor},
    {0xD8DFDE, 0xF3ECEC, 0xD8DFDE, &Properties::ColumnDownColor},
    {0x97A5A5, 0x998080, 0x97A5A5, &Properties::ColumnDownColor},
    {0xB8C2C1, 0xC8B9B9, 0xB8C2C1, &Properties::ColumnDownColor},
    {0xC9D1D0, 0xDFD4D4, 0xC9D1D0, &Properties::ColumnDownColor},
    {0xD8EAEE, 0xE5E4E1, 0xD8EAEE, &Properties::EmptyColumnFieldColor},
    {0xCDDEE2, 0xD9D9D5, 0xCDDEE2, &Properties::EmptyColumnFieldColor},
    {0xC2D2D6, 0xCECECA, 0xC2D2D6, &Properties::EmptyColumnFieldColor},
    {0xB8C7CB, 0xC3C3BF, 0xB8C7CB, &Properties::EmptyColumnFieldColor},
    {0xC56A31, 0xBFB4B2, 0x70A093, &Properties::ValueColor},
    {0xB99D7F, 0xB99D7F, 0x7FB9A4, &Properties::BorderColor},
    {0x2572CF, 0x2572CF, 0x2572CF, nullptr, 0x2572CF},
    {0x5896E3, 0x5896E3, 0x5896E3, nullptr, 0x5896E3},
    {0xD8E9EC, 0xD8E9EC, 0xD8E9EC, nullptr, 0xD8E9EC},
});
// clang-format on

constexpr bool needsKnownStyle(ColorRole role) {
    return role == ColorRole::selection || role == ColorRole::border;
}

} // namespace

OLE_COLOR colorOf(ColorRole role, const Properties& properties) {
    const RoleColors& row = colors[static_cast<std::size_t>(role)];
    switch (properties.ColorStyle) {
    case cXPBlue:
        return row.blue;
    case cXPSilver:
        return row.silver;
    case cXPOlive:
        return row.olive;
    case cCustom:
        break;
    default:
        // Wanted: a style outside the enumeration has no selection colour and no border colour.
        if (needsKnownStyle(role))
            return 0;
    }
    return row.custom != nullptr ? properties.*row.custom : row.fixed;
}

} // namespace lumtex::drawing
