/// One cell of the list: its height, its background, and the order of all that stands in it.
#include "interaction/cell_editor.h"
#include "render/paint_pass.h"
#include "render/painting.h"
#include "values/rounding.h"

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
    const auto index = static_cast<std::size_t>(counters.scanColumn - 1);
    if (index >= items.count()) {
        // Under the silent flag a cell that is not there leaves its place as it is.
        statement([] { throw RuntimeError(ErrorNumber::subscriptOutOfRange); });
        return;
    }
    bool rowSelected = false;
    statement([&] { rowSelected = core.records.rowAt(Variant(counters.scanIndex + 1)).Selected; });

    cellBackground(rowSelected);
    if (const CellExtras* rare = extras(); rare != nullptr && rare->object()) {
        cellObject(rare->object());
        return;
    }
    statement([&] { surface.letForeColor(style().ForeColor); });
    statement([&] { surface.setFont(style().font); });
    statement([&] { placeCell(); });
    cellColorsAndIcon(rowSelected);
    checkpoint();
    chooseCheckBox();
    statement([&] { surface.letForeColor(textColor); });
    if (cellIcon)
        statement([&] { cellIconRoom(); });
    cellText();
    if (cellIcon)
        cellIconPicture();
}

/// Throws 9 where host code at a report moved the pass to a column without a cell.
ListViewItem& PaintPass::item() {
    const auto index = static_cast<std::size_t>(counters.scanColumn - 1);
    if (index >= items.count())
        throw RuntimeError(ErrorNumber::subscriptOutOfRange);
    return items[index];
}

/// Null while the cell has nothing rare.
const CellExtras* PaintPass::extras() const {
    return items.extras(static_cast<std::size_t>(counters.scanColumn - 1));
}

/// Wanted: with dynamic rows the font in force is that of the cell painted before.
void PaintPass::measureCellHeight() {
    cellHeight = roundToLong(properties.RowsDynamic
                                 ? surface.textHeight(u"A")
                                 : scaleY(surface, properties.RowHeight, Unit::twips, Unit::pixels));
}

OLE_COLOR PaintPass::selectionColor(const Variant& color, OLE_COLOR otherwise) const {
    return isDefault(color) ? otherwise : color.toColor();
}

void PaintPass::cellBackground(bool rowSelected) {
    // Wanted: with HideSelection no colour is chosen, and the one that a pass starts with is black.
    if (!properties.HideSelection) {
        statement([&] {
            const CellStyle& look = style();
            if (!look.Enabled)
                fillColor = static_cast<Long>(look.BackColorDis);
            else if (rowSelected && (properties.FullRowSelect || counters.scanColumn == 1))
                fillColor =
                    static_cast<Long>(selectionColor(look.BackColorSelect, core.painting->aktValueColor()));
            else if (properties.AutoRowColor)
                fillColor = static_cast<Long>(counters.scanIndex % 2 != 0 ? properties.RowColorSecond
                                                                          : properties.RowColorFirst);
            else
                fillColor =
                    isDefault(look.BackColor) ? noFill : static_cast<Long>(look.BackColor.get().toColor());
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

void PaintPass::placeCell() {
    const cItemAlign alignment = style().Alignment;
    if (alignment == cItemLeft || alignment == cItemCenter || alignment == cItemRight)
        textAlignment = static_cast<TextFormat>(alignment);
    state.textRect = {roundToLong(penX + 5),
                      roundToLong(rowY),
                      roundToLong(penX + columnWidthPx - 3),
                      roundToLong(rowY + static_cast<Single>(cellHeight))};
}

void PaintPass::cellColorsAndIcon(bool rowSelected) {
    const auto takeIcon = [&](Held<PictureRef> CellExtras::*field) {
        const CellExtras* rare = extras();
        cellIcon = rare != nullptr ? rare->*field : Held<PictureRef>();
    };
    bool enabled = true;
    statement([&] { enabled = style().Enabled; });
    if (!enabled) {
        statement([&] { textColor = style().ForeColorDis; });
        statement([&] { takeIcon(&CellExtras::Icon); });
        return;
    }
    if (!rowSelected) {
        statement([&] { textColor = style().ForeColor; });
        statement([&] { takeIcon(&CellExtras::Icon); });
        return;
    }
    // The open editor follows its row.
    if (core.editor->isOpen())
        statement([&] { core.editor->letTop(rowY + 1); });
    statement([&] {
        textColor = properties.FullRowSelect || counters.scanColumn == 1
                        ? selectionColor(style().ForeColorSelect, white)
                        : style().ForeColor;
    });
    // Wanted: the picture follows the row's selection in every column, also where the text colour does not.
    statement([&] {
        takeIcon(&CellExtras::IconSelected);
        if (properties.DefaultIconSelectedIsIcon && !cellIcon)
            takeIcon(&CellExtras::Icon);
    });
}

} // namespace lumtex
