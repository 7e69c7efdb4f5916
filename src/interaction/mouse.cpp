#include "interaction/mouse.h"

namespace lumtex {

namespace {

/// Timers tick as fast as the platform lets them.
constexpr Long timerInterval = 1; // milliseconds

} // namespace

Mouse::Mouse(ListViewCore& core)
    : ListPart(core), tmrMouseIn_(core.world().createTimer([this] { tmrMouseIn_Timer(); })),
      tmrMouseAction_(core.world().createTimer([this] { tmrMouseAction_Timer(); })) {
    tmrMouseIn_->letInterval(timerInterval);
    tmrMouseAction_->letInterval(timerInterval);
}

void Mouse::remember(Integer Button, Single X, Single Y) {
    state_.lastMouseX = X;
    state_.lastMouseY = Y;
    state_.lastMouseButton = Button;
}

void Mouse::stopTimers() {
    tmrMouseIn_->letEnabled(false);
    tmrMouseAction_->letEnabled(false);
}

void Mouse::stopTimers(Procedure& p) {
    p.step([&] { tmrMouseIn_->letEnabled(false); });
    p.step([&] { tmrMouseAction_->letEnabled(false); });
}

} // namespace lumtex
