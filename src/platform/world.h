/// \file
/// A world makes the platform's things: windows, child widgets, surfaces. One per backend.
#pragma once

#include "platform/guide_line.h"
#include "platform/runtime.h"
#include "platform/text_box.h"
#include "platform/timer.h"
#include "platform/tip_platform.h"
#include "platform/wheel_hook.h"
#include "platform/window.h"

#include <functional>
#include <memory>

namespace lumtex {

/// Lives longer than everything made by it. What it makes belongs to the caller.
class World {
  public:
    World() = default;
    World(const World&) = delete;
    World& operator=(const World&) = delete;
    virtual ~World() = default;

    virtual Runtime& runtime() = 0;
    virtual TipPlatform& tips() = 0;

    /// A hidden window of no size whose events go to `client`. `parent` is null for a control that the host
    /// places itself. Later children lie above earlier ones.
    virtual std::unique_ptr<Window> createWindow(Window* parent, UserControl& client) = 0;
    /// A hidden window without a frame, placed in pixels of the screen.
    virtual std::unique_ptr<Window> createForm(UserControl& client) = 0;
    /// Shows a form above the program's other windows, which take no input meanwhile, and gives it the focus.
    /// Events are delivered until the form is hidden, by its own doing or by the desktop's; then it returns.
    virtual void showModal(Window& form) = 0;
    /// Pixels of the screen on which forms appear.
    virtual Point screenSize() const = 0;
    virtual std::unique_ptr<TextBox> createTextBox(Window& parent, TextBoxClient& client) = 0;
    virtual std::unique_ptr<GuideLine> createGuideLine(Window& parent) = 0;
    virtual std::unique_ptr<Timer> createTimer(std::function<void()> onTimer) = 0;
    /// A way to take the wheel messages of a window before it sees them; the hook lies in `parent` and must
    /// go before it. Null if the platform hands turns of the wheel to `UserControl_Wheel` by itself.
    virtual std::unique_ptr<WheelHook> createWheelHook(Window& /*parent*/,
                                                       const WheelHook::OnWheel& /*onWheel*/) {
        return nullptr;
    }
    /// An off-screen surface, as a hidden picture box has it.
    virtual std::unique_ptr<Surface> createSurface(Long width, Long height) = 0;

    /// The one about box of all that live in this world, while somebody holds it.
    std::weak_ptr<void> aboutForm;
};

} // namespace lumtex
