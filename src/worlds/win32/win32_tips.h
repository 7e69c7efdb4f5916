/// \file
/// The system's own tip windows.
#pragma once

#include "platform/tip_platform.h"
#include "worlds/win32/windows_api.h"

namespace lumtex::win32 {

class Win32World;

class Win32Tips final : public TipPlatform {
  public:
    explicit Win32Tips(Win32World& world) : world_(world) {}

    /// One of our windows, or one that stands on its own.
    bool isFormOrSurface(WindowHandle window) const override;
    /// Sends the messages of the system's class; texts are in the code page of the system.
    std::unique_ptr<TipWindow> createTipWindow(WindowHandle owner) override;

  private:
    Win32World& world_;
};

} // namespace lumtex::win32
