/// \file
/// Where a list lives whose host runs code of its own at odd moments.
#pragma once

#include "model/list_view.h"
#include "values/geometry.h"
#include "values/text.h"

#include <chrono>
#include <functional>
#include <memory>
#include <vector>

namespace lumtex::testing {

/// A world, a container, and a user. One list at a time lives in it.
class ListHome {
  public:
    ListHome() = default;
    ListHome(const ListHome&) = delete;
    ListHome& operator=(const ListHome&) = delete;
    virtual ~ListHome() = default;

    /// A new and empty list that is shown and raises `events`. The caller owns it, and gives it to `end`.
    virtual lmListView* make(lmListViewEvents& events, Long width, Long height) = 0;
    /// As its host ends it, from within its own calls or not.
    virtual void end(lmListView* list) = 0;

    // A user, whose input is delivered when a call returns. Points are pixels of the list.

    virtual void move(Point to) = 0;
    virtual void press() = 0;
    virtual void release() = 0;
    /// A click, the second press, its release.
    virtual void doubleClick() = 0;
    virtual void wheel(Long rotation) = 0;
    virtual void key(Integer keyCode) = 0;
    virtual void type(StringView text) = 0;
    /// Pixels.
    virtual void resize(Long width, Long height) = 0;
    virtual void focus() = 0;

    virtual void advance(std::chrono::milliseconds span) = 0;
    /// Until nothing waits.
    virtual void run() = 0;
    /// Each of the next `times` yields of the list runs `body`.
    virtual void onYield(std::function<void()> body, int times = 1) = 0;
    /// A yield that no call of the list makes.
    virtual void yield() = 0;
    /// The texts of the message boxes that were shown since `clearBoxes`.
    virtual std::vector<String> boxes() const = 0;
    virtual void clearBoxes() = 0;
    /// Each box runs `body` while it is open, from now on.
    virtual void whileBoxIsOpen(std::function<void()> body) = 0;

    void click() {
        press();
        release();
    }
};

/// The home that this test program tries.
std::unique_ptr<ListHome> makeListHome();

} // namespace lumtex::testing
