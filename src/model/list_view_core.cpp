#include "model/list_view_core.h"

#include "guards/failure_of.h"
#include "interaction/cell_editor.h"
#include "interaction/header_gesture.h"
#include "interaction/mouse.h"
#include "interaction/row_drag.h"
#include "interaction/selection.h"
#include "platform/queue_watch.h"
#include "render/painting.h"
#include "scroll/scroller.h"
#include "sortfind/finder.h"
#include "sortfind/sorter.h"

namespace lumtex {

namespace {

/// Whom a list talks to that has ended.
Host& noHost() {
    static Host none;
    return none;
}
lmListViewEvents& noEvents() {
    static lmListViewEvents none;
    return none;
}

} // namespace

ListViewCore::ListViewCore(
    lmListView& list, void (*destroy)(void* list), World& world, Host& host, lmListViewEvents& events)
    : ListViewLife(&list, destroy), list_(list), world_(world), host_(&host), events_(&events) {}

ListViewCore::~ListViewCore() = default;

/// Each goes before those that were there when it was made; children of the window go before it.
void ListViewCore::dropParts() {
    finder.reset();
    sorter.reset();
    painting.reset();
    selection.reset();
    rowDrag.reset();
    mouse.reset();
    headerGesture.reset();
    editor.reset();
    scroller.reset();
    listWindow.reset();
}

void ListViewCore::endForHost() {
    life_.end();
    host_ = &noHost();
    events_ = &noEvents();
}

Procedure ListViewCore::procedure(StringView name) const {
    return {runtime(), name, ModuleKind::control, u"lmListView", &life_};
}

void ListViewCore::yield(Procedure& p) const {
    if (!hasEnded())
        p.raise([&] { runtime().queue().DoEvents(); });
}

void ListViewCore::yield(Procedure& p, QueueWatch& watch) const {
    if (watch.eventWaits())
        yield(p);
}

bool ListViewCore::designMode() const {
    bool running = true;
    ignoringErrors([&] { running = host_->UserMode(); });
    return !running;
}

void ListViewCore::CheckForRedraw() {
    if (properties.AutoRedraw || designMode())
        painting->Redraw();
}

} // namespace lumtex
