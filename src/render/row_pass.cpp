/// The rows: how tall each is, where it lies, and its grid lines.
#include "drawing/font_attributes.h"
#include "guards/failure_of.h"
#include "interaction/row_drag.h"
#include "render/paint_pass.h"
#include "render/painting.h"
#include "scroll/scroller.h"
#include "values/rounding.h"

#include <algorithm>

namespace lumtex {

/// Hides the host's controls in rows that are out of view; rows count from 1. An object without Visible is
/// passed over.
void PaintPass::hideObjects(Long firstRow, Long lastRow) {
    if (!core.records.mayHoldObjects() || CellExtras::objectsInCells() == 0)
        return;
    // The bar may stand anywhere, but no object is in a row that is not there.
    const Long last = std::min(lastRow, core.records.RowsCount());
    for (counters.scanColumn = std::max(firstRow, Long{1}); counters.scanColumn <= last;
         ++counters.scanColumn) {
        for (counters.scanObjectColumn = 1; counters.scanObjectColumn <= core.records.ColumnsCount();
             ++counters.scanObjectColumn) {
            ignoringErrors([&] {
                const auto cell = core.records.cellAt(counters.scanColumn, counters.scanObjectColumn);
                const CellExtras* extras = cell.items.extras(cell.index);
                if (extras == nullptr || !extras->object())
                    return;
                const ObjectRef object = extras->object();
                object->put(u"Visible", false);
            });
        }
    }
}

void PaintPass::beginRows() {
    counters.scanIndex = core.scroller->vertical().Value();
    state.firstRow = counters.scanIndex;
    counters.scanColumn = state.firstColumn + 1;
    rowY = properties.HideColumnHeaders ? 0 : static_cast<Single>(core.painting->ColumnHeight());
    penX = state.firstColumnX;
    rowBandHeight = 0;
}

void PaintPass::rowPass() {
    // Rows without a height from far above the first one on would take billions of turns.
    constexpr std::int64_t spareTurns = 4096;
    std::int64_t turnsLeft = std::int64_t{core.records.RowsCount()} + surface.scaleHeight() + spareTurns;
    statement([&] { beginRows(); });
    do {
        checkpoint();
        items = Items{};
        statement([&] { items = core.records.rowAt(Variant(sumOf(counters.scanIndex, 1))).items; });
        rowCells();
        finishRow();
        checkpoint();
    } while (counters.scanIndex <= core.records.RowsCount() - 1 &&
             rowY <= static_cast<Single>(surface.scaleHeight()) && --turnsLeft > 0);
    if (counters.scanIndex < core.records.RowsCount())
        hideObjects(counters.scanIndex + 1, core.records.RowsCount());
}

/// All columns from the first visible one on: nothing stops at the surface's right edge.
void PaintPass::rowCells() {
    // A host called in here may have taken columns away, hence no test for the exact end.
    while (counters.scanColumn <= core.records.ColumnsCount()) {
        checkpoint();
        statement([&] { columnWidthPx = core.painting->columnWidthInPixels(counters.scanColumn - 1); });
        if (penX + columnWidthPx >= 0 && columnWidthPx != 0)
            listCell();
        // Wanted: the height of the cell counts, where its font is taller than the band so far.
        statement([&] {
            if (surface.textHeight(u"A") > rowBandHeight)
                rowBandHeight = static_cast<Single>(cellHeight);
        });
        if (properties.GridLines) {
            const Single x = penX + columnWidthPx - 1;
            statement([&] { surface.line(x, rowY, x, rowY + rowBandHeight, properties.GridLineColor); });
        }
        penX += columnWidthPx;
        ++counters.scanColumn;
        checkpoint();
    }
}

void PaintPass::finishRow() {
    const auto surfaceWidth = static_cast<Single>(surface.scaleWidth());
    if (properties.AllowItemMoving && core.rowDrag->drawsMarkAt(counters.scanIndex))
        statement([&] { surface.box(0, rowY, surfaceWidth, rowY + 1, black); });
    penX = state.firstColumnX;
    counters.scanColumn = state.firstColumn + 1;
    if (lastIconHeight == 0) {
        // Wanted: until the first icon of a pass, every row has the height of the default font, however tall
        // the fonts of its cells are.
        const auto attributeRead = [&](auto attribute) {
            bool read = false;
            statement([&] {
                attribute();
                read = true;
            });
            return read;
        };
        drawing::readFontAttributes(
            properties.DefaultItemFont, attributeRead, [&](const FontSpec& font) { surface.setFont(font); });
        statement([&] {
            rowBandHeight = properties.RowsDynamic
                                ? surface.textHeight(u"A")
                                : scaleY(surface, properties.RowHeight, Unit::twips, Unit::pixels);
        });
    }
    if (properties.GridLines) {
        const auto border = static_cast<Single>(borderWidth);
        const Single y = rowY + rowBandHeight;
        statement([&] { surface.line(border, y, surfaceWidth - border, y, properties.GridLineColor); });
    }
    RowArray& rows = core.records.rows();
    if (counters.scanIndex >= 0 && static_cast<std::size_t>(counters.scanIndex) < rows.size()) {
        const auto position = static_cast<std::size_t>(counters.scanIndex);
        RowRecord& row = rows[position];
        row.Height = rowBandHeight;
        rows.noteHeight(position);
        row.Top = rowY;
        state.lastRow = counters.scanIndex;
    }
    rowY += rowBandHeight;
    rowBandHeight = 0;
    statement([&] { counters.scanIndex = sumOf(counters.scanIndex, 1); });
}

} // namespace lumtex
