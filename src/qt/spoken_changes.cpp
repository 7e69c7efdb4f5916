/// What changes in the list, as events of Qt's accessibility.
#include "qt/spoken_list.h"

#include <algorithm>
#include <utility>

namespace lumtex::qt {

using accessibility::Change;
using accessibility::ChangeKind;
using accessibility::Element;
using accessibility::Kind;
using ModelChange = QAccessibleTableModelChangeEvent;

void SpokenList::notify(QAccessible::Event type, const Element& element) {
    if (QAccessibleInterface* about = interfaceOf(element)) {
        QAccessibleEvent event(about, type);
        QAccessible::updateAccessibility(&event);
    }
}

/// A check mark, or whether the list is enabled.
void SpokenList::notifyOfState(const Element& element) {
    QAccessible::State changed;
    changed.checked = element.kind == Kind::checkBox ? 1U : 0U;
    changed.disabled = element.kind == Kind::list ? 1U : 0U;
    if (QAccessibleInterface* about = interfaceOf(element)) {
        QAccessibleStateChangeEvent event(about, changed);
        QAccessible::updateAccessibility(&event);
    }
}

void SpokenList::notifyOfValue(const Element& element) {
    const auto range = list_.range(element);
    if (QAccessibleInterface* about = range ? interfaceOf(element) : nullptr) {
        QAccessibleValueChangeEvent event(about, static_cast<int>(range->value));
        QAccessible::updateAccessibility(&event);
    }
}

/// Rows from 0; -1 for no particular ones.
void SpokenList::notifyOfModel(int kind, Long firstRow, Long lastRow) {
    if (QAccessibleInterface* about = interfaceOf(accessibility::theList)) {
        ModelChange event(about, static_cast<ModelChange::ModelChangeType>(kind));
        event.setFirstRow(static_cast<int>(firstRow));
        event.setLastRow(static_cast<int>(lastRow));
        QAccessible::updateAccessibility(&event);
    }
}

/// Once for all that come and go in a row: a program fills its list by many calls.
void SpokenList::tellOfRowsLater() {
    letGoOfRowsBehind(list_.rowCount());
    if (std::exchange(rowsWait_, true) || widget_ == nullptr)
        return;
    QMetaObject::invokeMethod(
        widget_,
        [weak = weak_from_this()] {
            if (const std::shared_ptr<SpokenList> spoken = weak.lock())
                spoken->tellOfRows();
        },
        Qt::QueuedConnection);
}

/// Numbers come and go at the end, whichever rows these were; so the others may have other texts now.
void SpokenList::tellOfRows() {
    rowsWait_ = false;
    const Long now = list_.rowCount();
    const Long before = std::exchange(rowsTold_, now);
    if (now > before) {
        notifyOfModel(ModelChange::RowsInserted, before, now - 1);
        // Changes of a table leave Qt 6.4 in a form that nobody on the bus of AT-SPI understands.
        notify(QAccessible::ObjectCreated, accessibility::rowElement(now));
    } else if (now < before) {
        notifyOfModel(ModelChange::RowsRemoved, now, before - 1);
    }
    if (const Long both = std::min(now, before); both > 0)
        notifyOfModel(ModelChange::DataChanged, 0, both - 1);
}

void SpokenList::hide(const Element& element) {
    if (const auto known = ids_.find(element); known != ids_.end()) {
        QAccessibleEvent event(QAccessible::accessibleInterface(known->second), QAccessible::ObjectHide);
        QAccessible::updateAccessibility(&event);
    }
    letGoOfWhatIsGone();
}

void SpokenList::tellFocus() {
    const Element focus = list_.focus();
    // The field of the editor tells of itself, and whoever has the keyboard elsewhere must not be called
    // here.
    if (focus.kind == Kind::editor || !hasKeyboard() || focus_ == focus)
        return;
    focus_ = focus;
    notify(QAccessible::Focus, focus);
}

void SpokenList::tell(const Change& change) {
    switch (change.kind) {
    case ChangeKind::focus:
        tellFocus();
        break;
    case ChangeKind::selected:
        notify(QAccessible::Selection, change.element);
        break;
    case ChangeKind::selectionAdded:
        notify(QAccessible::SelectionAdd, change.element);
        break;
    case ChangeKind::selectionRemoved:
        notify(QAccessible::SelectionRemove, change.element);
        break;
    case ChangeKind::selectionChanged:
        notify(QAccessible::SelectionWithin, change.element);
        break;
    case ChangeKind::name:
        notify(QAccessible::NameChanged, change.element);
        break;
    case ChangeKind::value:
        notifyOfValue(change.element);
        break;
    case ChangeKind::scrolled:
        notifyOfValue(change.element);
        notify(QAccessible::VisibleDataChanged, accessibility::theList);
        break;
    case ChangeKind::state:
        notifyOfState(change.element);
        break;
    case ChangeKind::rowsAdded:
    case ChangeKind::rowsRemoved:
        tellOfRowsLater();
        break;
    case ChangeKind::columnsChanged:
        letGoOfWhatIsGone();
        notifyOfModel(ModelChange::ModelReset, -1, -1);
        break;
    case ChangeKind::contents:
        notifyOfModel(ModelChange::DataChanged, 0, list_.rowCount() - 1);
        break;
    case ChangeKind::sorted:
        notifyOfModel(ModelChange::ModelReset, -1, -1);
        if (change.element.kind == Kind::header)
            notify(QAccessible::DescriptionChanged, change.element);
        break;
    case ChangeKind::shown:
        // The field of the editor tells of itself.
        if (change.element.kind != Kind::editor)
            notify(QAccessible::ObjectShow, change.element);
        break;
    case ChangeKind::hidden:
        hide(change.element);
        break;
    }
}

} // namespace lumtex::qt
