#include "interaction/header_gesture.h"

#include "interaction/mouse.h"
#include "model/list_view.h"
#include "render/painting.h"
#include "scroll/scroller.h"
#include "sortfind/sorter.h"

#include <algorithm>

namespace lumtex {

namespace {

/// Pixels on both sides of a header that belong to the dividers.
constexpr Single dividerMargin = 5;

} // namespace

HeaderGesture::HeaderGesture(ListViewCore& core)
    : ListPart(core), Line1_(core.world().createGuideLine(*core.listWindow)) {}

void HeaderGesture::beginPress() {
    state_.pressPending = true;
    state_.currentColumn = -1;
    state_.columnHeld = false;
}

/// A header is held down from here only well inside its edges; a paint may still decide otherwise.
void HeaderGesture::pressColumn(Single X, Single Y) {
    const std::optional<ColumnSpan> hit = core_.mouse->columnUnder(X);
    if (!hit)
        return;
    state_.currentColumn = hit->column;
    if (!properties_.HideColumnHeaders && Y <= static_cast<Single>(core_.painting->ColumnHeight()) &&
        X > hit->left + dividerMargin && X < hit->left + hit->width - dividerMargin)
        state_.pressedColumn = hit->column;
}

void HeaderGesture::moveWithoutButton() {
    state_.pressedColumn = -1;
    state_.resizing = false;
    state_.resizeColumn = -1;
    state_.pressPending = false;
}

void HeaderGesture::moveOverHeaders(Single X, Single Y, Procedure& p) {
    if (state_.resizing) {
        p.step([&] { Line1_->place(X, static_cast<Single>(window_.surface().scaleHeight())); });
    }
    const auto height = static_cast<Single>(core_.painting->ColumnHeight());
    if (Y <= height)
        list_.Redraw();
    // Wanted: a move on the exact line paints twice.
    if (state_.hoverColumn != -1 && Y >= height)
        list_.Redraw();
    if (!properties_.HideColumnHeaders && Y > static_cast<Single>(core_.painting->ColumnHeight()))
        p.step([&] { window_.letMousePointer(CursorShape::standard); });
}

void HeaderGesture::trackMouse(const ColumnSpan& span, Single headerHeight) {
    const Mouse& mouse = *core_.mouse;
    const Single right = span.left + span.width;
    if (!mouse.isInside() || mouse.lastX() < span.left || mouse.lastX() >= right)
        return;
    if (!state_.columnHeld)
        state_.currentColumn = span.column;
    if (mouse.lastY() < 0 || mouse.lastY() > headerHeight)
        return;

    // Wanted: the grip names both sides of the divider, but only points inside this column get here.
    if (right - dividerMargin <= mouse.lastX() && mouse.lastX() < right + dividerMargin &&
        state_.pressedColumn == -1 && !state_.resizing)
        state_.resizeColumn = span.column;
    state_.hoverColumn = state_.resizeColumn != -1 && state_.resizing ? state_.resizeColumn : span.column;

    if (!properties_.FixColumns && mouse.lastButton() == leftButton && state_.resizeColumn != -1 &&
        state_.pressedColumn == -1 && !state_.resizing) {
        state_.resizing = true;
        Line1_->place(mouse.lastX(), static_cast<Single>(window_.surface().scaleHeight()));
        Line1_->letVisible(true);
        state_.pressPending = false;
    } else if (state_.pressPending && mouse.lastButton() == leftButton && !state_.resizing) {
        state_.pressedColumn = span.column;
        state_.pressPending = false;
    }
}

HeaderLook HeaderGesture::lookOf(Long column) const {
    if (state_.hoverColumn != column)
        return HeaderLook::normal;
    const bool down = state_.pressedColumn == column && core_.mouse->lastButton() == leftButton;
    return down ? HeaderLook::down : HeaderLook::hover;
}

// Wanted: the mouse button does not decide here, unlike for the look.
bool HeaderGesture::isHeldDown(Long column) const {
    return state_.pressedColumn == column && state_.hoverColumn == column;
}

bool HeaderGesture::isOnDivider() const {
    return !properties_.FixColumns && !properties_.HideColumnHeaders &&
           core_.mouse->lastY() <= static_cast<Single>(core_.painting->ColumnHeight()) &&
           (state_.resizing || state_.resizeColumn != -1);
}

void HeaderGesture::release(Single X, Procedure& p) {
    const std::optional<ColumnSpan> hit = core_.mouse->columnUnder(X);
    state_.currentColumn = hit ? hit->column : -1;
    if (!properties_.FixColumns && state_.resizeColumn != -1 && state_.resizing)
        endResize(X, p);
    if (state_.hoverColumn == state_.pressedColumn && state_.hoverColumn != -1)
        clickColumn(p);
    end(p);
}

void HeaderGesture::endResize(Single X, Procedure& p) {
    const Surface& surface = window_.surface();
    const Long resized = state_.resizeColumn;
    const auto oldWidth = p.value<Single>([&] { return records_.columnAt(resized).Width; });
    const auto newWidth = p.value<Single>([&] {
        const Double right = static_cast<Double>(X) + core_.scroller->horizontal().Value();
        return scaleX(surface, right, Unit::pixels, Unit::twips) - records_.columnAt(resized).Left;
    });
    const Single minWidth =
        scaleX(surface, properties_.IconW / 2 + properties_.IconW, Unit::pixels, Unit::twips);
    p.step([&] { records_.columnAt(resized).Width = std::max(newWidth, minWidth); });
    for (Long i = std::max<Long>(resized, 0); i < records_.ColumnsCount() - 1; ++i) {
        // Wanted: what is taken off is always the old width of the resized column, so only its first
        // neighbour moves by the true amount.
        p.step([&] {
            records_.columnAt(i + 1).Left =
                records_.columnAt(i + 1).Left + records_.columnAt(i).Width - oldWidth;
        });
    }
    list_.CheckScroll();
}

void HeaderGesture::clickColumn(Procedure& p) {
    Long column = state_.hoverColumn + 1;
    p.raise([&] { core_.events().ColumnClick(column); });
    if (p.condition([&] { return records_.columnAt(state_.hoverColumn).AllowSorting; }, false))
        core_.sorter->sortByClick(state_.hoverColumn);
}

void HeaderGesture::activate(Long column) {
    Procedure p = procedure(u"Activate");
    Long clicked = column + 1;
    p.raise([&] { core_.events().ColumnClick(clicked); });
    if (p.condition([&] { return records_.columnAt(column).AllowSorting; }, false))
        core_.sorter->sortByClick(column);
    list_.Redraw();
}

void HeaderGesture::end(Procedure& p) {
    state_.pressedColumn = -1;
    state_.resizing = false;
    p.step([&] { Line1_->letVisible(false); });
    state_.resizeColumn = -1;
    state_.pressPending = false;
    core_.yield(p);
    list_.Redraw();
}

void HeaderGesture::forgetColumns() {
    state_.pressedColumn = -1;
    state_.hoverColumn = -1;
}

} // namespace lumtex
