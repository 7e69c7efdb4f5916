#include "bars/scroll_bar.h"

namespace lumtex::bars {

ScrollBar::ScrollBar(World& world, Window& parent, const BarTraits& traits, Events events, ControlLife* life)
    : world_(world), life_(life), traits_(traits), axis_(traits.axis), events_(std::move(events)),
      window_(world.createWindow(&parent, *this)),
      thumb_(world,
             *window_,
             traits.axis,
             {[this](Integer Button, Single X, Single Y) { thumbMouseDown(Button, X, Y); },
              [this](Integer Button, Single X, Single Y) { thumbMouseMove(Button, X, Y); },
              [this] { thumbMouseUp(); }},
             life),
      low_(
          world, *window_, traits.low, [this] { stepLow(); }, life),
      high_(
          world, *window_, traits.high, [this] { stepHigh(); }, life) {
    window_->letTakesKeys(false);
    layOut();
}

Procedure ScrollBar::procedure(StringView name) const {
    return {world_.runtime(), name, ModuleKind::control, traits_.moduleName, life_};
}

template <class T>
void ScrollBar::store(Procedure& p, T& field, T value, StringView name) {
    field = value;
    p.step([&] { events_.propertyChanged(name); });
}

void ScrollBar::letMin(Long value) {
    Procedure p = procedure(u"Min");
    if (value > max_) {
        p.step([&] {
            world_.runtime().queue().messageBox(
                u"Min darf nicht größer sein als Max!", BoxStyle::critical, {});
        });
        return;
    }
    store(p, min_, value, u"Min");
    ÜberprüfeHeight();
    Redraw();
}

void ScrollBar::letMax(Long value) {
    Procedure p = procedure(u"Max");
    if (value < min_) {
        p.step([&] {
            world_.runtime().queue().messageBox(
                u"Max darf nicht kleiner sein als Min!", BoxStyle::critical, {});
        });
        return;
    }
    store(p, max_, value, u"Max");
    ÜberprüfeHeight();
    Redraw();
}

void ScrollBar::letValue(Long value) {
    Procedure p = procedure(u"Value");
    store(p, value_, value, u"Value");
    Redraw();
}

void ScrollBar::letGradient(bool gradient) {
    Procedure p = procedure(u"Gradient");
    store(p, gradient_, gradient, u"Gradient");
    Redraw();
}

void ScrollBar::letBackColor(OLE_COLOR color) {
    Procedure p = procedure(u"BackColor");
    store(p, backColor_, color, u"BackColor");
    Redraw();
}

void ScrollBar::letColorStyle(Long style) {
    Procedure p = procedure(u"ColorStyle");
    store(p, colorStyle_, style, u"ColorStyle");
    thumb_.letC(style);
    low_.letC(style);
    high_.letC(style);
    Redraw();
}

void ScrollBar::letActiveScrolling(bool active) {
    Procedure p = procedure(u"ActiveScrolling");
    store(p, activeScrolling_, active, u"ActiveScrolling");
    Redraw();
}

void ScrollBar::letSmallChange(Long change) {
    Procedure p = procedure(u"SmallChange");
    store(p, smallChange_, change, u"SmallChange");
}

void ScrollBar::letLargeChange(Long change) {
    Procedure p = procedure(u"LargeChange");
    store(p, largeChange_, change, u"LargeChange");
}

void ScrollBar::letJumpLines(Long lines) {
    Procedure p = procedure(u"ScrollButtonJumpLines");
    store(p, jumpLines_, lines, u"ScrollButtonJumpLines");
}

void ScrollBar::letEnabled(bool enabled) {
    Procedure p = procedure(u"Enabled");
    enabled_ = enabled;
    p.step([&] { window_->letEnabled(enabled); });
    thumb_.letEn(enabled);
    // Wanted: an enabled thumb shows also on a bar too short for it, until the next resize.
    p.step([&] { thumb_.window().letVisible(enabled); });
    low_.letEn(enabled);
    high_.letEn(enabled);
    p.step([&] { events_.propertyChanged(u"Enabled"); });
    Redraw();
}

} // namespace lumtex::bars
