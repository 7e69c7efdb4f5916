/// \file
/// The list's own editor as Qt's accessibility knows fields.
#pragma once

#include "qt/spoken_list.h"
#include "worlds/qt/text_field.h"

#include <QAccessibleWidget>

namespace lumtex::qt {

/// A child of the list while it is open. Offsets are units of UTF-16, from 0.
class SpokenField final : public QAccessibleWidget,
                          public QAccessibleTextInterface,
                          public QAccessibleEditableTextInterface {
  public:
    SpokenField(TextField& field, QWidget& list);

    QAccessibleInterface* parent() const override;
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text kind, const QString& text) override;
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    void selection(int number, int* start, int* end) const override;
    int selectionCount() const override;
    void addSelection(int start, int end) override { setSelection(0, start, end); }
    void removeSelection(int number) override;
    void setSelection(int number, int start, int end) override;
    int cursorPosition() const override;
    void setCursorPosition(int position) override;
    QString text(int start, int end) const override;
    int characterCount() const override;
    QRect characterRect(int offset) const override;
    int offsetAtPoint(const QPoint& point) const override;
    void scrollToSubstring(int start, int end) override;
    QString attributes(int offset, int* start, int* end) const override;

    void deleteText(int start, int end) override { replaceText(start, end, {}); }
    void insertText(int offset, const QString& text) override { replaceText(offset, offset, text); }
    void replaceText(int start, int end, const QString& text) override;

  private:
    /// Nobody asks once the field has gone, for its interface went with it.
    TextField& field() const;

    QPointer<QWidget> list_;
};

} // namespace lumtex::qt
