/// One cell of the list: its height, its background, and the order of all that stands in it.
#include "platform/rounding.h"
#include "render/paint_pass.h"
#include "render/paint_pass_statement.h"

namespace lumtex {

namespace {

constexpr StringView defaultColor = u"def";
constexpr Long noFill = -1;

bool isDefault(const Variant& color) {
    return color.text() != nullptr && *color.text() == defaultColor;
}

} // namespace

void PaintPass::listCell() {
    statement([&] { measureCellHeight(); });
    const auto index = static_cast<std::size_t>(state.scanColumn - 1);
    if (index >= items.count()) {
        // Under the silent flag a cell that is not there leaves its place as it is.
        statement([] { throw RuntimeError(subscriptOutOfRange); });
        return;
    }
    ListViewItem& item = items[index];
    bool rowSelected = false;
    statement([&] { rowSelected = list.rowAt(Variant(state.scanIndex + 1)).Selected; });

    cellBackground(item, rowSelected);
    const CellExtras* extras = items.extras(index);
    if (extras != nullptr && extras->object()) {
        cellObject(extras->object());
        return;
    }
    const CellStyle& style = item.style();
    statement([&] { surface.letForeColor(style.ForeColor); });
    statement([&] { surface.setFont(style.font); });
    statement([&] { cellRectangle(style); });
    cellColorsAndIcon(item, rowSelected);
    checkpoint();
    chooseCheckBox(item);
    statement([&] { surface.letForeColor(textColor); });
    if (cellIcon)
        statement([&] { cellIconRoom(style); });
    cellText(item);
    if (cellIcon)
        cellIconPicture(style);
}

/// Wanted: with dynamic rows the font in force is that of the cell painted before.
void PaintPass::measureCellHeight() {
    cellHeight = roundToLong(properties.RowsDynamic ? surface.textHeight(u"A")
                                                    : scaleY(surface, properties.RowHeight, twips, pixels));
}

OLE_COLOR PaintPass::selectionColor(const Variant& color, OLE_COLOR otherwise) const {
    return isDefault(color) ? otherwise : color.toColor();
}

void PaintPass::cellBackground(const ListViewItem& item, bool rowSelected) {
    const CellStyle& style = item.style();
    // Wanted: with HideSelection no colour is chosen, and the one that a pass starts with is black.
    if (!properties.HideSelection) {
        statement([&] {
            if (!style.Enabled)
                fillColor = static_cast<Long>(style.BackColorDis);
            else if (rowSelected && (properties.FullRowSelect || state.scanColumn == 1))
                fillColor = static_cast<Long>(selectionColor(style.BackColorSelect, list.aktValueColor()));
            else if (properties.AutoRowColor)
                fillColor = static_cast<Long>(state.scanIndex % 2 != 0 ? properties.RowColorSecond
                                                                       : properties.RowColorFirst);
            else
                fillColor =
                    isDefault(style.BackColor) ? noFill : static_cast<Long>(style.BackColor.toColor());
        });
    }
    // The row's top pixel line stays free for the grid line of the row before.
    if (fillColor != noFill) {
        statement([&] {
            surface.fillBox(penX,
                            rowY + 1,
                            penX + columnWidthPx - 1,
                            rowY + static_cast<Single>(cellHeight),
                            static_cast<OLE_COLOR>(fillColor));
        });
    }
}

void PaintPass::cellRectangle(const CellStyle& style) {
    if (style.Alignment == cItemLeft || style.Alignment == cItemCenter || style.Alignment == cItemRight)
        textAlignment = style.Alignment;
    state.textRect = {roundToLong(penX + 5),
                      roundToLong(rowY),
                      roundToLong(penX + columnWidthPx - 3),
                      roundToLong(rowY + static_cast<Single>(cellHeight))};
}

void PaintPass::cellColorsAndIcon(const ListViewItem& item, bool rowSelected) {
    const CellStyle& style = item.style();
    const CellExtras* extras = items.extras(static_cast<std::size_t>(state.scanColumn - 1));
    const PictureRef icon = extras != nullptr ? extras->Icon : nullptr;
    if (!style.Enabled) {
        textColor = style.ForeColorDis;
        cellIcon = icon;
    } else if (rowSelected) {
        // The open editor follows its row.
        if (list.txtEdit->Visible())
            statement([&] { list.txtEdit->letTop(rowY + 1); });
        statement([&] {
            textColor = properties.FullRowSelect || state.scanColumn == 1
                            ? selectionColor(style.ForeColorSelect, white)
                            : style.ForeColor;
        });
        // Wanted: the picture follows the row's selection in every column, also where the text colour does
        // not.
        const PictureRef selected = extras != nullptr ? extras->IconSelected : nullptr;
        cellIcon = properties.DefaultIconSelectedIsIcon && !selected ? icon : selected;
    } else {
        textColor = style.ForeColor;
        cellIcon = icon;
    }
}

} // namespace lumtex
