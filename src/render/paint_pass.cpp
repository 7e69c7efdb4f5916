/// The order of a repaint.
#include "render/paint_pass.h"

#include "drawing/picture_size.h"
#include "guards/failure_of.h"
#include "render/paint_pass_statement.h"

namespace lumtex {

PaintPass::PaintPass(lmListView& owner, Procedure& p)
    : PaintPassValues(owner, p, owner.properties_, owner.paint_, owner.window_->surface()) {}

void PaintPass::run() {
    if (state.paintBusy)
        return;
    state.paintBusy = true;
    try {
        runSteps();
        statement([&] { list.window_->present(); });
    } catch (const PassEnds&) {
        // Wanted: a pass that gave up leaves `paintBusy` set.
        ignoringErrors([&] { list.window_->present(); });
        return;
    }
    // The flag goes first, so that a paint queued meanwhile can run at once.
    state.paintBusy = false;
    list.yield(procedure);
}

void PaintPass::runSteps() {
    statement([&] { clear(); });
    borderWidth = properties.BorderVisible ? 1 : 0;

    // Up to the rows a failure goes to the host as an event, and painting may be tried again.
    const std::optional<RuntimeError> failure = failureOf([&] { backgroundAndHeaders(); });
    if (failure) {
        procedure.raise(
            [&] { list.events_->ListViewError(u"Redraw", failure->number(), failure->description()); });
        state.paintBusy = false;
        throw PassEnds{};
    }

    if (list.ColumnsCount() != 0 && list.RowsCount() != 0)
        rowPass();
    statement([&] { scrollCorner(); });
    if (properties.BorderVisible)
        list.DrawBorder();
}

void PaintPass::clear() {
    surface.Cls();
    surface.letBackColor(properties.Enabled ? properties.BackColor : properties.BackColorDisabled);
}

void PaintPass::backgroundAndHeaders() {
    if (properties.BackgroundPicture)
        paintBackgroundPicture();
    if (list.ColumnsCount() == 0)
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
    if (list.RowsCount() != 0)
        hideObjects(1, list.VS->Value());
}

void PaintPass::paintBackgroundPicture() {
    const Picture& picture = *properties.BackgroundPicture;
    const Single right = static_cast<Single>(surface.scaleWidth()) - static_cast<Single>(borderWidth);
    const Single bottom = static_cast<Single>(surface.scaleHeight()) - static_cast<Single>(borderWidth);
    const Single barRight = list.VS->Visible() ? list.VS->Width() : 0;
    // Wanted: the bar's Width, not its Height.
    const Single barBottom = list.HS->Visible() ? list.HS->Width() : 0;
    surface.paintPicture(picture,
                         right - barRight - static_cast<Single>(GetPictureWidth(surface, picture)),
                         bottom - barBottom - static_cast<Single>(GetPictureHeight(surface, picture)));
}

void PaintPass::scrollCorner() {
    if (!list.HS->Visible() || !list.VS->Visible())
        return;
    const auto width = static_cast<Single>(surface.scaleWidth());
    const auto height = static_cast<Single>(surface.scaleHeight());
    // Wanted: one pixel more, to the left and above, than the square between the bars.
    surface.fillBox(
        width - list.VS->Width() - 1, height - list.HS->Height() - 1, width, height, surface.BackColor());
}

void PaintPass::checkpoint() const {
    if (list.scroll_.scrollPending)
        throw PassEnds{};
}

} // namespace lumtex
