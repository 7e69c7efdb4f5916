/// One header cell: background by state, text, icon, sort arrow; and the field beside the last one.
#include "drawing/draw_arrow.h"
#include "drawing/header_strokes.h"
#include "drawing/picture_size.h"
#include "render/paint_pass.h"
#include "render/painting.h"
#include "sortfind/sorter.h"

#include <algorithm>
#include <cmath>

namespace lumtex {

namespace {

/// Pixels between a cell's edge and what stands in it, and between a text and its sort arrow.
constexpr Single inset = 5;
constexpr Single arrowWidth = 8;

/// A column this narrow, in twips as stored, shows no icon.
constexpr Single widthWithoutIcon = 3;

/// A number that is no alignment counts as left.
constexpr TextFormat formatOf(cColumnHeaderAlign alignment) {
    switch (alignment) {
    case cColumnCenter:
        return TextFormat::center;
    case cColumnRight:
        return TextFormat::right;
    default:
        return TextFormat::left;
    }
}

} // namespace

void PaintPass::headerCell(HeaderLook look) {
    const Single width = columnWidthPx;
    const drawing::StrokeFrame frame{penX, penX + width, static_cast<Single>(borderWidth), footOfHeader()};
    const ColumnHeader& column = core.records.columnAt(counters.scanIndex);
    headerBackground(look, frame);
    OLE_COLOR color = column.ForeColor;
    cellIcon = column.Icon;
    if (look == HeaderLook::hover) {
        color = column.ForeColorHover;
        cellIcon = column.IconHover;
    } else if (look == HeaderLook::down) {
        color = column.ForeColorDown;
        cellIcon = column.IconDown;
    }
    if (!properties.DrawColumnIcons)
        cellIcon = nullptr;
    checkpoint();
    headerContent(column, color);
    if (core.sorter->sortColumn() == counters.scanIndex)
        sortArrow(column);
}

void PaintPass::headerBackground(HeaderLook look, const drawing::StrokeFrame& frame) {
    switch (look) {
    case HeaderLook::normal:
        drawing::paintStrokes(surface, drawing::looks::headerNormal, frame, properties);
        break;
    case HeaderLook::hover:
        drawing::paintStrokes(surface, drawing::looks::headerHover, frame, properties);
        hoverBar(frame);
        break;
    case HeaderLook::down:
        drawing::paintStrokes(surface, drawing::looks::headerDown, frame, properties);
        break;
    }
}

void PaintPass::hoverBar(const drawing::StrokeFrame& frame) {
    const cColorStyle style = properties.ColorStyle;
    if (style == cXPOlive) {
        drawing::paintStrokes(surface, drawing::looks::oliveBar, frame, properties);
        return;
    }
    if (style != cXPBlue && style != cXPSilver)
        return;
    const auto& pieces = core.painting->artwork().imgCol;
    const Single top = frame.at({drawing::Edge::bar, 0});
    surface.paintPicture(*pieces[0], frame.left, top);
    const Single stampsLeft = frame.left + static_cast<Single>(drawing::GetPictureWidth(surface, *pieces[0]));
    // Stamps off the surface are left out, so that a very wide column costs no more than the surface is wide.
    // Wanted: the stamps run one pixel past the cell; the next cell paints over it.
    const Single firstStep = std::max(0.0F, std::floor(-stampsLeft) - 1);
    const Single lastStep = std::min(std::floor(frame.right - stampsLeft),
                                     static_cast<Single>(surface.scaleWidth()) - stampsLeft);
    // Far to the left a Single does not move on by 1, so the stamps are counted from the first one to be
    // seen.
    const Long stamps = surface.scaleWidth() + 3;
    bool odd = std::fmod(firstStep, 2.0F) != 0;
    for (Long stamp = 0; stamp < stamps; ++stamp) {
        const Double step = static_cast<Double>(firstStep) + stamp;
        if (step > lastStep)
            break;
        surface.paintPicture(odd ? *pieces[2] : *pieces[1], static_cast<Single>(stampsLeft + step), top);
        odd = !odd;
    }
    surface.paintPicture(
        *pieces[3], frame.right - static_cast<Single>(drawing::GetPictureWidth(surface, *pieces[3])), top);
}

void PaintPass::headerContent(const ColumnHeader& column, OLE_COLOR color) {
    surface.letForeColor(color);
    downOffset =
        properties.MoveColumnTextAtDown && core.headerGesture->isHeldDown(counters.scanIndex) ? 1 : 0;
    const Single d = downOffset;
    const Single x = penX;
    const Single w = columnWidthPx;
    const auto textY = static_cast<Single>(properties.ColumnTextY);
    Rect& rect = state.textRect;
    rect = {roundToLong(x + inset + d),
            roundToLong(headerTop + textY + d),
            roundToLong(x + w - inset + d),
            roundToLong(headerTop + headerHeight + d)};

    const Single iconWidth = properties.IconW;
    if (cellIcon) {
        // Wanted: the list's IconW, not ColumnIconW, and the shift counts twice.
        if (column.IconAlignment == cColumnLeft && column.Alignment == cColumnLeft)
            rect.Left = roundToLong(static_cast<Single>(rect.Left) + iconWidth + properties.DistPicText + d);
        else if (column.IconAlignment == cColumnRight && column.Alignment == cColumnRight)
            rect.Right =
                roundToLong(static_cast<Single>(rect.Right) - (iconWidth + properties.DistPicText) + d);
    }
    surface.drawText(
        column.Text, rect, formatOf(column.Alignment) | TextFormat::singleLine | TextFormat::wordEllipsis);

    if (cellIcon && column.Width > widthWithoutIcon) {
        Single iconX = x + inset + d;
        if (column.IconAlignment == cColumnRight)
            iconX = x + w - inset - iconWidth + d;
        else if (column.IconAlignment == cColumnCenter)
            iconX = (x + inset + d) + (w - iconWidth) / 2;
        surface.paintPicture(
            *cellIcon, iconX, static_cast<Single>(rect.Top), properties.ColumnIconW, properties.ColumnIconH);
    }
}

void PaintPass::sortArrow(const ColumnHeader& column) {
    const Single d = downOffset;
    const Single textWidth = surface.textWidth(column.Text);
    Single x = (penX + inset + d) + textWidth + inset;
    if (column.Alignment == cColumnRight)
        x = (penX + columnWidthPx - inset - textWidth) + d - inset - arrowWidth;
    else if (column.Alignment == cColumnCenter)
        x = (penX + inset + d) + (columnWidthPx + textWidth) / 2;
    const Single y = (static_cast<Single>(core.painting->ColumnHeight()) - 5) / 2;
    drawing::DrawArrow(surface, core.sorter->sortAscending(), x, y);
}

void PaintPass::emptyColumnField() {
    switch (properties.ColorStyle) {
    case cXPBlue:
    case cXPSilver:
    case cXPOlive:
    case cCustom:
        break;
    default:
        return;
    }
    const auto surfaceWidth = static_cast<Single>(surface.scaleWidth());
    const Single right =
        penX >= surfaceWidth
            ? penX + scaleX(surface, properties.EmptyColumnFieldWidth, Unit::twips, Unit::pixels)
            : surfaceWidth;
    drawing::paintStrokes(surface,
                          drawing::looks::emptyField,
                          {penX, right, static_cast<Single>(borderWidth), footOfHeader()},
                          properties);
}

} // namespace lumtex
