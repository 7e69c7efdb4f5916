/// \file
/// The system's own tip windows.
#pragma once

#include "platform/tip_platform.h"
#include "worlds/win32/windows_api.h"

#include <set>

namespace lumtex {

class Win32World;

/// Passes the messages on as they are, texts in the code page of the system.
class Win32Tips final : public TipPlatform {
  public:
    explicit Win32Tips(Win32World& world) : world_(world) {}
    /// Destroys the tip windows that are left.
    ~Win32Tips() override;

    /// One of our windows, or one that stands on its own.
    bool isFormOrSurface(WindowHandle window) const override;
    void initCommonControls() override;
    WindowHandle createWindow(const TipWindowForm& form) override;
    void destroyWindow(WindowHandle tips) override;
    Long send(WindowHandle tips, TipMessage message, Long wParam, Long lParam) override;
    Long send(WindowHandle tips, TipMessage message, Long wParam, ToolInfo& tool) override;
    Long send(WindowHandle tips, TipMessage message, Long wParam, Rect& margins) override;

  private:
    /// Null for a handle that names no tip window of this world.
    HWND tipWindow(WindowHandle tips) const;

    Win32World& world_;
    std::set<WindowHandle> windows_;
};

} // namespace lumtex
