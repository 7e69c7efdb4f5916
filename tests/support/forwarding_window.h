/// \file
/// A window in front of another one.
#pragma once

#include "worlds/headless/headless_window.h"

#include <memory>
#include <utility>

namespace lumtex::testing {

/// Hands everything on to a window of a Desktop; tests override what they look at.
class ForwardingWindow : public Window {
  public:
    explicit ForwardingWindow(std::unique_ptr<Window> inner) : inner_(std::move(inner)) {}

    headless::HeadlessWindow& inner() { return static_cast<headless::HeadlessWindow&>(*inner_); }

    WindowHandle hWnd() const override { return inner_->hWnd(); }
    Surface& surface() override { return inner_->surface(); }
    Single Left() const override { return inner_->Left(); }
    Single Top() const override { return inner_->Top(); }
    Single Width() const override { return inner_->Width(); }
    Single Height() const override { return inner_->Height(); }
    void place(Single left, Single top, Single width, Single height) override {
        inner_->place(left, top, width, height);
    }
    bool Visible() const override { return inner_->Visible(); }
    void letVisible(bool visible) override { inner_->letVisible(visible); }
    void letEnabled(bool enabled) override { inner_->letEnabled(enabled); }
    void letOLEDropMode(Long mode) override { inner_->letOLEDropMode(mode); }
    void letMousePointer(CursorShape shape) override { inner_->letMousePointer(shape); }
    void setMouseIcon(PictureRef icon) override { inner_->setMouseIcon(std::move(icon)); }
    void letTakesKeys(bool takesKeys) override { inner_->letTakesKeys(takesKeys); }
    void setFocus() override { inner_->setFocus(); }
    void setCapture() override { inner_->setCapture(); }
    void releaseCapture() override { inner_->releaseCapture(); }
    bool pointerStrictlyInside() const override { return inner_->pointerStrictlyInside(); }
    Point pointer() const override { return inner_->pointer(); }
    bool underPointer() const override { return inner_->underPointer(); }
    bool adopt(WindowHandle child) override { return inner_->adopt(child); }
    void present() override { inner_->present(); }

  private:
    std::unique_ptr<Window> inner_;
};

} // namespace lumtex::testing
