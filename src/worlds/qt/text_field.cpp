#include "worlds/qt/text_field.h"

#include "worlds/qt/key_codes.h"
#include "worlds/qt/qt_text.h"
#include "worlds/qt/qt_text_box.h"
#include "worlds/qt/qt_world.h"

#include <limits>

namespace lumtex::qt {

TextField::TextField(QtTextBox& box, QWidget* parent) : QLineEdit(parent), box_(&box) {
    setFrame(false);
    setMaxLength(std::numeric_limits<int>::max());
    setFocusPolicy(Qt::NoFocus);
    setContextMenuPolicy(Qt::NoContextMenu);
    setAcceptDrops(false); // the list around it is asked
    hide();
}

bool TextField::isSwallowed(const QString& characters) {
    const QPointer<TextField> self(this);
    bool swallowed = false;
    for (const char16_t unit : fromQString(characters)) {
        Integer entered = static_cast<Integer>(unit);
        box_->client_.textBoxKeyPress(entered);
        if (self == nullptr || box_ == nullptr)
            return true;
        swallowed = swallowed || entered == 0;
    }
    return swallowed;
}

bool TextField::mouse(QEvent& event) {
    const QPointer<TextField> self(this);
    takesMouseEvent_ = false;
    box_->world_.mouseOver(*this, *box_, event);
    if (self == nullptr || !takesMouseEvent_)
        return true;
    takesMouseEvent_ = false;
    return QLineEdit::event(&event);
}

bool TextField::event(QEvent* event) {
    if (box_ == nullptr)
        return QLineEdit::event(event);
    QtWorld& world = box_->world_;
    const QtWorld::Delivery delivery(world);
    const QPointer<TextField> self(this);
    switch (event->type()) {
    case QEvent::MouseMove:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease:
        return mouse(*event);
    case QEvent::KeyPress: {
        const bool swallowed = isSwallowed(toQString(charactersOf(static_cast<QKeyEvent&>(*event))));
        // The keys of an editor are nobody else's.
        if (!swallowed && self != nullptr)
            QLineEdit::event(event);
        event->accept();
        return true;
    }
    case QEvent::InputMethod:
        if (isSwallowed(static_cast<QInputMethodEvent&>(*event).commitString()))
            return true;
        return QLineEdit::event(event);
    case QEvent::FocusIn:
        // Otherwise a press on the window, which leaves the focus here, would give it to some widget around.
        if (parentWidget() != nullptr)
            parentWidget()->setFocusProxy(this);
        world.focusCame(*box_);
        break;
    case QEvent::FocusOut: {
        // The field first, so that its caret is gone when the owner hears of it.
        const bool taken = QLineEdit::event(event);
        if (self != nullptr && parentWidget() != nullptr)
            parentWidget()->setFocusProxy(nullptr);
        if (self != nullptr && box_ != nullptr &&
            static_cast<QFocusEvent&>(*event).reason() != Qt::PopupFocusReason)
            world.focusWent();
        return taken;
    }
    default:
        break;
    }
    return self == nullptr || QLineEdit::event(event);
}

} // namespace lumtex::qt
