/// Birth of the control, and what all its rooms stand on.
#include "model/list_view.h"

#include "platform/queue_watch.h"

namespace lumtex {

namespace {

/// The client area at design time, in twips.
constexpr Single designWidth = 4635;
constexpr Single designHeight = 3900;

/// Timers tick as fast as the platform lets them.
constexpr Long timerInterval = 1; // milliseconds

const FontSpec designFont{.Name = u"Verdana", .Size = 9.75F};

} // namespace

lmListView::lmListView(World& world, Host& host, lmListViewEvents& events, Window* parent)
    : ListViewLife(this, destroy), world_(world), host_(&host), events_(&events),
      window_(world.createWindow(parent, *this)),
      VS(std::make_unique<lmVScroll>(
          world, *window_, ScrollBar::Events{[this] { VS_Change(); }, [this] { VS_Scroll(); }}, &life_)),
      HS(std::make_unique<lmHScroll>(
          world, *window_, ScrollBar::Events{[this] { HS_Change(); }, [this] { HS_Scroll(); }}, &life_)),
      Wheel1(std::make_unique<Wheel>(
          world,
          *window_,
          [this](Integer& Rotation, Integer& Keys, Single& X, Single& Y) {
              Wheel1_WheelScroll(Rotation, Keys, X, Y);
          },
          &life_)),
      txtEdit(world.createTextBox(*window_, *this)), Line1(world.createGuideLine(*window_)),
      tmrMouseIn(world.createTimer([this] { tmrMouseIn_Timer(); })),
      tmrMouseAction(world.createTimer([this] { tmrMouseAction_Timer(); })),
      Picture1(world.createSurface(1, 1)) {
    lblFont = std::make_shared<Font>(designFont);
    VS->UserControl_InitProperties();
    HS->UserControl_InitProperties();
    tmrMouseIn->letInterval(timerInterval);
    tmrMouseAction->letInterval(timerInterval);
    // The size of the design comes before the properties, so it must not paint.
    paint_.paintBusy = true;
    const Surface& surface = window_->surface();
    window_->place(
        0, 0, scaleX(surface, designWidth, twips, pixels), scaleY(surface, designHeight, twips, pixels));
    paint_.paintBusy = false;
}

Procedure lmListView::procedure(StringView name) const {
    return {runtime(), name, ModuleKind::control, u"lmListView", &life_};
}

/// The host's turn, in which its code may throw as in an event. A control that has ended has no more business
/// with it.
void lmListView::yield(Procedure& p) {
    if (!life_.hasEnded())
        p.raise([&] { runtime().queue().DoEvents(); });
}

/// The same for a walk that runs no code of the host between two of its yields.
void lmListView::yield(Procedure& p, QueueWatch& watch) {
    if (watch.eventWaits())
        yield(p);
}

/// A host that cannot tell is taken for a running program.
bool lmListView::designMode() const {
    bool running = true;
    ignoringErrors([&] { running = host_->UserMode(); });
    return !running;
}

void lmListView::CheckForRedraw() {
    if (properties_.AutoRedraw || designMode())
        Redraw();
}

} // namespace lumtex
