/// \file
/// A window of the system that shows a surface and reports what happens to it to its control.
#pragma once

#include "worlds/win32/drop_target.h"
#include "worlds/win32/gdi_surface.h"
#include "worlds/win32/pointer_shape.h"
#include "worlds/win32/win32_world.h"

#include <vector>

namespace lumtex::win32 {

class Win32GuideLine;
class Win32TextBox;

/// Made by a world. Its system window may go before it, when a container destroys all that lies in it: from
/// then on `hWnd` is 0, and what needs the window does nothing.
class Win32Window final : public Window {
  public:
    enum class Kind { child, shownChild, form };

    /// Throws RuntimeError 7 if the system gives no window.
    Win32Window(Win32World& world, HWND parent, Kind kind, UserControl& client);
    ~Win32Window() override;

    WindowHandle hWnd() const override { return fromHWND(hwnd_); }
    GdiSurface& surface() override { return *surface_; }
    Single Left() const override { return static_cast<Single>(corner_.x); }
    Single Top() const override { return static_cast<Single>(corner_.y); }
    Single Width() const override { return static_cast<Single>(surface_->scaleWidth()); }
    Single Height() const override { return static_cast<Single>(surface_->scaleHeight()); }
    /// Throws RuntimeError 6 for a place that is no 32-bit number, and 7 for a size past
    /// `Win32World::mostPixels`; the window then stays as it was.
    void place(Single left, Single top, Single width, Single height) override;
    bool Visible() const override { return visible_; }
    /// Hiding it, or disabling it, passes on a focus and ends a capture in it.
    void letVisible(bool visible) override;
    void letEnabled(bool enabled) override;
    /// 1 takes what is dragged over the window and its children, unless a child takes it itself; any other
    /// number does not. On a thread without drag and drop nothing comes.
    void letOLEDropMode(Long mode) override;
    void letMousePointer(CursorShape shape) override;
    void setMouseIcon(PictureRef icon) override;
    void setFocus() override;
    void letTakesKeys(bool takesKeys) override { takesKeys_ = takesKeys; }
    void setCapture() override;
    void releaseCapture() override;
    bool pointerStrictlyInside() const override;
    Point pointer() const override;
    bool underPointer() const override;
    bool adopt(WindowHandle child) override;
    void present() override;

    /// Above its siblings: the system puts a new child below them.
    static void raise(HWND child);
    /// The window behind a handle; null for one that is not of this class of windows.
    static Win32Window* of(HWND window);
    Win32World& world() const { return world_; }
    /// Visible and enabled, and so is every window of ours that it lies in.
    bool takesInput() const;
    /// The window that has the keyboard after a press on this one: itself, or the one that it is a part of.
    Win32Window& keyWindow();
    /// Is `window` a text box of this one?
    bool hasBox(HWND window) const;

    void add(Win32GuideLine& guide) { guides_.push_back(&guide); }
    void remove(Win32GuideLine& guide);
    void add(Win32TextBox& box) { boxes_.push_back(&box); }
    void remove(Win32TextBox& box) { std::erase(boxes_, &box); }

    /// The procedure of the class of our windows.
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept;
    /// A focus in `window`, or in a child of it, goes to the nearest window around it that takes input.
    static void passOnFocus(HWND window);

  private:
    /// The answer to a message; empty: the system deals with it.
    using Answer = std::optional<LRESULT>;

    // Each of these looks at one family of messages. Afterwards the window may be gone.

    Answer answer(const WindowMessage& message);
    Answer answerMouse(const WindowMessage& message);
    Answer answerKeyboard(const WindowMessage& message);
    Answer answerPaint(const WindowMessage& message);
    Answer answerPlace(const WindowMessage& message);

    /// This window, to the rules of the press.
    class PressTarget;

    Answer pressed(MouseButton button, bool isSecond, const WindowMessage& message);
    Answer released(MouseButton button, const WindowMessage& message);
    Answer wheelTurned(const WindowMessage& message);
    Answer colorOfBox(const WindowMessage& message);

    /// Takes a new size: the surface first, then the control.
    void resizeSurface(Long width, Long height);
    void paintOn(HDC target) const;
    void printChildren(HDC target, LPARAM flags) const;
    /// No input comes any more: a capture or press in the window ends, a focus is passed on.
    void loseInput();
    /// Shows the pointer's shape at once if the pointer is over this window.
    void showPointer() const;
    /// Visible, and so is every window of ours that it lies in.
    bool isShown() const;
    /// Has the system ask for the picture anew.
    void invalidate();
    /// `at` is on the window, and no window of ours around it cuts it off there.
    bool covers(POINT at) const;
    void detach();

    Win32World& world_;
    UserControl& client_;
    HWND hwnd_ = nullptr;
    std::unique_ptr<GdiSurface> surface_;
    Point corner_;
    bool placing_ = false;  ///< the window is being placed by ourselves
    bool takesKeys_ = true; ///< off: the parent has the keys for both
    bool visible_;
    bool enabled_ = true;
    std::unique_ptr<DropPlace> dropPlace_; ///< while drops are taken
    PointerShape pointerShape_;
    std::vector<Win32GuideLine*> guides_;
    std::vector<Win32TextBox*> boxes_;
};

} // namespace lumtex::win32
