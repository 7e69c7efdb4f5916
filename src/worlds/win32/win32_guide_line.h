/// \file
/// The guide line on Windows: the window paints it over its surface each time it paints itself.
#pragma once

#include "platform/guide_line.h"
#include "worlds/win32/win32_window.h"

namespace lumtex::win32 {

class Win32GuideLine final : public GuideLine {
  public:
    explicit Win32GuideLine(Win32Window& parent);
    ~Win32GuideLine() override;

    void place(Single x, Single height) override;
    bool Visible() const { return visible_; }
    void letVisible(bool visible) override;

    /// A coordinate that is no 32-bit number counts as 0.
    void paintOn(HDC target) const;
    void loseParent() { parent_ = nullptr; }

  private:
    Win32Window* parent_;
    Single x_ = 0;
    Single height_ = 0;
    bool visible_ = false;
};

} // namespace lumtex::win32
