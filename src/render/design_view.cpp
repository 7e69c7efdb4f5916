/// What a designer shows in place of the list.
#include "model/list_view.h"
#include "render/picture_size.h"

namespace lumtex {

namespace {

constexpr Single margin = 3; // pixels

} // namespace

void lmListView::paintDesignView() {
    Procedure p = procedure(u"Redraw");
    Surface& surface = window_->surface();
    p.step([&] { surface.Cls(); });
    p.step([&] {
        surface.letBackColor(properties_.Enabled ? properties_.BackColor : properties_.BackColorDisabled);
    });
    p.step([&] {
        if (properties_.DefaultItemFont)
            surface.setFont(properties_.DefaultItemFont->spec);
    });
    p.step([&] { surface.letForeColor(properties_.DefaultColumnForeColor); });
    p.step([&] {
        if (properties_.Style == cCheckBoxes) {
            const Picture& box = *artwork_.img[1];
            const auto boxHeight = static_cast<Single>(GetPictureHeight(surface, box));
            surface.paintPicture(box, margin, (surface.textHeight(u"A") - boxHeight) / 2 + margin);
            const auto boxWidth = static_cast<Single>(GetPictureWidth(surface, *artwork_.img[2]));
            surface.letCurrentX(margin + boxWidth + margin);
        } else {
            surface.letCurrentX(margin);
        }
    });
    p.step([&] {
        surface.letCurrentY(margin);
        surface.print(host_->extenderName());
    });
    if (properties_.BorderVisible)
        DrawBorder();
    p.step([&] { window_->present(); });
}

} // namespace lumtex
