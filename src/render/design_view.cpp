/// What a designer shows in place of the list.
#include "drawing/picture_size.h"
#include "render/painting.h"

namespace lumtex {

namespace {

constexpr Single frameMargin = 3; // pixels

} // namespace

void Painting::paintDesignView() {
    Procedure p = procedure(u"Redraw");
    Surface& surface = window_.surface();
    p.step([&] { surface.Cls(); });
    p.step([&] {
        surface.letBackColor(properties_.Enabled ? properties_.BackColor : properties_.BackColorDisabled);
    });
    p.step([&] {
        // The font goes over as a whole here, in one statement.
        if (!properties_.DefaultItemFont)
            throw RuntimeError(ErrorNumber::objectVariableNotSet);
        surface.setFont(properties_.DefaultItemFont->spec);
    });
    p.step([&] { surface.letForeColor(properties_.DefaultColumnForeColor); });
    Single left = 0;
    if (properties_.Style == cCheckBoxes) {
        p.step([&] {
            const Picture& box = *artwork_.img[1];
            const auto boxHeight = static_cast<Single>(drawing::GetPictureHeight(surface, box));
            surface.paintPicture(box, frameMargin, (surface.textHeight(u"A") - boxHeight) / 2 + frameMargin);
        });
        p.step([&] {
            const auto boxWidth = static_cast<Single>(drawing::GetPictureWidth(surface, *artwork_.img[2]));
            left = frameMargin + boxWidth + frameMargin;
        });
    } else {
        left = frameMargin;
    }
    p.step([&] { surface.print(left, frameMargin, core_.host().extenderName()); });
    if (properties_.BorderVisible)
        DrawBorder();
    p.step([&] { window_.present(); });
}

} // namespace lumtex
