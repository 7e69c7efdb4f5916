/// Where the columns lie, what the mouse does to them, and which of their headers has which look.
#include "render/paint_pass.h"

namespace lumtex {

namespace {

/// Reach of the divider's grip on both sides of it, in pixels.
constexpr Single grip = 5;

} // namespace

void PaintPass::findFirstColumn() {
    state.firstColumn = 0;
    if (!list.HS->Visible()) {
        state.firstColumnX = static_cast<Single>(borderWidth);
        return;
    }
    const Long shift = list.HS->Value();
    Single passed = 0;
    for (state.scanIndex = 0; state.scanIndex < list.ColumnsCount(); ++state.scanIndex) {
        const Single width = list.columnWidthInPixels(state.scanIndex);
        // A column that ends exactly at the scroll position counts as the first.
        if (static_cast<Double>(passed) >= static_cast<Double>(shift) - width) {
            state.firstColumn = state.scanIndex;
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
    headerHeight = static_cast<Single>(list.ColumnHeight());
    list.headerPress_.hoverColumn = -1;
    if (!properties.DefaultColumnFont)
        throw RuntimeError(objectVariableNotSet);
    surface.setFont(properties.DefaultColumnFont->spec);
}

void PaintPass::headerPass() {
    checkpoint();
    for (state.scanIndex = state.firstColumn; state.scanIndex < list.ColumnsCount(); ++state.scanIndex) {
        checkpoint();
        columnWidthPx = list.columnWidthInPixels(state.scanIndex);
        if (!properties.HideColumnHeaders && columnWidthPx > 0) {
            trackMouse();
            headerCell(headerLook());
        }
        penX += columnWidthPx;
        checkpoint();
    }
}

/// Decides what the mouse is doing to the column at `penX`, since only a pass knows where the columns are.
void PaintPass::trackMouse() {
    const MouseState& mouse = list.mouse_;
    HeaderPressState& press = list.headerPress_;
    const Long column = state.scanIndex;
    const Single right = penX + columnWidthPx;
    if (!mouse.mouseInside || mouse.lastMouseX < penX || mouse.lastMouseX >= right)
        return;
    press.currentColumn = column;
    if (mouse.lastMouseY < 0 || mouse.lastMouseY > headerHeight)
        return;

    // Wanted: the grip names both sides of the divider, but only points inside this column get here.
    if (right - grip <= mouse.lastMouseX && mouse.lastMouseX < right + grip && press.pressedColumn == -1 &&
        !press.resizing)
        press.resizeColumn = column;
    press.hoverColumn = press.resizeColumn != -1 && press.resizing ? press.resizeColumn : column;

    if (!properties.FixColumns && mouse.lastMouseButton == leftButton && press.resizeColumn != -1 &&
        press.pressedColumn == -1 && !press.resizing) {
        press.resizing = true;
        GuideLine& guide = *list.Line1;
        guide.letY1(0);
        guide.letY2(static_cast<Single>(surface.scaleHeight()));
        guide.letX1(mouse.lastMouseX);
        guide.letX2(mouse.lastMouseX);
        guide.letVisible(true);
        press.pressPending = false;
    } else if (press.pressPending && mouse.lastMouseButton == leftButton && !press.resizing) {
        press.pressedColumn = column;
        press.pressPending = false;
    }
}

PaintPass::HeaderLook PaintPass::headerLook() const {
    const HeaderPressState& press = list.headerPress_;
    if (press.hoverColumn != state.scanIndex)
        return HeaderLook::normal;
    const bool down = press.pressedColumn == state.scanIndex && list.mouse_.lastMouseButton == leftButton;
    return down ? HeaderLook::down : HeaderLook::hover;
}

void PaintPass::resizeCursor() {
    const HeaderPressState& press = list.headerPress_;
    const bool overDivider = !properties.FixColumns && !properties.HideColumnHeaders &&
                             list.mouse_.lastMouseY <= static_cast<Single>(list.ColumnHeight()) &&
                             (press.resizing || press.resizeColumn != -1);
    if (overDivider) {
        list.window_->letMousePointer(pointerCustom);
        list.window_->setMouseIcon(list.artwork_.imgResize);
    } else {
        list.window_->letMousePointer(pointerDefault);
    }
}

} // namespace lumtex
