/// The text of a cell.
#include "render/paint_pass.h"
#include "values/rounding.h"

namespace lumtex {

/// Makes room beside the text where the icon stands at the same side; elsewhere the two may overlap.
void PaintPass::cellIconRoom() {
    Rect& rect = state.textRect;
    const cItemAlign alignment = style().IconAlignment;
    // Wanted: a check box takes the room of an icon, not its own 13 pixels.
    const Single d = downOffset;
    if (alignment == cItemLeft && textAlignment == TextFormat::left)
        rect.Left =
            roundToLong(properties.IconW + static_cast<Single>(rect.Left) + properties.DistPicText + d);
    else if (alignment == cItemRight && textAlignment == TextFormat::right)
        rect.Right =
            roundToLong(static_cast<Single>(rect.Right) - (properties.IconW + properties.DistPicText) + d);
}

/// Chooses the format, and for rows of fixed height the top of the text.
TextFormat PaintPass::placeText() {
    if (properties.RowsDynamic)
        return textAlignment | TextFormat::wordEllipsis | TextFormat::singleLine | TextFormat::vCenter;

    const TextFormat format = textAlignment | TextFormat::wordEllipsis;
    Rect& rect = state.textRect;
    Rect measured = rect;
    const Long textHeight = surface.drawText(state.cellText, measured, format | TextFormat::calcRect);
    switch (core.records.rowAt(Variant(counters.scanIndex + 1)).TextPosition) {
    case cTextPosTop:
        rect.Top = roundToLong(rowY + core.topInset());
        break;
    case cTextPosCenter:
        rect.Top = roundToLong((scaleY(surface, properties.RowHeight, Unit::twips, Unit::pixels) -
                                static_cast<Single>(textHeight)) /
                                   2 +
                               rowY);
        break;
    case cTextPosBottom:
        rect.Top = roundToLong(static_cast<Single>(rect.Bottom) - static_cast<Single>(textHeight));
        break;
    }
    // A text taller than its row starts at the row's top; only the next row's paint cuts it.
    if (rowY > static_cast<Single>(rect.Top))
        rect.Top = roundToLong(rowY);
    return format;
}

void PaintPass::cellText() {
    statement([&] { item().text().copyTo(state.cellText); });
    statement([&] { textFormat = placeText(); });
    statement([&] {
        const Single width = surface.textWidth(state.cellText);
        item().letTextWidth(width);
    });
    statement([&] { surface.drawText(state.cellText, state.textRect, textFormat); });
}

} // namespace lumtex
