#include "worlds/qt/drag_target.h"

#include "worlds/qt/key_codes.h"
#include "worlds/qt/mouse_buttons.h"
#include "worlds/qt/qt_window.h"
#include "worlds/qt/qt_world.h"

#include <utility>

namespace lumtex::qt {

namespace {

Long effectsOf(Qt::DropActions actions) {
    return static_cast<Long>(static_cast<int>(actions & (Qt::CopyAction | Qt::MoveAction | Qt::LinkAction)));
}

/// One of the effects in the answer: the one that the user asks for, if it is there.
Qt::DropAction actionOf(Long answer, Qt::DropAction proposed) {
    for (const Qt::DropAction action : {proposed, Qt::CopyAction, Qt::MoveAction, Qt::LinkAction})
        if ((answer & effectsOf(action)) != 0)
            return action;
    return Qt::IgnoreAction;
}

void answerWith(QDropEvent& event, Long answer) {
    event.setDropAction(actionOf(answer, event.proposedAction()));
    // A drag that is refused where it comes in is accepted as one without an effect: it may move to where it
    // is taken.
    event.setAccepted(event.type() == QEvent::DragEnter || event.dropAction() != Qt::IgnoreAction);
}

} // namespace

QtWindow* DragTarget::windowAt(Point at) const {
    for (worlds::Pane* pane = world_.tree().at(at); pane != nullptr; pane = pane->parent()) {
        auto* window = dynamic_cast<QtWindow*>(pane);
        if (window != nullptr && window->takesDrops())
            return window;
    }
    return nullptr;
}

void DragTarget::carry(const QMimeData* data) {
    if (data_ != nullptr && source_ == data)
        return;
    if (data_ != nullptr)
        data_->end();
    source_ = data;
    data_ = data != nullptr ? carriedData(*data) : nullptr;
}

Long DragTarget::tell(WindowHandle window, State state, Long allowed) {
    auto* const told = dynamic_cast<QtWindow*>(world_.tree().find(window));
    if (told == nullptr || data_ == nullptr)
        return 0;
    const DragData data = data_;
    const Point at = told->fromDesktop(place_.onDesktop);
    Long effect = allowed;
    Integer buttons = place_.buttons;
    Integer shift = place_.shift;
    Single x = static_cast<Single>(at.x);
    Single y = static_cast<Single>(at.y);
    Integer stateNow = state;
    told->client().UserControl_OLEDragOver(data, effect, buttons, shift, x, y, stateNow);
    return effect & allowed;
}

void DragTarget::leaveWindow() {
    if (const WindowHandle left = std::exchange(window_, 0); left != 0)
        tell(left, leaves, 0);
}

void DragTarget::over(Point at, QDropEvent& event) {
    carry(event.mimeData());
    const QtWindow* target = windowAt(at);
    const WindowHandle next = target != nullptr ? target->handle() : 0;
    if (next != window_)
        leaveWindow();
    place_ = {at, buttonsOf(event.buttons()), shiftOf(event.modifiers())};
    const State state = next != window_ ? enters : moves;
    window_ = next;
    answerWith(event, tell(next, state, effectsOf(event.possibleActions())));
}

void DragTarget::leave() {
    const auto data = data_;
    leaveWindow();
    if (data != nullptr)
        data->end();
    if (data_ == data)
        data_ = nullptr;
}

void DragTarget::drop(Point at, QDropEvent& event) {
    carry(event.mimeData());
    auto* const target = windowAt(at);
    window_ = 0;
    const auto data = std::exchange(data_, nullptr);
    if (target == nullptr || data == nullptr) {
        answerWith(event, 0);
        return;
    }
    const Long allowed = effectsOf(event.possibleActions());
    const Point inside = target->fromDesktop(at);
    Long effect = allowed;
    // The buttons are up by now; what was held during the drag is what the control is told.
    auto buttons = static_cast<Integer>(buttonsOf(event.buttons()) | place_.buttons);
    Integer shift = shiftOf(event.modifiers());
    Single x = static_cast<Single>(inside.x);
    Single y = static_cast<Single>(inside.y);
    place_ = {};
    target->client().UserControl_OLEDragDrop(data, effect, buttons, shift, x, y);
    data->end();
    answerWith(event, effect & allowed);
}

} // namespace lumtex::qt
