/// \file
/// What a user does with mouse and keys, as the platform tells Qt of it.
#pragma once

#include "platform/keys.h"
#include "platform/user_control.h"
#include "values/geometry.h"

#include <QEvent>
#include <QPointer>
#include <QWidget>
#include <functional>

namespace lumtex::testing {

/// Points are pixels of `program`, which must be shown. `deliver` lets all events through.
class UserHands {
  public:
    UserHands(QWidget& program, std::function<void()> deliver);
    UserHands(const UserHands&) = delete;
    UserHands& operator=(const UserHands&) = delete;
    /// Lets go of all buttons, unless the program has gone.
    ~UserHands();

    void move(QPoint to, Integer shift);
    void press(MouseButton button, Integer shift);
    /// Soon enough after the press before to be the second one of a double click.
    void doublePress(MouseButton button, Integer shift);
    void release(MouseButton button, Integer shift);
    void wheel(Long rotation, Integer shift);
    void keyDown(Integer keyCode);
    void keyUp(Integer keyCode);
    void type(StringView text);

  private:
    QWidget& target() const;
    void moveNowhere(Integer shift);
    void mouse(QEvent::Type type, Qt::MouseButton button, Integer shift);
    void key(QEvent::Type type, Integer keyCode, Integer shift, char16_t character);
    Qt::KeyboardModifiers modifiers(Integer shift) const;

    QPointer<QWidget> program_;
    std::function<void()> deliver_;
    QPoint at_{-1, -1};
    Qt::MouseButtons buttons_;
    Integer held_ = 0;
    static inline int time_ = 0; ///< milliseconds, as events tell them; never goes back in one program
};

} // namespace lumtex::testing
