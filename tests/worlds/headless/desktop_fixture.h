/// \file
/// A desktop with windows that log what they get.
#pragma once

#include "log_comparison.h"
#include "test_fonts.h"
#include "worlds/headless/desktop.h"
#include "worlds/headless/event_recorder.h"
#include "worlds/headless/headless_window.h"

#include <gtest/gtest.h>

namespace lumtex::testing {

/// A window with a name and no behaviour: `a.MouseDown Button=1 Shift=0 X=3 Y=4`. Host code goes in by
/// `events.on("a.MouseDown", ...)`.
class Pad final : public UserControl {
  public:
    Pad(headless::Desktop& desktop,
        headless::EventRecorder& events,
        std::string name,
        Window* parent = nullptr)
        : name_(std::move(name)), events_(events), window_(desktop.createWindow(parent, *this)) {}

    Window& window() { return *window_; }
    headless::HeadlessWindow& headless() { return dynamic_cast<headless::HeadlessWindow&>(*window_); }
    void show(Single left, Single top, Single width, Single height) {
        window_->place(left, top, width, height);
        window_->letVisible(true);
    }

    void UserControl_MouseDown(Integer Button, Integer Shift, Single X, Single Y) override {
        mouse(".MouseDown", Button, Shift, X, Y);
    }
    void UserControl_MouseMove(Integer Button, Integer Shift, Single X, Single Y) override {
        mouse(".MouseMove", Button, Shift, X, Y);
    }
    void UserControl_MouseUp(Integer Button, Integer Shift, Single X, Single Y) override {
        mouse(".MouseUp", Button, Shift, X, Y);
    }
    void UserControl_Click() override { note(".Click"); }
    void UserControl_DblClick() override { note(".DblClick"); }
    bool takesWheel = true;
    bool UserControl_Wheel(Long Rotation, Integer Shift, Single X, Single Y) override {
        const bool takes = takesWheel; // host code at the event may destroy the pad
        events_.record(name_ + ".Wheel", {{"Rotation", Rotation}, {"Shift", Shift}, {"X", X}, {"Y", Y}});
        return takes;
    }
    void UserControl_KeyDown(Integer KeyCode, Integer Shift) override {
        events_.record(name_ + ".KeyDown", {{"KeyCode", KeyCode}, {"Shift", Shift}});
    }
    void UserControl_KeyPress(Integer KeyAscii) override {
        events_.record(name_ + ".KeyPress", {{"KeyAscii", KeyAscii}});
    }
    void UserControl_KeyUp(Integer KeyCode, Integer Shift) override {
        events_.record(name_ + ".KeyUp", {{"KeyCode", KeyCode}, {"Shift", Shift}});
    }
    void UserControl_GotFocus() override { note(".GotFocus"); }
    void UserControl_LostFocus() override { note(".LostFocus"); }
    void UserControl_Resize() override {
        events_.record(name_ + ".Resize", {{"Width", window_->Width()}, {"Height", window_->Height()}});
    }
    void UserControl_Show() override { note(".Show"); }

  private:
    void note(const char* event) { events_.record(name_ + event); }
    void mouse(const char* event, Integer button, Integer shift, Single x, Single y) {
        events_.record(name_ + event, {{"Button", button}, {"Shift", shift}, {"X", x}, {"Y", y}});
    }

    std::string name_;
    headless::EventRecorder& events_;
    std::unique_ptr<Window> window_;
};

/// A window `a` of 100 x 80 pixels at (10, 20) of the desktop.
class DesktopFixture : public ::testing::Test {
  protected:
    DesktopFixture() {
        a->show(10, 20, 100, 80);
        events.clear();
    }

    std::unique_ptr<Pad> pad(const std::string& name, Pad* parent = nullptr) {
        return std::make_unique<Pad>(desktop, events, name, parent != nullptr ? &parent->window() : nullptr);
    }
    /// A shown one.
    std::unique_ptr<Pad>
    child(const std::string& name, Pad& parent, Single left, Single top, Single width, Single height) {
        auto made = pad(name, &parent);
        made->show(left, top, width, height);
        events.clear();
        return made;
    }

    headless::Desktop desktop{testFonts()};
    headless::EventRecorder events{desktop};
    std::unique_ptr<Pad> a = pad("a");
};

} // namespace lumtex::testing
