/// \file
/// What is dragged over the windows of a world, and dropped there.
#pragma once

#include "platform/window_handle.h"
#include "values/geometry.h"
#include "worlds/qt/carried_data.h"

#include <QDropEvent>
#include <memory>

namespace lumtex::qt {

class QtWindow;
class QtWorld;

/// Tells the innermost window under the pointer that takes drops, with the last argument of
/// UserControl_OLEDragOver as below. The effect that it is told is what the source allows, as a sum of 1
/// copy, 2 move, 4 link; what it leaves there, as far as the source allows it, is the answer. The window may
/// end in an event.
class DragTarget {
  public:
    enum State : short { enters = 0, leaves = 1, moves = 2 };

    explicit DragTarget(QtWorld& world) : world_(world) {}

    /// `at` on the desktop. `event` takes the answer.
    void over(Point at, QDropEvent& event);
    void leave();
    void drop(Point at, QDropEvent& event);

  private:
    struct Place {
        Point onDesktop{};
        Integer buttons = 0;
        Integer shift = 0;
    };

    QtWindow* windowAt(Point at) const;
    void carry(const QMimeData* data);
    /// Returns the effect that the window leaves; 0 once it has gone.
    Long tell(WindowHandle window, State state, Long allowed);
    void leaveWindow();

    QtWorld& world_;
    WindowHandle window_ = 0; ///< the drag is over it; 0: over none
    std::shared_ptr<CarriedData> data_;
    QPointer<const QMimeData> source_;
    Place place_;
};

} // namespace lumtex::qt
