#include "drawing/palette.h"

#include <gtest/gtest.h>

namespace lumtex::testing {

namespace {

struct Row {
    const char* name;
    drawing::ColorRole role;
    OLE_COLOR blue;
    OLE_COLOR silver;
    OLE_COLOR olive;
    OLE_COLOR custom;
};

constexpr OLE_COLOR columnBack = 0x10;
constexpr OLE_COLOR columnHover = 0x20;
constexpr OLE_COLOR columnDown = 0x30;
constexpr OLE_COLOR emptyField = 0x40;
constexpr OLE_COLOR value = 0x50;
constexpr OLE_COLOR frame = 0x60;

constexpr Row table[] = {
    {"header face", drawing::ColorRole::headerFace, 0xDBEAEB, 0xFDFAF9, 0xDBEAEB, columnBack},
    {"header foot 1", drawing::ColorRole::headerFoot1, 0xCDDEE2, 0xEFE7E6, 0xCDDEE2, columnBack},
    {"header foot 2", drawing::ColorRole::headerFoot2, 0xC2D2D6, 0xDED2D1, 0xC2D2D6, columnBack},
    {"header foot 3", drawing::ColorRole::headerFoot3, 0xB8C7CB, 0xCEBEBD, 0xB8C7CB, columnBack},
    {"divider dark", drawing::ColorRole::headerDividerDark, 0xB2C5C7, 0xC8B6B5, 0xB2C5C7, columnBack},
    {"divider light", drawing::ColorRole::headerDividerLight, 0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0xFFFFFF},
    {"hover face", drawing::ColorRole::headerHoverFace, 0xF3F8FA, 0xFEFEFE, 0xF3F8FA, columnHover},
    {"down face", drawing::ColorRole::headerDownFace, 0xD8DFDE, 0xF3ECEC, 0xD8DFDE, columnDown},
    {"down outer", drawing::ColorRole::headerDownOuter, 0x97A5A5, 0x998080, 0x97A5A5, columnDown},
    {"down middle", drawing::ColorRole::headerDownMiddle, 0xB8C2C1, 0xC8B9B9, 0xB8C2C1, columnDown},
    {"down inner", drawing::ColorRole::headerDownInner, 0xC9D1D0, 0xDFD4D4, 0xC9D1D0, columnDown},
    {"empty face", drawing::ColorRole::emptyFieldFace, 0xD8EAEE, 0xE5E4E1, 0xD8EAEE, emptyField},
    {"empty foot 1", drawing::ColorRole::emptyFieldFoot1, 0xCDDEE2, 0xD9D9D5, 0xCDDEE2, emptyField},
    {"empty foot 2", drawing::ColorRole::emptyFieldFoot2, 0xC2D2D6, 0xCECECA, 0xC2D2D6, emptyField},
    {"empty foot 3", drawing::ColorRole::emptyFieldFoot3, 0xB8C7CB, 0xC3C3BF, 0xB8C7CB, emptyField},
    {"selection", drawing::ColorRole::selection, 0xC56A31, 0xBFB4B2, 0x70A093, value},
    {"border", drawing::ColorRole::border, 0xB99D7F, 0xB99D7F, 0x7FB9A4, frame},
};

Properties customColors() {
    Properties properties;
    properties.ColumnBackColor = columnBack;
    properties.ColumnHoverColor = columnHover;
    properties.ColumnDownColor = columnDown;
    properties.EmptyColumnFieldColor = emptyField;
    properties.ValueColor = value;
    properties.BorderColor = frame;
    return properties;
}

} // namespace

TEST(Palette, HasAColourForEveryRoleInEveryStyle) {
    Properties properties = customColors();
    for (const Row& row : table) {
        for (const auto& [style, expected] : {std::pair{cXPBlue, row.blue},
                                              {cXPSilver, row.silver},
                                              {cXPOlive, row.olive},
                                              {cCustom, row.custom}}) {
            properties.ColorStyle = style;
            EXPECT_EQ(drawing::colorOf(row.role, properties), expected) << row.name << " in style " << style;
        }
    }
}

TEST(Palette, TheOliveBarHasThreeColours) {
    Properties properties;
    properties.ColorStyle = cXPOlive;
    EXPECT_EQ(drawing::colorOf(drawing::ColorRole::oliveBarDark, properties), 0x2572CFU);
    EXPECT_EQ(drawing::colorOf(drawing::ColorRole::oliveBarLight, properties), 0x5896E3U);
    EXPECT_EQ(drawing::colorOf(drawing::ColorRole::oliveBarCorner, properties), 0xD8E9ECU);
}

// Wanted: a style outside the enumeration has no selection colour and no border colour.
TEST(Palette, AnUnknownStyleIsCustomForHeadersAndBlackForSelectionAndBorder) {
    Properties properties = customColors();
    properties.ColorStyle = static_cast<cColorStyle>(3);
    for (const Row& row : table) {
        const bool none = row.role == drawing::ColorRole::selection || row.role == drawing::ColorRole::border;
        EXPECT_EQ(drawing::colorOf(row.role, properties), none ? 0U : row.custom) << row.name;
    }
}

} // namespace lumtex::testing
