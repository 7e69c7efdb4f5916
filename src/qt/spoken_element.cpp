#include "qt/spoken_element.h"

#include "qt/spoken_bar.h"
#include "qt/spoken_cell.h"
#include "worlds/qt/qt_text.h"

#include <utility>

namespace lumtex::qt {

using accessibility::Element;
using accessibility::Kind;

Element SpokenElement::elementOf(const QAccessibleInterface* asked) {
    const auto* one = dynamic_cast<const SpokenElement*>(asked);
    return one != nullptr ? one->element() : accessibility::nothing;
}

QAccessibleInterface* SpokenElement::childAt(int x, int y) const {
    const Element found = spoken_->at(x, y);
    for (Element above = found; above.kind != Kind::nothing;) {
        above = spoken_->list().parent(above);
        if (above == element_)
            return spoken_->interfaceOf(found);
    }
    return nullptr;
}

QAccessibleInterface* SpokenElement::parent() const {
    return spoken_->interfaceOf(spoken_->list().parent(element_));
}

QAccessibleInterface* SpokenElement::child(int index) const {
    return spoken_->interfaceOf(spoken_->list().child(element_, Long{index} + 1));
}

int SpokenElement::indexOfChild(const QAccessibleInterface* child) const {
    const Element asked = elementOf(child);
    const bool isOurs = asked.kind != Kind::nothing && spoken_->list().parent(asked) == element_;
    return isOurs ? static_cast<int>(spoken_->list().numberOf(asked)) - 1 : -1;
}

QString SpokenElement::text(QAccessible::Text kind) const {
    return textOf(spoken_->list(), element_, kind);
}

void SpokenElement::setText(QAccessible::Text kind, const QString& text) {
    if (kind != QAccessible::Value)
        return;
    spoken_->acting([element = element_, value = fromQString(text)](accessibility::AccessibleList& list) {
        return list.setValue(element, value);
    });
}

QAccessible::Role SpokenElement::role() const {
    switch (element_.kind) {
    case Kind::row:
        return QAccessible::Row;
    case Kind::cell:
        return QAccessible::Cell;
    case Kind::checkBox:
        return QAccessible::CheckBox;
    case Kind::headers:
        return QAccessible::Grouping;
    case Kind::header:
        return QAccessible::ColumnHeader;
    case Kind::verticalBar:
    case Kind::horizontalBar:
        return QAccessible::ScrollBar;
    case Kind::lowArrow:
    case Kind::highArrow:
        return QAccessible::Button;
    case Kind::thumb:
        return QAccessible::Indicator;
    default:
        return QAccessible::NoRole;
    }
}

void* SpokenElement::interface_cast(QAccessible::InterfaceType type) {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
}

QString SpokenElement::mainAction() const {
    if (spoken_->list().action(element_).empty())
        return {};
    return element_.kind == Kind::checkBox ? toggleAction() : pressAction();
}

QStringList SpokenElement::actionNames() const {
    QStringList names;
    if (const QString main = mainAction(); !main.isEmpty())
        names.append(main);
    const accessibility::States states = spoken_->list().states(element_);
    const bool usable = (states & (accessibility::gone | accessibility::unavailable)) == 0;
    if (usable && (element_.kind == Kind::row || element_.kind == Kind::cell))
        names.append(setFocusAction());
    return names;
}

QString SpokenElement::localizedActionName(const QString& name) const {
    if (!name.isEmpty() && name == mainAction())
        return toQString(spoken_->list().action(element_));
    return QAccessibleActionInterface::localizedActionName(name);
}

void SpokenElement::doAction(const QString& name) {
    const bool focuses = name == setFocusAction();
    if (!focuses && (name.isEmpty() || name != mainAction()))
        return;
    spoken_->acting([element = element_, focuses](accessibility::AccessibleList& list) {
        return focuses ? list.takeFocus(element) : list.act(element);
    });
}

QStringList SpokenElement::keyBindingsForAction(const QString& name) const {
    const QString keys = toQString(spoken_->list().keys(element_));
    return name != mainAction() || keys.isEmpty() ? QStringList() : QStringList(keys);
}

QAccessibleInterface* makeSpokenElement(std::shared_ptr<SpokenList> spoken, const Element& element) {
    switch (element.kind) {
    case Kind::cell:
        return new SpokenCell(std::move(spoken), element);
    case Kind::verticalBar:
    case Kind::horizontalBar:
        return new SpokenBar(std::move(spoken), element);
    default:
        return new SpokenElement(std::move(spoken), element);
    }
}

QString textOf(const accessibility::AccessibleList& list, const Element& element, QAccessible::Text kind) {
    switch (kind) {
    case QAccessible::Name:
        return toQString(list.name(element));
    case QAccessible::Description:
        return toQString(list.description(element));
    case QAccessible::Value:
        return toQString(list.value(element));
    case QAccessible::Help:
        return toQString(list.help(element));
    case QAccessible::Accelerator:
        return toQString(list.keys(element));
    default:
        return {};
    }
}

} // namespace lumtex::qt
