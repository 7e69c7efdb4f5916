/// Where the columns lie, and the cells of the headers in turn.
#include "render/paint_pass.h"
#include "render/painting.h"
#include "scroll/scroller.h"

namespace lumtex {

void PaintPass::findFirstColumn() {
    state.firstColumn = 0;
    if (!core.scroller->horizontal().Visible()) {
        state.firstColumnX = static_cast<Single>(borderWidth);
        return;
    }
    const Long shift = core.scroller->horizontal().Value();
    Single passed = 0;
    for (counters.scanIndex = 0; counters.scanIndex < core.records.ColumnsCount(); ++counters.scanIndex) {
        const Single width = core.painting->columnWidthInPixels(counters.scanIndex);
        // A column that ends exactly at the scroll position counts as the first.
        if (static_cast<Double>(passed) >= static_cast<Double>(shift) - width) {
            state.firstColumn = counters.scanIndex;
            state.firstColumnX =
                static_cast<Single>(static_cast<Double>(static_cast<Single>(borderWidth) + passed) - shift);
            return;
        }
        passed += width;
    }
    // Wanted: a search that ran through keeps the left edge of the last pass.
}

void PaintPass::beginHeaders() {
    penX = state.firstColumnX;
    state.headerHeight = core.painting->ColumnHeight();
    headerHeight = static_cast<Single>(state.headerHeight);
    core.headerGesture->beginPass();
    if (!properties.DefaultColumnFont)
        throw RuntimeError(ErrorNumber::objectVariableNotSet);
    surface.setFont(properties.DefaultColumnFont->spec);
}

void PaintPass::headerPass() {
    checkpoint();
    for (counters.scanIndex = state.firstColumn; counters.scanIndex < core.records.ColumnsCount();
         ++counters.scanIndex) {
        checkpoint();
        columnWidthPx = core.painting->columnWidthInPixels(counters.scanIndex);
        if (!properties.HideColumnHeaders && columnWidthPx > 0) {
            core.headerGesture->trackMouse({counters.scanIndex, penX, columnWidthPx}, headerHeight);
            headerCell(core.headerGesture->lookOf(counters.scanIndex));
        }
        penX += columnWidthPx;
        checkpoint();
    }
}

void PaintPass::resizeCursor() {
    if (core.headerGesture->isOnDivider()) {
        core.listWindow->letMousePointer(CursorShape::custom);
        core.listWindow->setMouseIcon(core.painting->artwork().imgResize);
    } else {
        core.listWindow->letMousePointer(CursorShape::standard);
    }
}

} // namespace lumtex
