/// \file
/// The guide line on Windows: the window paints it over its surface each time it paints itself.
#pragma once

#include "platform/guide_line.h"
#include "worlds/win32/win32_window.h"

namespace lumtex {

class Win32GuideLine final : public GuideLine {
  public:
    explicit Win32GuideLine(Win32Window& parent);
    ~Win32GuideLine() override;

    Single X1() const override { return x1_; }
    Single Y1() const override { return y1_; }
    Single X2() const override { return x2_; }
    Single Y2() const override { return y2_; }
    void letX1(Single x) override { change(x1_, x); }
    void letY1(Single y) override { change(y1_, y); }
    void letX2(Single x) override { change(x2_, x); }
    void letY2(Single y) override { change(y2_, y); }
    bool Visible() const override { return visible_; }
    void letVisible(bool visible) override;

    /// A coordinate that is no 32-bit number counts as 0.
    void paintOn(HDC target) const;
    void loseParent() { parent_ = nullptr; }

  private:
    void change(Single& coordinate, Single value);

    Win32Window* parent_;
    Single x1_ = 0;
    Single y1_ = 0;
    Single x2_ = 0;
    Single y2_ = 0;
    bool visible_ = false;
};

} // namespace lumtex
