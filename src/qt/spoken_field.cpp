#include "qt/spoken_field.h"

#include "qt/list_speaker.h"
#include "qt/spoken_element.h"
#include "worlds/qt/qt_text.h"

#include <QFontMetrics>

namespace lumtex::qt {

using accessibility::theEditor;

SpokenField::SpokenField(TextField& field, QWidget& list)
    : QAccessibleWidget(&field, QAccessible::EditableText), list_(&list) {}

TextField& SpokenField::field() const {
    return static_cast<TextField&>(*widget());
}

QAccessibleInterface* SpokenField::parent() const {
    return list_ != nullptr ? QAccessible::queryAccessibleInterface(list_) : nullptr;
}

QString SpokenField::text(QAccessible::Text kind) const {
    if (kind == QAccessible::Value)
        return field().text();
    const auto spoken = ListSpeaker::spokenBy(list_);
    return spoken != nullptr ? textOf(spoken->list(), theEditor, kind) : QString();
}

void SpokenField::setText(QAccessible::Text kind, const QString& text) {
    const auto spoken = ListSpeaker::spokenBy(list_);
    if (kind == QAccessible::Value && spoken != nullptr)
        spoken->acting([value = fromQString(text)](accessibility::AccessibleList& list) {
            return list.setValue(theEditor, value);
        });
}

QAccessible::State SpokenField::state() const {
    QAccessible::State state = QAccessibleWidget::state();
    state.focusable = 1U;
    state.editable = 1U;
    state.selectableText = 1U;
    return state;
}

void* SpokenField::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::TextInterface)
        return static_cast<QAccessibleTextInterface*>(this);
    if (type == QAccessible::EditableTextInterface)
        return static_cast<QAccessibleEditableTextInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
}

void SpokenField::selection(int number, int* start, int* end) const {
    const bool isThere = number == 0 && field().hasSelectedText();
    *start = isThere ? field().selectionStart() : 0;
    *end = isThere ? field().selectionEnd() : 0;
}

int SpokenField::selectionCount() const {
    return field().hasSelectedText() ? 1 : 0;
}

void SpokenField::removeSelection(int number) {
    if (number == 0)
        field().deselect();
}

void SpokenField::setSelection(int number, int start, int end) {
    if (number == 0)
        field().setSelection(start, end - start);
}

int SpokenField::cursorPosition() const {
    return field().cursorPosition();
}

void SpokenField::setCursorPosition(int position) {
    field().setCursorPosition(position);
}

QString SpokenField::text(int start, int end) const {
    return field().text().mid(start, end - start);
}

int SpokenField::characterCount() const {
    return static_cast<int>(field().text().size());
}

QRect SpokenField::characterRect(int offset) const {
    const QString all = field().text();
    if (offset < 0 || offset >= all.size())
        return {};
    // The caret tells how far the text has been scrolled.
    const QFontMetrics metrics(field().font());
    const auto from = [&](int place) { return metrics.horizontalAdvance(all, place); };
    const QRect caret = field().cursorRect();
    const int left = caret.center().x() + from(offset) - from(field().cursorPosition());
    return {field().mapToGlobal(QPoint(left, caret.top())),
            QSize(from(offset + 1) - from(offset), caret.height())};
}

int SpokenField::offsetAtPoint(const QPoint& point) const {
    const QPoint local = field().mapFromGlobal(point);
    return field().rect().contains(local) ? field().cursorPositionAt(local) : -1;
}

void SpokenField::scrollToSubstring(int start, int end) {
    field().setCursorPosition(end);
    field().setCursorPosition(start);
}

QString SpokenField::attributes(int /*offset*/, int* start, int* end) const {
    *start = 0;
    *end = characterCount();
    return {};
}

void SpokenField::replaceText(int start, int end, const QString& text) {
    setText(QAccessible::Value, field().text().replace(start, end - start, text));
}

} // namespace lumtex::qt
