/// \file
/// The field of a text box.
#pragma once

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>

namespace lumtex::qt {

class QtTextBox;

/// Asks the box before it takes characters and mouse events. Knows no box any more once that has gone.
class TextField final : public QLineEdit {
  public:
    TextField(QtTextBox& box, QWidget* parent);

    void loseBox() { box_ = nullptr; }
    /// The mouse event that is under way is for the field.
    void takeMouseEvent() { takesMouseEvent_ = true; }

    /// Of the caret, in the field.
    using QLineEdit::cursorRect;

  protected:
    bool event(QEvent* event) override;

  private:
    bool mouse(QEvent& event);
    /// True if the owner of the box swallowed the characters, or the box itself.
    bool isSwallowed(const QString& characters);

    QtTextBox* box_;
    bool takesMouseEvent_ = false;
};

} // namespace lumtex::qt
