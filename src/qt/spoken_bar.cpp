#include "qt/spoken_bar.h"

namespace lumtex::qt {

void* SpokenBar::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::ValueInterface)
        return static_cast<QAccessibleValueInterface*>(this);
    return SpokenElement::interface_cast(type);
}

/// All zero once the bar has gone.
accessibility::AccessibleList::Range SpokenBar::range() const {
    return spoken().list().range(element()).value_or(accessibility::AccessibleList::Range{});
}

QVariant SpokenBar::currentValue() const {
    return static_cast<int>(range().value);
}
QVariant SpokenBar::maximumValue() const {
    return static_cast<int>(range().most);
}
QVariant SpokenBar::minimumValue() const {
    return static_cast<int>(range().least);
}

void SpokenBar::setCurrentValue(const QVariant& value) {
    bool isNumber = false;
    const Long place = value.toInt(&isNumber);
    if (!isNumber)
        return;
    spoken().acting(
        [bar = element(), place](accessibility::AccessibleList& list) { return list.setRange(bar, place); });
}

} // namespace lumtex::qt
