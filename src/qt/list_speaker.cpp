#include "qt/list_speaker.h"

#include "qt/list_core.h"
#include "qt/list_widget.h"
#include "qt/spoken_field.h"
#include "qt/spoken_guests.h"
#include "qt/spoken_table.h"
#include "worlds/qt/text_field.h"

#include <utility>

namespace lumtex::qt {

namespace {

/// Widgets below the list's own have no classes that Qt could tell from others by their names.
QAccessibleInterface* makeInterface(const QString& /*className*/, QObject* object) {
    if (auto* list = qobject_cast<ListWidget*>(object))
        return new SpokenTable(*list);
    auto* field = dynamic_cast<TextField*>(object);
    auto* screen = dynamic_cast<ScreenWidget*>(field != nullptr ? field->parentWidget() : object);
    if (screen == nullptr || screen->isWindow() ||
        qobject_cast<ListWidget*>(screen->parentWidget()) == nullptr)
        return nullptr;
    if (field != nullptr)
        return new SpokenField(*field, *screen->parentWidget());
    return new SpokenGuests(*screen);
}

void letGoOfInterfaceOf(QObject* object) {
    if (QAccessibleInterface* made =
            object != nullptr ? QAccessible::queryAccessibleInterface(object) : nullptr)
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(made));
}

} // namespace

ListSpeaker::ListSpeaker(ListWidget& widget, const std::shared_ptr<ListCore>& core)
    : widget_(widget), core_(core) {
    QAccessible::installFactory(makeInterface);
    // While they were being made, Qt could not tell what they are.
    letGoOfInterfaceOf(core->screen());
    letGoOfInterfaceOf(core->field());
    QAccessible::installActivationObserver(this);
    accessibilityActiveChanged(QAccessible::isActive());
}

ListSpeaker::~ListSpeaker() {
    QAccessible::removeActivationObserver(this);
    if (spoken_ != nullptr)
        spoken_->close();
}

std::shared_ptr<SpokenList> ListSpeaker::spokenBy(QObject* widget) {
    const auto* list = qobject_cast<ListWidget*>(widget);
    return list != nullptr && list->speaker_ != nullptr ? list->speaker_->spoken() : nullptr;
}

const std::shared_ptr<SpokenList>& ListSpeaker::spoken() {
    const std::shared_ptr<ListCore> core = core_.lock();
    if (spoken_ == nullptr && core != nullptr)
        spoken_ = std::make_shared<SpokenList>(widget_, core);
    return spoken_;
}

void ListSpeaker::accessibilityActiveChanged(bool active) {
    const std::shared_ptr<ListCore> core = core_.lock();
    if (core == nullptr || core->screen() == nullptr)
        return;
    if (active) {
        spoken()->listen();
        core->screen()->installEventFilter(this);
    } else if (spoken_ != nullptr) {
        std::exchange(spoken_, nullptr)->close();
        core->screen()->removeEventFilter(this);
    }
}

bool ListSpeaker::eventFilter(QObject* /*watched*/, QEvent* event) {
    if (spoken_ == nullptr)
        return false;
    if (event->type() == QEvent::FocusOut)
        spoken_->forgetFocus();
    // Later, since Qt tells by itself, behind this event, that the widget below the list has the focus.
    if (event->type() == QEvent::FocusIn)
        QMetaObject::invokeMethod(
            this,
            [this] {
                if (const std::shared_ptr<SpokenList> spoken = spoken_)
                    spoken->tellFocus();
            },
            Qt::QueuedConnection);
    return false;
}

} // namespace lumtex::qt
