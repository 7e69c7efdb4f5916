#include "bars/scroll_thumb.h"

#include "drawing/picture_size.h"
#include "records/enumerations.h"
#include "values/rounding.h"

#include <array>

namespace lumtex::bars {

namespace {

constexpr Single shortestWithGrip = 14; // pixels

/// Edges of the three schemes, 0xBBGGRR.
struct EdgeColors {
    OLE_COLOR c0;
    OLE_COLOR c3;
    OLE_COLOR c4;
};

// clang-format off
constexpr std::array<EdgeColors, 3> edgeColors{{
    {0xE5EDEE, 0xD39F7C, 0xDCB59A}, // blue
    {0xE5EDEE, 0xAC9E9D, 0x9A8C8B}, // silver
    {0xE5EDEE, 0x619082, 0x75998F}, // olive
}};
// clang-format on

constexpr OLE_COLOR silverHoverEdge = 0x65665B;
constexpr OLE_COLOR silverSide = 0xA29594;
constexpr OLE_COLOR silverTop = 0xBFB7B7;
constexpr OLE_COLOR silverFoot = 0xDFD1D0;

} // namespace

ScrollThumb::ScrollThumb(World& world, Window& parent, Axis axis, Events events, ControlLife* life)
    : world_(world), life_(life), axis_(axis), events_(std::move(events)),
      img_(ScrollArtwork::standard().thumbOf(axis)), window_(world.createWindow(&parent, *this)) {
    window_->letTakesKeys(false);
    window_->letVisible(true);
}

Procedure ScrollThumb::procedure(StringView name) const {
    return {world_.runtime(),
            name,
            ModuleKind::control,
            axis_ == Axis::vertical ? StringView(u"VScrollBar") : StringView(u"HScrollBar"),
            life_};
}

void ScrollThumb::letC(Long style) {
    c_ = style;
    RedrawScroll();
}

void ScrollThumb::letEn(bool enabled) {
    en_ = enabled;
    RedrawScroll();
}

void ScrollThumb::letBar(OLE_COLOR color) {
    bar_ = color;
    RedrawScroll();
}

void ScrollThumb::letBarDown(OLE_COLOR color) {
    barDown_ = color;
    RedrawScroll();
}

void ScrollThumb::letBarHover(OLE_COLOR color) {
    barHover_ = color;
    RedrawScroll();
}

void ScrollThumb::UserControl_MouseDown(Integer Button, Integer /*Shift*/, Single X, Single Y) {
    Procedure p = procedure(u"UserControl_MouseDown");
    hover_.down = true;
    p.step([&] { events_.mouseDown(Button, X, Y); });
    RedrawScroll();
}

void ScrollThumb::UserControl_MouseMove(Integer Button, Integer /*Shift*/, Single X, Single Y) {
    Procedure p = procedure(u"UserControl_MouseMove");
    p.step([&] { hover_.MouseOut(*window_, X, Y); });
    p.step([&] { events_.mouseMove(Button, X, Y); });
    if (!hover_.down)
        RedrawScroll();
}

void ScrollThumb::UserControl_MouseUp(Integer /*Button*/, Integer /*Shift*/, Single /*X*/, Single /*Y*/) {
    Procedure p = procedure(u"UserControl_MouseUp");
    hover_.down = false;
    p.step([&] { events_.mouseUp(); });
    RedrawScroll();
}

void ScrollThumb::UserControl_Resize() {
    RedrawScroll();
}

void ScrollThumb::RedrawScroll() {
    Procedure p = procedure(u"RedrawScroll");
    Surface& surface = window_->surface();
    p.step([&] { surface.Cls(); });
    if (c_ == cScrollCustom) {
        OLE_COLOR color = bar_;
        if (hover_.over)
            color = hover_.down ? barDown_ : barHover_;
        p.step([&] { surface.letBackColor(color); });
    } else {
        paintScheme(p);
    }
    p.step([&] { window_->present(); });
}

void ScrollThumb::paintScheme(Procedure& p) {
    Surface& surface = window_->surface();
    // A press that has slid off the thumb keeps the pressed look.
    ThumbLook look = hover_.over ? ThumbLook::hover : ThumbLook::normal;
    if (hover_.down)
        look = ThumbLook::pressed;
    p.step([&] { imageIndex_ = roundToByte(1.0 * c_ * thumbPictures + static_cast<Byte>(look)); });

    const bool known = c_ >= 0 && c_ < static_cast<Long>(edgeColors.size());
    const EdgeColors edges = known ? edgeColors[static_cast<std::size_t>(c_)] : EdgeColors{};
    const auto w = static_cast<Single>(surface.scaleWidth());
    const auto h = static_cast<Single>(surface.scaleHeight());
    p.step([&] {
        // Wanted: the height is in twips, so that the first row of the body covers the whole thumb.
        const Single height = scaleY(surface, window_->Height(), Unit::pixels, Unit::twips) - 1;
        surface.paintPicture(pictureAt(img_, imageIndex_), 1, 0, w - 2, height);
    });
    // Wanted: the box of a horizontal thumb ends one pixel further in.
    const Single boxEnd = axis_ == Axis::vertical ? w - 1 : w - 2;
    p.step([&] { surface.box(0, 0, boxEnd, h - 2, white); });
    p.step([&] { surface.line(2, h - 1, w - 1, h - 1, edges.c3); });
    p.step([&] { surface.pset(0, h - 1, edges.c0); });
    p.step([&] { surface.pset(0, h - 2, edges.c4); });
    p.step([&] { surface.pset(1, h - 1, edges.c4); });
    p.step([&] { surface.pset(w - 1, h - 1, edges.c0); });
    p.step([&] { surface.pset(w - 1, h - 2, edges.c4); });
    if (AlongAxis(axis_).along(w, h) >= shortestWithGrip) {
        p.step([&] {
            const Picture& grip = pictureAt(img_, imageIndex_ + gripAfterBody);
            surface.paintPicture(grip,
                                 (w - static_cast<Single>(drawing::GetPictureWidth(surface, grip))) / 2,
                                 (h - static_cast<Single>(drawing::GetPictureHeight(surface, grip))) / 2);
        });
    }
    if (c_ == cXPScrollSilver)
        silverEdges(p, w, h);
}

void ScrollThumb::silverEdges(Procedure& p, Single w, Single h) {
    Surface& surface = window_->surface();
    if (hover_.over) {
        p.step([&] { surface.line(0, 1, 0, h - 2, silverHoverEdge); });
        p.step([&] { surface.line(w - 1, 1, w - 1, h - 2, silverHoverEdge); });
        p.step([&] { surface.line(2, h - 1, w - 1, h - 1, silverHoverEdge); });
        p.step([&] { surface.line(1, 0, w - 2, 0, silverHoverEdge); });
    } else {
        p.step([&] { surface.line(0, 1, 0, h - 2, silverSide); });
        p.step([&] { surface.line(w - 1, 1, w - 1, h - 2, silverSide); });
        p.step([&] { surface.pset(1, 0, silverSide); });
        p.step([&] { surface.pset(w - 1, 0, silverSide); });
        p.step([&] { surface.line(w - 2, 2, w - 2, h - 3, white); });
        p.step([&] { surface.line(1, 0, w - 2, 0, silverTop); });
    }
    p.step([&] { surface.line(1, h - 2, w - 2, h - 2, silverFoot); });
}

} // namespace lumtex::bars
