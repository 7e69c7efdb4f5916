/// \file
/// A window of the platform: a place on the screen with a surface, and the way events come in.
#pragma once

#include "platform/surface.h"
#include "platform/user_control.h"

namespace lumtex {

/// The number by which a host names a window; 0 for none.
using WindowHandle = Long;

/// Shapes of the pointer: the default one, or the picture given beside it.
enum class CursorShape : Byte { standard, custom };

/// Created by a World under a parent, owned by the control it belongs to. Positions and sizes are pixels of
/// the parent's surface. Destroying a window takes it off the screen; its children must be gone before.
class Window {
  public:
    Window() = default;
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;
    virtual ~Window() = default;

    virtual WindowHandle hWnd() const = 0;
    virtual Surface& surface() = 0;

    virtual Single Left() const = 0;
    virtual Single Top() const = 0;
    virtual Single Width() const = 0;
    virtual Single Height() const = 0;
    /// Rounds to whole pixels; a size below 0 counts as 0. A new size keeps what was drawn, in so far as it
    /// still fits, and delivers UserControl_Resize before the call returns.
    virtual void place(Single left, Single top, Single width, Single height) = 0;

    virtual bool Visible() const = 0;
    /// Each showing of a hidden window delivers UserControl_Show.
    virtual void letVisible(bool visible) = 0;
    /// A disabled window gets no mouse and no keys.
    virtual void letEnabled(bool enabled) = 0;
    virtual void letOLEDropMode(Long mode) = 0;

    virtual void letMousePointer(CursorShape shape) = 0;
    virtual void setMouseIcon(PictureRef icon) = 0;

    virtual void setFocus() = 0;
    /// Off for a part of the window around it, which has the keyboard for both: a press on the part gives it
    /// the focus, unless its own text box has it.
    virtual void letTakesKeys(bool takesKeys) = 0;
    /// From here on all mouse events come to this window, until released.
    virtual void setCapture() = 0;
    virtual void releaseCapture() = 0;

    /// Is the pointer over this very window (no child, no other window above it), strictly inside its
    /// rectangle, so that the outermost pixels count as outside?
    virtual bool pointerStrictlyInside() const = 0;
    /// The pointer in pixels of this surface, wherever it is.
    virtual Point pointer() const = 0;
    /// Is this very window, not a child of it, the topmost one under the pointer?
    virtual bool underPointer() const = 0;

    /// Makes the window named by `child`, of any owner, a child of this one; 0 or an unknown one is refused.
    virtual bool adopt(WindowHandle child) = 0;

    /// Has the screen show the surface as it is now, at the latest when the message loop runs next.
    virtual void present() = 0;
};

} // namespace lumtex
