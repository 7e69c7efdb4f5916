/// \file
/// Classes of windows that a module registers while it needs them.
#pragma once

#include "worlds/win32/windows_api.h"

namespace lumtex::win32 {

/// A share in a class; all shares of the same name and module hold one. The first share registers it, the
/// last one takes it back, so that a module leaves no class behind when it is unloaded. May be made on any
/// thread.
class WindowClass {
  public:
    /// `name` must live as long as the program. Throws RuntimeError 7 if the system refuses the class.
    WindowClass(HINSTANCE instance, const wchar_t* name, WNDPROC procedure, UINT style);
    WindowClass(const WindowClass&) = delete;
    WindowClass& operator=(const WindowClass&) = delete;
    ~WindowClass();

    const wchar_t* name() const { return name_; }

  private:
    HINSTANCE instance_;
    const wchar_t* name_;
};

} // namespace lumtex::win32
