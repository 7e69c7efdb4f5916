/// \file
/// Where a scenario is played: one list, its host, and the hands of a user.
#pragma once

#include "automation/call_by_name.h"
#include "model/list_view.h"
#include "values/bitmap.h"
#include "values/geometry.h"

#include <chrono>
#include <functional>
#include <string>
#include <vector>

namespace lumtex::testing {

/// A world of its own for each scenario. What the list and its runtime tell goes to `log`, one line each, in
/// the order in which it happens. Points are pixels of the list's surface.
class Stage {
  public:
    Stage() = default;
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;
    virtual ~Stage() = default;

    virtual lmListView& list() = 0;
    virtual std::vector<std::string>& log() = 0;
    /// Runs `handler` each time the event is raised, after its line was written.
    virtual void onEvent(const std::string& event, std::function<void()> handler) = 0;
    /// Runs `body` in the next yield of the control.
    virtual void onYield(std::function<void()> body) = 0;
    virtual void cancelChecks(bool cancel) = 0;

    virtual void resize(Long width, Long height) = 0;
    virtual void move(Single x, Single y, Integer shift) = 0;
    virtual void press(MouseButton button, Integer shift) = 0;
    virtual void doublePress(MouseButton button, Integer shift) = 0;
    virtual void release(MouseButton button, Integer shift) = 0;
    virtual void wheel(Long rotation, Integer shift) = 0;
    virtual void keyDown(Integer keyCode) = 0;
    virtual void keyUp(Integer keyCode) = 0;
    virtual void type(StringView text) = 0;
    virtual void focus(bool onTheList) = 0;
    /// The user goes to another program, or comes back from there.
    virtual void switchProgram(bool away) = 0;
    virtual void advance(std::chrono::milliseconds span) = 0;
    virtual Bitmap picture() = 0;
    /// Pixels of the list; only while the editor is open.
    virtual Rect editorPlace() = 0;
    virtual bool showsGuide() = 0;
};

} // namespace lumtex::testing
