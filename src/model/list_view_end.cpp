/// The end of the control: of what the host knows of it, and of its memory.
#include "model/list_view.h"

namespace lumtex {

namespace {

/// So often an ending list lets go of what host code gives it while it lets go; what comes after that goes
/// behind its members.
constexpr int mostRounds = 16;

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

lmListView::~lmListView() {
    life_.enter();
    end();
    releaseBehindMembers();
}

void lmListView::operator delete(lmListView* list, std::destroying_delete_t /*tag*/) {
    ControlLife& life = list->life_;
    const bool calledFromItself = life.isBusy();
    life.enter();
    list->end();
    // Whoever waits for the last call must not see the list meanwhile.
    if (calledFromItself)
        list->window_->letVisible(false);
    life.letGo();
    life.leave();
}

void lmListView::destroy(void* list) {
    static_cast<lmListView*>(list)->~lmListView();
    ::operator delete(list);
}

void lmListView::UserControl_Terminate() {
    if (!designMode())
        Wheel1->DisableWheel();
}

/// Everything that reaches the host ends, and what is held of its goes while all members still serve. The
/// second time finds what host code has added since.
void lmListView::end() {
    if (!life_.hasEnded()) {
        UserControl_Terminate();
        life_.end();
        host_ = &noHost();
        events_ = &noEvents();
        tmrMouseIn->letEnabled(false);
        tmrMouseAction->letEnabled(false);
    }
    for (int round = 0; round < mostRounds && holdsAnything(); ++round) {
        Procedure p = procedure(u"UserControl_Terminate");
        p.step([&] { dropContent(); });
    }
}

bool lmListView::holdsAnything() const {
    return !rows_.empty() || !columns_.empty() || recordset_ || properties_.BackgroundPicture ||
           properties_.Skin || properties_.DefaultItemFont || properties_.DefaultColumnFont;
}

void lmListView::dropContent() {
    rowsAllocated_ = false;
    columnsAllocated_ = false;
    std::vector<RowRecord>().swap(rows_);
    std::vector<std::unique_ptr<ColumnHeader>>().swap(columns_);
    recordset_ = nullptr;
    properties_.BackgroundPicture = nullptr;
    properties_.Skin = nullptr;
    properties_.DefaultItemFont = nullptr;
    properties_.DefaultColumnFont = nullptr;
}

} // namespace lumtex
