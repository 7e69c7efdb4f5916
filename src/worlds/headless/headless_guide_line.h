/// \file
/// The guide line of the simulated desktop; a window draws it into its picture.
#pragma once

#include "platform/guide_line.h"
#include "worlds/headless/headless_window.h"

namespace lumtex::headless {

class HeadlessGuideLine final : public GuideLine {
  public:
    explicit HeadlessGuideLine(HeadlessWindow& parent);
    ~HeadlessGuideLine() override;

    void place(Single x, Single height) override {
        x_ = x;
        height_ = height;
    }
    bool Visible() const { return visible_; }
    void letVisible(bool visible) override { visible_ = visible; }

    /// Whole pixels; a coordinate that is no 32-bit number counts as 0.
    Point from() const;
    Point to() const;
    void loseParent() { parent_ = nullptr; }

  private:
    HeadlessWindow* parent_;
    Single x_ = 0;
    Single height_ = 0;
    bool visible_ = false;
};

} // namespace lumtex::headless
