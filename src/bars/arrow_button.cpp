#include "bars/arrow_button.h"

#include "drawing/picture_size.h"
#include "records/enumerations.h"

namespace lumtex::bars {

ArrowButton::ArrowButton(
    World& world, Window& parent, Arrow arrow, std::function<void()> step, ControlLife* life)
    : world_(world), life_(life), traits_(traitsOf(arrow)), step_(std::move(step)),
      img_(ScrollArtwork::standard().buttonOf(arrow)), window_(world.createWindow(&parent, *this)),
      Timer1(world.createTimer([this] { Timer1_Timer(); })) {
    window_->letTakesKeys(false);
    UserControl_Resize();
    RedrawButton();
    window_->letVisible(true);
}

Procedure ArrowButton::procedure(StringView name) const {
    return {world_.runtime(), name, ModuleKind::control, traits_.moduleName, life_};
}

void ArrowButton::letC(Long style) {
    c_ = style;
    RedrawButton();
}

void ArrowButton::letEn(bool enabled) {
    en_ = enabled;
    RedrawButton();
}

void ArrowButton::letColor(OLE_COLOR ArrowColors::*role, OLE_COLOR color) {
    colors_.*role = color;
    RedrawButton();
}

void ArrowButton::UC_MDown() {
    Procedure p = procedure(u"UC_MDown");
    UserControl_MouseDown(leftButton, 0, 0, 0);
    RedrawButton();
}

void ArrowButton::UC_MUp() {
    UserControl_MouseUp(leftButton, 0, -1, -1);
}

void ArrowButton::UserControl_MouseDown(Integer /*Button*/, Integer /*Shift*/, Single /*X*/, Single /*Y*/) {
    Procedure p = procedure(u"UserControl_MouseDown");
    hover_.down = true;
    RedrawButton();
    p.step(step_);
    // A release that came in with the event has gone already: the timer notices at its first tick.
    p.step([&] { Timer1->letInterval(firstInterval); });
    p.step([&] { Timer1->letEnabled(true); });
}

void ArrowButton::Timer1_Timer() {
    Procedure p = procedure(u"Timer1_Timer");
    if (!hover_.down) {
        p.step([&] { Timer1->letEnabled(false); });
        return;
    }
    if (Timer1->Interval() == firstInterval) {
        p.step([&] { Timer1->letInterval(repeatInterval); });
        return;
    }
    // Wanted: the pointer's last place over the button counts, also while it is over the trough.
    p.step([&] { hover_.MouseOut(*window_, lastX_, lastY_); });
    if (hover_.over)
        p.step(step_);
}

void ArrowButton::UserControl_MouseMove(Integer /*Button*/, Integer /*Shift*/, Single X, Single Y) {
    Procedure p = procedure(u"UserControl_MouseMove");
    p.step([&] { hover_.MouseOut(*window_, X, Y); });
    lastX_ = X;
    lastY_ = Y;
    RedrawButton();
}

// Wanted: a release leaves the hover look as it is, also one that the trough made.
void ArrowButton::UserControl_MouseUp(Integer /*Button*/, Integer /*Shift*/, Single /*X*/, Single /*Y*/) {
    Procedure p = procedure(u"UserControl_MouseUp");
    hover_.down = false;
    RedrawButton();
    p.step([&] { Timer1->letEnabled(false); });
}

void ArrowButton::UserControl_Resize() {
    Procedure p = procedure(u"UserControl_Resize");
    p.step([&] {
        const Surface& surface = window_->surface();
        const Picture& first = pictureAt(img_, 1);
        window_->place(window_->Left(),
                       window_->Top(),
                       static_cast<Single>(drawing::GetPictureWidth(surface, first)),
                       static_cast<Single>(drawing::GetPictureHeight(surface, first)));
    });
}

void ArrowButton::RedrawButton() {
    Procedure p = procedure(u"RedrawButton");
    if (c_ == cScrollCustom) {
        paintCustom(p);
    } else {
        ButtonLook look = hover_.down ? ButtonLook::pressed : ButtonLook::hover;
        if (!en_)
            look = ButtonLook::disabled;
        else if (!hover_.over)
            look = ButtonLook::normal;
        const Double index = 1.0 * c_ * buttonPictures + static_cast<Byte>(look);
        p.step([&] { window_->surface().paintPicture(pictureAt(img_, index), 0, 0); });
    }
    p.step([&] { window_->present(); });
}

// Wanted: a disabled button of the custom style looks as an enabled one.
void ArrowButton::paintCustom(Procedure& p) {
    Surface& surface = window_->surface();
    OLE_COLOR face = colors_.Button;
    OLE_COLOR arrow = colors_.Arrow;
    if (hover_.over) {
        face = hover_.down ? colors_.ButtonDown : colors_.ButtonHover;
        arrow = hover_.down ? colors_.ArrowDown : colors_.ArrowHover;
    }
    p.step([&] { surface.letBackColor(face); });
    p.step([&] { surface.letForeColor(arrow); });
    p.step([&] { DrawArrow(surface, traits_); });
}

} // namespace lumtex::bars
