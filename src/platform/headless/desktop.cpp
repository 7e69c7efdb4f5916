#include "platform/headless/desktop.h"

#include "platform/headless/headless_widgets.h"

#include <algorithm>

namespace lumtex {

Desktop::Desktop(std::shared_ptr<raster::FontLibrary> fonts) : fonts_(std::move(fonts)), runtime_(*this) {}

Desktop::~Desktop() = default;

std::unique_ptr<Window> Desktop::createWindow(Window* parent, UserControl& client) {
    auto* const outer = static_cast<HeadlessWindow*>(parent);
    auto window = std::make_unique<HeadlessWindow>(*this, outer, client, nextHandle_++);
    if (parent == nullptr)
        window->letVisible(true);
    return window;
}

std::unique_ptr<TextBox> Desktop::createTextBox(Window& parent, TextBoxClient& client) {
    return std::make_unique<HeadlessTextBox>(
        *this, static_cast<HeadlessWindow&>(parent), client, nextHandle_++);
}

std::unique_ptr<GuideLine> Desktop::createGuideLine(Window& parent) {
    return std::make_unique<HeadlessGuideLine>(guideLines_, static_cast<HeadlessWindow&>(parent));
}

std::unique_ptr<Timer> Desktop::createTimer(std::function<void()> onTimer) {
    return std::make_unique<HeadlessTimer>(*this, std::move(onTimer));
}

std::unique_ptr<Surface> Desktop::createSurface(Long width, Long height) {
    return std::make_unique<RasterSurface>(width, height, fonts_);
}

HeadlessWindow* Desktop::find(WindowHandle handle) const {
    const auto found = std::find_if(windows_.begin(), windows_.end(), [&](const HeadlessWindow* window) {
        return window->hWnd() == handle;
    });
    return found != windows_.end() ? *found : nullptr;
}

/// The topmost shown window at a point of the desktop: later ones lie above earlier ones, children above
/// their parents.
HeadlessWindow* Desktop::windowAt(Point point) const {
    HeadlessWindow* best = nullptr;
    const auto isInside = [](const HeadlessWindow* window, const HeadlessWindow* outer) {
        while (window != nullptr && window != outer)
            window = window->parent();
        return window == outer;
    };
    // Windows are in order of creation, so among siblings the last one wins; descending stays inside the
    // winner.
    for (bool found = true; found;) {
        found = false;
        for (auto it = windows_.rbegin(); it != windows_.rend(); ++it) {
            HeadlessWindow* window = *it;
            if (window->parent() == best && window->shown() && window->contains(point) &&
                isInside(window, best)) {
                best = window;
                found = true;
                break;
            }
        }
    }
    return best;
}

Window* Desktop::focus() const {
    return find(focus_);
}

void Desktop::setFocus(WindowHandle handle) {
    if (focus_ == handle)
        return;
    const WindowHandle old = std::exchange(focus_, handle);
    if (HeadlessWindow* window = find(old))
        window->client().UserControl_LostFocus();
    for (HeadlessTextBox* box : textBoxes_) {
        if (box->hWnd() == old) {
            box->client().textBoxLostFocus();
            break;
        }
    }
    if (HeadlessWindow* window = find(handle))
        window->client().UserControl_GotFocus();
}

void Desktop::forget(WindowHandle handle) {
    for (WindowHandle* held : {&capture_, &pressed_, &focus_}) {
        if (*held == handle)
            *held = 0;
    }
}

} // namespace lumtex
