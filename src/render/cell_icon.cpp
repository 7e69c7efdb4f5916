/// The icon or check box of a cell.
#include "drawing/picture_size.h"
#include "model/list_view.h"
#include "render/paint_pass.h"
#include "render/painting.h"
#include "values/rounding.h"

namespace lumtex {

void PaintPass::chooseCheckBox() {
    checkBoxCell = properties.Style == cCheckBoxes && list.ColumnCheckBoxes(counters.scanColumn);
    if (checkBoxCell) {
        statement([&] {
            const auto& boxes =
                style().Enabled ? core.painting->artwork().img : core.painting->artwork().imgd;
            cellIcon = boxes[item().Checked() ? 2 : 1];
        });
    } else if (!properties.DrawItemIcons) {
        cellIcon = nullptr;
    }
}

void PaintPass::cellIconPicture() {
    const Picture& box = *core.painting->artwork().img[1];
    Single iconBoxWidth = properties.IconW;
    statement([&] {
        if (checkBoxCell)
            iconBoxWidth = static_cast<Single>(drawing::GetPictureWidth(surface, box));
        lastIconHeight =
            checkBoxCell ? static_cast<Single>(drawing::GetPictureHeight(surface, box)) : properties.IconH;
    });
    if (!properties.RowsDynamic) {
        // Wanted: IconH counts here for a check box too.
        statement([&] {
            state.textRect.Top = roundToLong(
                (scaleY(surface, properties.RowHeight, Unit::twips, Unit::pixels) - properties.IconH) / 2 +
                rowY + 1);
        });
    }
    const auto iconY = static_cast<Single>(state.textRect.Top);
    const Single d = downOffset;
    Single iconX = penX + 5 + d;
    statement([&] {
        const cItemAlign alignment = style().IconAlignment;
        if (alignment == cItemRight)
            iconX = penX + columnWidthPx - 5 - iconBoxWidth + d;
        else if (alignment == cItemCenter) // Wanted: no shift and no inset in the middle.
            iconX = (columnWidthPx - iconBoxWidth) / 2 + penX;
    });

    // The text lies below the picture.
    statement([&] {
        const ColumnHeader& column = core.records.columnAt(counters.scanColumn - 1);
        if (checkBoxCell || !column.AdjustItemIcons)
            surface.paintPicture(*cellIcon, iconX, iconY);
        else
            surface.paintPicture(*cellIcon, iconX, iconY, column.ItemIconW, column.ItemIconH);
    });
}

} // namespace lumtex
