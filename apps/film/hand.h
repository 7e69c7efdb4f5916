/// \file
/// A hand at mouse and keyboard, slow enough to be watched.
#pragma once

#include "camera.h"

namespace lumtex::film {

/// Does what a `headless::Person` does, while a camera films: the pointer is seen on its way, and a button is
/// seen down before it is up. Points are pixels of the window's surface. All that is given must outlive the
/// hand.
class Hand {
  public:
    Hand(headless::Desktop& desktop, Window& window, Camera& camera)
        : desktop_(desktop), window_(window), camera_(camera) {}

    /// In a straight line, gathering way at first and losing it at the end.
    void goTo(Single x, Single y) { travel({x, y}); }
    void click(Single x, Single y);
    void drag(Single fromX, Single fromY, Single toX, Single toY);
    /// Notches, positive away from the person, where the pointer is.
    void wheel(Long notches);
    /// One character after another, where the focus is.
    void type(StringView text);
    void key(Integer keyCode);

  private:
    struct Place {
        Single x = 0;
        Single y = 0;
    };

    void travel(Place target);

    headless::Desktop& desktop_;
    Window& window_;
    Camera& camera_;
};

} // namespace lumtex::film
