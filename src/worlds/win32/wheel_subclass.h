/// \file
/// The wheel hook of Windows: a window procedure in front of the window's own.
#pragma once

#include "platform/wheel_hook.h"
#include "worlds/win32/window_class.h"

namespace lumtex::win32 {

class Win32World;

/// What the procedure needs lies in properties of windows, so that several hooks in one process need no
/// table: on the captured window "WheelWnd", the hook's own window; on that one "OldWheelProc", the replaced
/// procedure, which also says that the hook is in force, and "WheelPtr", the hook.
class WheelSubclass final : public WheelHook {
  public:
    /// The hook's own window is a hidden child of `parent`. Throws RuntimeError 7 if the system gives
    /// none.
    WheelSubclass(Win32World& world, HWND parent, OnWheel onWheel);
    ~WheelSubclass() override;

    void Subclass(WindowHandle hWnd) override;
    void UnSubclass(WindowHandle hWnd) override;

  private:
    static LRESULT CALLBACK WheelProc(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM lParam) noexcept;
    static LRESULT CALLBACK ownProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept;
    void WndProc(HWND hWnd, WPARAM wParam, LPARAM lParam);

    Win32World& world_;
    OnWheel onWheel_;
    WindowClass class_;
    HWND hwnd_ = nullptr;
    HWND captured_ = nullptr; ///< while the hook is in force
};

} // namespace lumtex::win32
