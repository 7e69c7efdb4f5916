/// \file
/// Mouse and keyboard of a display, moved from outside the program that is tried.
#pragma once

#include <QPoint>
#include <string>

struct _XDisplay;

namespace lumtex::testing {

/// Input goes to the server, and comes back to the program as any user's does: each act lets the program run
/// for as long as a quick hand takes. Points are pixels of the screen.
class RealHands {
  public:
    /// A name as of `OwnDisplay`. Throws std::runtime_error if it does not answer.
    explicit RealHands(const std::string& display);
    RealHands(const RealHands&) = delete;
    RealHands& operator=(const RealHands&) = delete;
    ~RealHands();

    void move(QPoint to);
    void press();
    void release();
    void click(QPoint at);
    void doubleClick(QPoint at);
    void drag(QPoint from, QPoint to);
    /// Notches; positive ones towards the user.
    void wheel(int notches);
    /// A name as X gives it: "a", "Return", "F2".
    void key(const char* name);
    /// Small letters and digits.
    void type(const std::string& text);

  private:
    void button(unsigned number, bool down);
    void letRun(int milliseconds);

    _XDisplay* display_;
    QPoint at_;
};

} // namespace lumtex::testing
