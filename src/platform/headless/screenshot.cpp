/// What a user would see of a window.
#include "platform/headless/desktop.h"
#include "platform/headless/headless_widgets.h"
#include "platform/raster/canvas.h"

#include <algorithm>

namespace lumtex {

namespace {

/// Copies `source` to (`left`, `top`) of `target`, clipped.
void lay(Bitmap& target, const Bitmap& source, Long left, Long top) {
    const raster::Canvas canvas{target.pixels.data(), target.width, target.height};
    raster::blendPicture(canvas,
                         source,
                         {0, 0, source.width, source.height},
                         {left, top, left + source.width, top + source.height});
}

} // namespace

Bitmap Desktop::screenshot(const Window& window) const {
    const auto& shown = static_cast<const HeadlessWindow&>(window);
    Bitmap picture = shown.surface().image();
    const raster::Canvas canvas{picture.pixels.data(), picture.width, picture.height};
    for (const HeadlessGuideLine* line : guideLines_) {
        if (&line->parent() == &shown && line->Visible()) {
            raster::drawLine(canvas,
                             {static_cast<Long>(line->X1()), static_cast<Long>(line->Y1())},
                             {static_cast<Long>(line->X2()), static_cast<Long>(line->Y2())},
                             0xFF000000U);
        }
    }
    for (const HeadlessWindow* child : windows_) {
        if (child->parent() == &shown && child->Visible())
            lay(picture, screenshot(*child), child->left_, child->top_);
    }
    for (const HeadlessTextBox* box : textBoxes_) {
        if (&box->parent() != &shown || !box->Visible())
            continue;
        RasterSurface field(static_cast<Long>(box->Width()), static_cast<Long>(box->Height()), fonts_);
        field.setFont(box->font());
        field.letForeColor(box->ForeColor());
        const String text = box->Text();
        const auto start = static_cast<std::size_t>(box->SelStart());
        const auto length = static_cast<std::size_t>(box->SelLength());
        const Single from = 1 + field.textWidth(StringView(text).substr(0, start));
        const Single to = from + field.textWidth(StringView(text).substr(start, length));
        if (length > 0)
            field.fillBox(from, 0, to, box->Height(), 0x8000000DU);
        field.letCurrentX(1);
        field.letCurrentY((box->Height() - field.textHeight(text)) / 2);
        field.print(text);
        lay(picture, field.image(), static_cast<Long>(box->Left()), static_cast<Long>(box->Top()));
    }
    return picture;
}

} // namespace lumtex
