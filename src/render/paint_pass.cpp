/// The order of a repaint.
#include "render/paint_pass.h"

#include "drawing/picture_size.h"
#include "guards/failure_of.h"
#include "render/painting.h"
#include "scroll/scroller.h"

#include <limits>

namespace lumtex {

PaintPass::PaintPass(ListViewCore& owner, PaintState& kept, Procedure& p)
    : PaintPassValues(owner, kept, p, owner.listWindow->surface()) {}

void PaintPass::run() {
    if (state.paintBusy)
        return;
    state.paintBusy = true;
    try {
        runSteps();
        statement([&] { core.listWindow->present(); });
    } catch (const PassEnds&) {
        // Wanted: a pass that gave up leaves `paintBusy` set.
        ignoringErrors([&] { core.listWindow->present(); });
        return;
    }
    // The flag goes first, so that a paint queued meanwhile can run at once.
    state.paintBusy = false;
    state.passes = state.passes == std::numeric_limits<Long>::max() ? 0 : state.passes + 1;
    core.yield(procedure);
}

void PaintPass::runSteps() {
    statement([&] { clear(); });
    borderWidth = properties.BorderVisible ? 1 : 0;
    state.headerHeight = 0;
    state.lastRow = -1;

    // Up to the rows a failure goes to the host as an event, and painting may be tried again.
    const std::optional<RuntimeError> failure = failureOf([&] { backgroundAndHeaders(); });
    if (failure) {
        procedure.raise(
            [&] { core.events().ListViewError(u"Redraw", failure->number(), failure->description()); });
        state.paintBusy = false;
        throw PassEnds{};
    }

    if (core.records.ColumnsCount() != 0 && core.records.RowsCount() != 0)
        rowPass();
    statement([&] { scrollCorner(); });
    if (properties.BorderVisible)
        core.painting->DrawBorder();
}

void PaintPass::clear() {
    surface.Cls();
    surface.letBackColor(properties.Enabled ? properties.BackColor : properties.BackColorDisabled);
}

void PaintPass::backgroundAndHeaders() {
    if (properties.BackgroundPicture)
        paintBackgroundPicture();
    if (core.records.ColumnsCount() == 0)
        return;
    checkpoint();
    findFirstColumn();
    if (!properties.HideColumnHeaders)
        beginHeaders();
    headerPass();
    state.columnsRight = penX;
    if (!properties.HideColumnHeaders)
        emptyColumnField();
    resizeCursor();
    checkpoint();
    if (core.records.RowsCount() != 0)
        hideObjects(1, core.scroller->vertical().Value());
}

void PaintPass::paintBackgroundPicture() {
    const Picture& picture = *properties.BackgroundPicture;
    const Single right = static_cast<Single>(surface.scaleWidth()) - static_cast<Single>(borderWidth);
    const Single bottom = static_cast<Single>(surface.scaleHeight()) - static_cast<Single>(borderWidth);
    const Single barRight = core.scroller->vertical().Visible() ? core.scroller->vertical().Width() : 0;
    // Wanted: the bar's Width, not its Height.
    const Single barBottom = core.scroller->horizontal().Visible() ? core.scroller->horizontal().Width() : 0;
    surface.paintPicture(picture,
                         right - barRight - static_cast<Single>(drawing::GetPictureWidth(surface, picture)),
                         bottom - barBottom -
                             static_cast<Single>(drawing::GetPictureHeight(surface, picture)));
}

void PaintPass::scrollCorner() {
    if (!core.scroller->horizontal().Visible() || !core.scroller->vertical().Visible())
        return;
    const auto width = static_cast<Single>(surface.scaleWidth());
    const auto height = static_cast<Single>(surface.scaleHeight());
    // Wanted: one pixel more, to the left and above, than the square between the bars.
    surface.fillBox(width - core.scroller->vertical().Width() - 1,
                    height - core.scroller->horizontal().Height() - 1,
                    width,
                    height,
                    surface.BackColor());
}

void PaintPass::checkpoint() const {
    if (core.scroller->isPending())
        throw PassEnds{};
}

} // namespace lumtex
