/// \file
/// The guide line of the simulated desktop; a window draws it into its picture.
#pragma once

#include "platform/guide_line.h"
#include "worlds/headless/headless_window.h"

namespace lumtex {

class HeadlessGuideLine final : public GuideLine {
  public:
    explicit HeadlessGuideLine(HeadlessWindow& parent);
    ~HeadlessGuideLine() override;

    Single X1() const override { return x1_; }
    Single Y1() const override { return y1_; }
    Single X2() const override { return x2_; }
    Single Y2() const override { return y2_; }
    void letX1(Single x) override { x1_ = x; }
    void letY1(Single y) override { y1_ = y; }
    void letX2(Single x) override { x2_ = x; }
    void letY2(Single y) override { y2_ = y; }
    bool Visible() const override { return visible_; }
    void letVisible(bool visible) override { visible_ = visible; }

    /// Whole pixels; a coordinate that is no 32-bit number counts as 0.
    Point from() const;
    Point to() const;
    void loseParent() { parent_ = nullptr; }

  private:
    HeadlessWindow* parent_;
    Single x1_ = 0;
    Single y1_ = 0;
    Single x2_ = 0;
    Single y2_ = 0;
    bool visible_ = false;
};

} // namespace lumtex
