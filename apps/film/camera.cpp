#include "camera.h"

#include <array>
#include <string_view>

namespace lumtex::film {

namespace {

constexpr OLE_COLOR captionPaper = 0x5A4A3C;
constexpr OLE_COLOR captionInk = 0xFFFFFF;
constexpr Single captionLeft = 10;
constexpr Single captionTop = 5;

// X is black, o is white; its tip is the left upper corner.
constexpr std::array<std::string_view, 18> arrow = {{
    "X          ",
    "XX         ",
    "XoX        ",
    "XooX       ",
    "XoooX      ",
    "XooooX     ",
    "XoooooX    ",
    "XooooooX   ",
    "XoooooooX  ",
    "XooooooooX ",
    "XoooooXXXXX",
    "XooXooX    ",
    "XoX XooX   ",
    "XX  XooX   ",
    "X    XooX  ",
    "     XooX  ",
    "      XX   ",
    "           ",
}};

void drawPointer(Bitmap& picture, Point tip) {
    for (Long y = 0; y < static_cast<Long>(arrow.size()); ++y)
        for (Long x = 0; x < static_cast<Long>(arrow[0].size()); ++x) {
            const char role = arrow[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)];
            const Point at{tip.x + x, tip.y + y};
            const bool inside = at.x >= 0 && at.x < picture.width && at.y >= 0 && at.y < picture.height;
            if (role != ' ' && inside)
                picture.at(at.x, at.y) = role == 'X' ? 0xFF000000 : 0xFFFFFFFF;
        }
}

} // namespace

Bitmap Camera::picture() const {
    const Bitmap shown = desktop_.screenshot(window_);
    const std::unique_ptr<Surface> sheet = desktop_.createSurface(shown.width, shown.height + captionHeight);
    sheet->letBackColor(captionPaper);
    sheet->letForeColor(captionInk);
    sheet->setFont({.Name = u"Verdana", .Size = 9});
    sheet->print(captionLeft, static_cast<Single>(shown.height) + captionTop, caption_);
    sheet->paintPicture(BitmapPicture(shown), 0, 0);
    Bitmap whole = sheet->image();
    const Point corner = desktop_.onDesktop(window_, 0, 0);
    drawPointer(whole, {desktop_.pointer().x - corner.x, desktop_.pointer().y - corner.y});
    return whole;
}

void Camera::film(std::chrono::milliseconds span) {
    for (; span >= tick; span -= tick) {
        Bitmap now = picture();
        if (frames_.empty() || frames_.back().picture != now)
            frames_.push_back({std::move(now), {}});
        frames_.back().shown += tick;
        desktop_.advance(tick);
    }
}

} // namespace lumtex::film
