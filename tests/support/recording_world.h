/// \file
/// A desktop whose windows draw through recording surfaces.
#pragma once

#include "platform/headless/headless_window.h"
#include "recording_surface.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace lumtex::testing {

/// Hands everything on to a Desktop but the surface, which is a RecordingSurface.
class RecordingWindow final : public Window {
  public:
    explicit RecordingWindow(std::unique_ptr<Window> inner) : inner_(std::move(inner)) {}

    HeadlessWindow& inner() { return static_cast<HeadlessWindow&>(*inner_); }
    RecordingSurface& recorder() { return surface_; }

    std::function<void(bool)> onVisible; ///< before the window is shown or hidden

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
    void letVisible(bool visible) override {
        if (onVisible)
            onVisible(visible);
        inner_->letVisible(visible);
    }
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
    void present() override { inner_->present(); }

  private:
    std::unique_ptr<Window> inner_;
    RecordingSurface surface_{inner_->surface()};
};

class RecordingWorld final : public World {
  public:
    explicit RecordingWorld(Desktop& desktop) : desktop_(desktop) {}

    Runtime& runtime() override { return desktop_.runtime(); }
    TipPlatform& tips() override { return desktop_.tips(); }
    std::unique_ptr<Window> createWindow(Window* parent, UserControl& client) override {
        return std::make_unique<RecordingWindow>(desktop_.createWindow(innerOf(parent), client));
    }
    std::unique_ptr<Window> createForm(UserControl& client) override {
        auto form = std::make_unique<RecordingWindow>(desktop_.createForm(client));
        form->onVisible = [this](bool visible) { forms.emplace_back(visible ? "show" : "hide"); };
        return form;
    }
    void showModal(Window& form) override {
        forms.emplace_back("modal");
        desktop_.showModal(*innerOf(&form));
        forms.emplace_back("modal end");
    }
    Point screenSize() const override { return desktop_.screenSize(); }
    std::unique_ptr<TextBox> createTextBox(Window& parent, TextBoxClient& client) override {
        return desktop_.createTextBox(*innerOf(&parent), client);
    }
    std::unique_ptr<GuideLine> createGuideLine(Window& parent) override {
        return desktop_.createGuideLine(*innerOf(&parent));
    }
    std::unique_ptr<Timer> createTimer(std::function<void()> onTimer) override {
        return desktop_.createTimer(std::move(onTimer));
    }
    std::unique_ptr<Surface> createSurface(Long width, Long height) override {
        return desktop_.createSurface(width, height);
    }

    std::vector<std::string> forms; ///< how forms came and went: show, hide, modal, modal end

  private:
    static Window* innerOf(Window* window) {
        return window != nullptr ? &static_cast<RecordingWindow*>(window)->inner() : nullptr;
    }

    Desktop& desktop_;
};

} // namespace lumtex::testing
