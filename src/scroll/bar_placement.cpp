/// Where the bars lie, and whether they show.
#include "model/list_view.h"

namespace lumtex {

void lmListView::CheckScrollPlacement() {
    Procedure p = procedure(u"CheckScrollPlacement");
    const Surface& surface = window_->surface();
    const auto width = static_cast<Single>(surface.scaleWidth());
    const auto height = static_cast<Single>(surface.scaleHeight());
    const Single border = properties_.BorderVisible ? 1 : 0;
    const bool horizontal = HS->Tag == u"True";
    const bool vertical = VS->Tag == u"True";

    // A bar that is not needed gets a length of 0 before it is hidden.
    Single barWidth = 0;
    Single barHeight = 0;
    if (horizontal) {
        p.step([&] { HS->move(border, height - HS->Height() - border); });
        barWidth = width - 2 * border;
    }
    if (vertical) {
        p.step([&] { VS->move(width - VS->Width() - border, border); });
        barHeight = height - 2 * border;
    }
    if (horizontal && vertical) {
        p.step([&] { VS->letHeight(barHeight - HS->Height()); });
        p.step([&] { HS->letWidth(barWidth - VS->Width()); });
    } else {
        p.step([&] { VS->letHeight(barHeight); });
        p.step([&] { HS->letWidth(barWidth); });
    }
    p.step([&] { VS->letVisible(vertical); });
    p.step([&] { HS->letVisible(horizontal); });
}

void lmListView::UserControl_Resize() {
    Procedure p = procedure(u"UserControl_Resize");
    // Wanted: the ranges, and whether the bars are needed, stay as the last check left them.
    CheckScrollPlacement();
    Redraw();
}

} // namespace lumtex
