/// \file
/// A desktop whose windows draw through recording surfaces.
#pragma once

#include "forwarding_window.h"
#include "recording_surface.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace lumtex::testing {

/// Draws through a RecordingSurface.
class RecordingWindow final : public ForwardingWindow {
  public:
    using ForwardingWindow::ForwardingWindow;
    ~RecordingWindow() override {
        if (onEnd)
            onEnd();
    }

    RecordingSurface& recorder() { return surface_; }

    std::function<void(bool)> onVisible; ///< before the window is shown or hidden
    std::function<void()> onEnd;         ///< before the window goes

    Surface& surface() override { return surface_; }
    void letVisible(bool visible) override {
        if (onVisible)
            onVisible(visible);
        ForwardingWindow::letVisible(visible);
    }

  private:
    RecordingSurface surface_{inner().surface()};
};

class RecordingWorld final : public World {
  public:
    explicit RecordingWorld(headless::Desktop& desktop) : desktop_(desktop) {}

    Runtime& runtime() override { return desktop_.runtime(); }
    TipPlatform& tips() override { return desktop_.tips(); }
    std::unique_ptr<Window> createWindow(Window* parent, UserControl& client) override {
        auto window = std::make_unique<RecordingWindow>(desktop_.createWindow(innerOf(parent), client));
        window->onEnd = [this, name = parent != nullptr ? "child" : "window"] { noteEnd(name); };
        return window;
    }
    std::unique_ptr<Window> createForm(UserControl& client) override {
        auto form = std::make_unique<RecordingWindow>(desktop_.createForm(client));
        form->onVisible = [this](bool visible) { forms.emplace_back(visible ? "show" : "hide"); };
        form->onEnd = [this] { noteEnd("form"); };
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
    std::vector<std::string> ends;  ///< what was destroyed, in order: window, child, form; neighbours once

  private:
    void noteEnd(const char* name) {
        if (ends.empty() || ends.back() != name)
            ends.emplace_back(name);
    }
    static Window* innerOf(Window* window) {
        return window != nullptr ? &static_cast<RecordingWindow*>(window)->inner() : nullptr;
    }

    headless::Desktop& desktop_;
};

} // namespace lumtex::testing
