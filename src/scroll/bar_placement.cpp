/// Where the bars lie, and whether they show.
#include "model/list_view.h"
#include "scroll/scroller.h"

namespace lumtex {

void Scroller::CheckScrollPlacement() {
    Procedure p = procedure(u"CheckScrollPlacement");
    const Surface& surface = window_.surface();
    const auto width = static_cast<Single>(surface.scaleWidth());
    const auto height = static_cast<Single>(surface.scaleHeight());
    const Single border = properties_.BorderVisible ? 1 : 0;
    const bool horizontal = HS_->Tag == u"True";
    const bool vertical = VS_->Tag == u"True";

    // A bar that is not needed gets a length of 0 before it is hidden.
    Single barWidth = 0;
    Single barHeight = 0;
    if (horizontal) {
        p.step([&] { HS_->move(border, height - HS_->Height() - border); });
        barWidth = width - 2 * border;
    }
    if (vertical) {
        p.step([&] { VS_->move(width - VS_->Width() - border, border); });
        barHeight = height - 2 * border;
    }
    if (horizontal && vertical) {
        p.step([&] { VS_->letHeight(barHeight - HS_->Height()); });
        p.step([&] { HS_->letWidth(barWidth - VS_->Width()); });
    } else {
        p.step([&] { VS_->letHeight(barHeight); });
        p.step([&] { HS_->letWidth(barWidth); });
    }
    p.step([&] { VS_->letVisible(vertical); });
    p.step([&] { HS_->letVisible(horizontal); });
}

void Scroller::resize() {
    Procedure p = procedure(u"UserControl_Resize");
    // Wanted: the ranges, and whether the bars are needed, stay as the last check left them.
    CheckScrollPlacement();
    list_.Redraw();
}

} // namespace lumtex
