#include "bars/wheel.h"

#include "guards/procedure.h"
#include "platform/world.h"
#include "values/rounding.h"

namespace lumtex::bars {

namespace {

constexpr Double deltaOfNotch = 120;

} // namespace

Wheel::Wheel(Runtime& runtime, WheelScroll wheelScroll, ControlLife* life)
    : runtime_(runtime), life_(life), wheelScroll_(std::move(wheelScroll)) {}

Wheel::Wheel(World& world, Window& parent, WheelScroll wheelScroll, ControlLife* life)
    : Wheel(world.runtime(), std::move(wheelScroll), life) {
    hook_ = world.createWheelHook(parent,
                                  [this](WindowHandle hWnd, Long delta, Integer Keys, Single X, Single Y) {
                                      WndProc(hWnd, delta, Keys, X, Y);
                                  });
}

void Wheel::EnableWheel(WindowHandle window) {
    if (listensTo_ != 0)
        return;
    listensTo_ = window;
    if (hook_ && window != 0)
        hook_->Subclass(window);
}

void Wheel::DisableWheel() {
    if (hook_ && listensTo_ != 0)
        hook_->UnSubclass(listensTo_);
    listensTo_ = 0;
}

bool Wheel::WndProc(WindowHandle hWnd, Long delta, Integer Keys, Single X, Single Y) {
    if (!isListeningTo(hWnd))
        return false;
    Procedure p{runtime_, u"WheelProc", ModuleKind::module, u"basWheel", life_};
    p.step([&] {
        // Wanted: less than half a notch is a turn by 0, and half a notch rounds to the even number.
        Integer rotation = roundToInteger(delta / deltaOfNotch);
        wheelScroll_(rotation, Keys, X, Y);
    });
    return true;
}

} // namespace lumtex::bars
