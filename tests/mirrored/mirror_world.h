/// \file
/// A simulated desktop whose windows are drawn by Windows as well.
#pragma once

#include "forwarding_window.h"
#include "mirror_surface.h"
#include "worlds/headless/desktop.h"
#include "worlds/win32/surface_pair.h"

#include <memory>
#include <utility>

namespace lumtex::testing {

/// What the windows of one world showed.
struct Comparisons {
    int made = 0;
};

/// Compares both pictures each time it is presented, and once more before it goes.
class MirrorWindow final : public ForwardingWindow {
  public:
    MirrorWindow(std::unique_ptr<Window> inner, Comparisons& comparisons)
        : ForwardingWindow(std::move(inner)), comparisons_(comparisons) {}
    ~MirrorWindow() override { compare(); }

    Surface& surface() override { return surface_; }
    void present() override {
        compare();
        ForwardingWindow::present();
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

    Comparisons& comparisons_;
    MirrorSurface surface_{inner().surface()};
};

class MirrorWorld final : public World {
  public:
    MirrorWorld(headless::Desktop& desktop, Comparisons& comparisons)
        : desktop_(desktop), comparisons_(comparisons) {}

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
        std::unique_ptr<raster::RasterSurface> software(static_cast<raster::RasterSurface*>(board.release()));
        return std::make_unique<MirrorSurface>(std::move(software));
    }

  private:
    headless::Desktop& desktop_;
    Comparisons& comparisons_;
};

} // namespace lumtex::testing
