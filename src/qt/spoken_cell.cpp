#include "qt/spoken_cell.h"

namespace lumtex::qt {

void* SpokenCell::interface_cast(QAccessible::InterfaceType type) {
    const bool isEditable = (spoken().list().states(element()) & accessibility::editable) != 0;
    switch (type) {
    case QAccessible::TableCellInterface:
        return static_cast<QAccessibleTableCellInterface*>(this);
    case QAccessible::TextInterface:
        return isEditable ? static_cast<QAccessibleTextInterface*>(this) : nullptr;
    case QAccessible::EditableTextInterface:
        return isEditable ? static_cast<QAccessibleEditableTextInterface*>(this) : nullptr;
    default:
        return SpokenElement::interface_cast(type);
    }
}

bool SpokenCell::isSelected() const {
    return (spoken().list().states(element()) & accessibility::selected) != 0;
}

QList<QAccessibleInterface*> SpokenCell::columnHeaderCells() const {
    QAccessibleInterface* header = spoken().interfaceOf(accessibility::headerElement(element().column));
    return header != nullptr ? QList<QAccessibleInterface*>{header} : QList<QAccessibleInterface*>{};
}

QAccessibleInterface* SpokenCell::table() const {
    return spoken().interfaceOf(accessibility::theList);
}

void SpokenCell::selection(int /*number*/, int* start, int* end) const {
    *start = *end = 0;
}

QString SpokenCell::text(int start, int end) const {
    return text(QAccessible::Value).mid(start, end - start);
}

int SpokenCell::characterCount() const {
    return static_cast<int>(text(QAccessible::Value).size());
}

void SpokenCell::scrollToSubstring(int /*start*/, int /*end*/) {
    spoken().acting([cell = element()](accessibility::AccessibleList& list) { return list.scrollTo(cell); });
}

QString SpokenCell::attributes(int /*offset*/, int* start, int* end) const {
    *start = 0;
    *end = characterCount();
    return {};
}

void SpokenCell::replaceText(int start, int end, const QString& text) {
    setText(QAccessible::Value, this->text(QAccessible::Value).replace(start, end - start, text));
}

} // namespace lumtex::qt
