/// The end of the control: of what the host knows of it, and of its memory.
#include "interaction/mouse.h"
#include "model/list_view.h"
#include "scroll/scroller.h"

namespace lumtex {

namespace {

/// So often an ending list lets go of what host code gives it while it lets go; what comes after that goes
/// behind its members.
constexpr int mostRounds = 16;

} // namespace

lmListView::~lmListView() {
    life_.enter();
    end();
    releaseBehindMembers();
    dropParts();
}

void lmListView::operator delete(lmListView* list, std::destroying_delete_t /*tag*/) {
    ControlLife& life = list->life_;
    const bool calledFromItself = life.isBusy();
    life.enter();
    list->end();
    // Whoever waits for the last call must not see the list meanwhile.
    if (calledFromItself)
        list->listWindow->letVisible(false);
    life.letGo();
    life.leave();
}

void lmListView::destroy(void* list) {
    static_cast<lmListView*>(list)->~lmListView();
    ::operator delete(list);
}

void lmListView::UserControl_Terminate() {
    if (!designMode())
        scroller->stopListening();
}

/// Everything that reaches the host ends, and what is held of its goes while all members still serve. The
/// second time finds what host code has added since.
void lmListView::end() {
    if (!life_.hasEnded()) {
        UserControl_Terminate();
        endForHost();
        mouse->stopTimers();
    }
    for (int round = 0; round < mostRounds && holdsAnything(); ++round) {
        Procedure p = procedure(u"UserControl_Terminate");
        p.step([&] { dropContent(); });
    }
}

bool lmListView::holdsAnything() const {
    return records.holdsAnything() || recordset_ || properties.BackgroundPicture || properties.Skin ||
           properties.DefaultItemFont || properties.DefaultColumnFont;
}

void lmListView::dropContent() {
    records.release();
    recordset_ = nullptr;
    properties.BackgroundPicture = nullptr;
    properties.Skin = nullptr;
    properties.DefaultItemFont = nullptr;
    properties.DefaultColumnFont = nullptr;
}

} // namespace lumtex
