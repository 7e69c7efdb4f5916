/// \file
/// A simulated desktop whose windows are drawn by Windows as well.
#pragma once

#include "mirror_surface.h"
#include "platform/headless/desktop.h"
#include "platform/headless/headless_window.h"
#include "win32/surface_pair.h"

#include <memory>
#include <utility>

namespace lumtex::testing {

/// What the windows of one world showed.
struct Comparisons {
    int made = 0;
};

/// Compares both pictures each time it is presented, and once more before it goes.
class MirrorWindow final : public Window {
  public:
    MirrorWindow(std::unique_ptr<Window> inner, Comparisons& comparisons)
        : inner_(std::move(inner)), comparisons_(comparisons) {}
    ~MirrorWindow() override { compare(); }

    WindowHandle hWnd() const override { return inner_->hWnd(); }
    Surface& surface() override { return surface_; }
    Single Left() const override { return inner_->Left(); }
    Single Top() const override { return inner_->Top(); }
    Single Width() const override { return inner_->Width(); }
    Single Height() const override { return inner_->Height(); }
    void place(Single left, Single top, Single width, Single height) override {
        inner_->place(left, top, width, height);
    }
    bool Visible() const override { return inner_->Visible(); }
    void letVisible(bool visible) override { inner_->letVisible(visible); }
    bool Enabled() const override { return inner_->Enabled(); }
    void letEnabled(bool enabled) override { inner_->letEnabled(enabled); }
    Integer OLEDropMode() const override { return inner_->OLEDropMode(); }
    void letOLEDropMode(Integer mode) override { inner_->letOLEDropMode(mode); }
    Integer MousePointer() const override { return inner_->MousePointer(); }
    void letMousePointer(Integer shape) override { inner_->letMousePointer(shape); }
    PictureRef MouseIcon() const override { return inner_->MouseIcon(); }
    void setMouseIcon(PictureRef icon) override { inner_->setMouseIcon(std::move(icon)); }
    void setFocus() override { inner_->setFocus(); }
    void setCapture() override { inner_->setCapture(); }
    void releaseCapture() override { inner_->releaseCapture(); }
    bool pointerStrictlyInside() const override { return inner_->pointerStrictlyInside(); }
    Point pointer() const override { return inner_->pointer(); }
    bool underPointer() const override { return inner_->underPointer(); }
    bool adopt(WindowHandle child) override { return inner_->adopt(child); }
    void present() override {
        compare();
        inner_->present();
    }

  private:
    void compare() {
        const auto [windows, software] = surface_.pictures();
        ++comparisons_.made;
        EXPECT_TRUE(samePixels(windows, software))
            << "window " << hWnd() << ", comparison " << comparisons_.made;
        EXPECT_EQ(surface_.disagreements, 0) << "texts were measured differently";
        surface_.disagreements = 0;
    }

    std::unique_ptr<Window> inner_;
    Comparisons& comparisons_;
    MirrorSurface surface_{static_cast<HeadlessWindow&>(*inner_).surface()};
};

class MirrorWorld final : public World {
  public:
    MirrorWorld(Desktop& desktop, Comparisons& comparisons) : desktop_(desktop), comparisons_(comparisons) {}

    Runtime& runtime() override { return desktop_.runtime(); }
    TipPlatform& tips() override { return desktop_.tips(); }
    std::unique_ptr<Window> createWindow(Window* parent, UserControl& client) override {
        return std::make_unique<MirrorWindow>(desktop_.createWindow(parent, client), comparisons_);
    }
    std::unique_ptr<Window> createForm(UserControl& client) override {
        return std::make_unique<MirrorWindow>(desktop_.createForm(client), comparisons_);
    }
    void showModal(Window& form) override { desktop_.showModal(form); }
    Point screenSize() const override { return desktop_.screenSize(); }
    std::unique_ptr<TextBox> createTextBox(Window& parent, TextBoxClient& client) override {
        return desktop_.createTextBox(parent, client);
    }
    std::unique_ptr<GuideLine> createGuideLine(Window& parent) override {
        return desktop_.createGuideLine(parent);
    }
    std::unique_ptr<Timer> createTimer(std::function<void()> onTimer) override {
        return desktop_.createTimer(std::move(onTimer));
    }
    std::unique_ptr<Surface> createSurface(Long width, Long height) override {
        std::unique_ptr<Surface> board = desktop_.createSurface(width, height);
        std::unique_ptr<RasterSurface> software(static_cast<RasterSurface*>(board.release()));
        return std::make_unique<MirrorSurface>(std::move(software));
    }

  private:
    Desktop& desktop_;
    Comparisons& comparisons_;
};

} // namespace lumtex::testing
