/// \file
/// A cell of the list: its place in the table, and its text where that may be edited.
#pragma once

#include "qt/spoken_element.h"

namespace lumtex::qt {

/// Rows and columns count from 0, as Qt's do. An edit opens the cell, types the whole new text and closes it
/// with Enter.
class SpokenCell final : public SpokenElement,
                         public QAccessibleTableCellInterface,
                         public QAccessibleTextInterface,
                         public QAccessibleEditableTextInterface {
  public:
    using SpokenElement::SpokenElement;

    void* interface_cast(QAccessible::InterfaceType type) override;

    bool isSelected() const override;
    QList<QAccessibleInterface*> columnHeaderCells() const override;
    QList<QAccessibleInterface*> rowHeaderCells() const override { return {}; }
    int columnIndex() const override { return static_cast<int>(element().column) - 1; }
    int rowIndex() const override { return static_cast<int>(element().row) - 1; }
    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    QAccessibleInterface* table() const override;

    // A text without a caret and a selection, which only the open editor has

    void selection(int number, int* start, int* end) const override;
    int selectionCount() const override { return 0; }
    void addSelection(int /*start*/, int /*end*/) override {}
    void removeSelection(int /*number*/) override {}
    void setSelection(int /*number*/, int /*start*/, int /*end*/) override {}
    int cursorPosition() const override { return 0; }
    void setCursorPosition(int /*position*/) override {}
    using SpokenElement::text;
    QString text(int start, int end) const override;
    int characterCount() const override;
    /// That of the cell.
    QRect characterRect(int /*offset*/) const override { return rect(); }
    int offsetAtPoint(const QPoint& /*point*/) const override { return -1; }
    /// Brings the cell onto the screen.
    void scrollToSubstring(int start, int end) override;
    QString attributes(int offset, int* start, int* end) const override;

    void deleteText(int start, int end) override { replaceText(start, end, {}); }
    void insertText(int offset, const QString& text) override { replaceText(offset, offset, text); }
    void replaceText(int start, int end, const QString& text) override;
};

} // namespace lumtex::qt
