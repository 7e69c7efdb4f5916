#include "worlds/headless/desktop.h"

#include "values/runtime_error.h"
#include "worlds/common/composed_picture.h"
#include "worlds/headless/headless_guide_line.h"
#include "worlds/headless/headless_text_box.h"
#include "worlds/headless/headless_window.h"

namespace lumtex::headless {

Desktop::Desktop(std::shared_ptr<raster::FontLibrary> fonts) : fonts_(std::move(fonts)), runtime_(*this) {
    tree_.onRemove = [this](const worlds::Pane& pane) {
        pointer_.forget(pane);
        focus_.forget(pane);
    };
    pointer_.onMadeUpMove = [this](worlds::Pointer::Event event) {
        event.shift = withHeldKeys(event.shift);
        post([this, event] { pointer_.deliverMadeUpMove(event); });
    };
}

Desktop::~Desktop() = default;

worlds::Pane& Desktop::paneOf(WindowHandle handle) const {
    worlds::Pane* pane = tree_.find(handle);
    if (pane == nullptr)
        throw RuntimeError(ErrorNumber::invalidProcedureCall);
    return *pane;
}

std::unique_ptr<Window> Desktop::createWindow(Window* parent, UserControl& client) {
    worlds::Pane* outer = parent != nullptr ? &paneOf(parent->hWnd()) : nullptr;
    auto window = std::make_unique<HeadlessWindow>(*this, outer, client);
    window->visible_ = parent == nullptr;
    return window;
}

std::unique_ptr<Window> Desktop::createForm(UserControl& client) {
    return std::make_unique<HeadlessWindow>(*this, nullptr, client);
}

void Desktop::showModal(Window& form) {
    form.letVisible(true);
    form.setFocus();
    // A copy, since the host may replace it while it runs.
    loop_.yield([&form, use = whileFormIsOpen] {
        if (use)
            use(form);
    });
    form.letVisible(false);
}

std::unique_ptr<TextBox> Desktop::createTextBox(Window& parent, TextBoxClient& client) {
    return std::make_unique<HeadlessTextBox>(*this, paneOf(parent.hWnd()), client);
}

std::unique_ptr<GuideLine> Desktop::createGuideLine(Window& parent) {
    return std::make_unique<HeadlessGuideLine>(dynamic_cast<HeadlessWindow&>(paneOf(parent.hWnd())));
}

std::unique_ptr<Timer> Desktop::createTimer(std::function<void()> onTimer) {
    return std::make_unique<HeadlessTimer>(clock_, std::move(onTimer));
}

void Desktop::refuseHugeSize(Long width, Long height) {
    if (width > 0 && height > 0 && std::int64_t{width} * height > mostPixels)
        throw RuntimeError(ErrorNumber::outOfMemory);
}

std::unique_ptr<Surface> Desktop::createSurface(Long width, Long height) {
    refuseHugeSize(width, height);
    return std::make_unique<raster::RasterSurface>(width, height, fonts_);
}

Window* Desktop::focus() const {
    return dynamic_cast<HeadlessWindow*>(focus_.holder());
}

WindowHandle Desktop::focused() const {
    const worlds::Pane* holder = focus_.holder();
    return holder != nullptr ? holder->handle() : 0;
}

void Desktop::inputLost(const worlds::Pane& pane) {
    pointer_.forget(pane);
    focus_.leave(pane);
}

void Desktop::postPaint(const worlds::Pane& pane) {
    loop_.postPaint([this, handle = pane.handle()] {
        if (worlds::Pane* painted = tree_.find(handle))
            painted->paint();
    });
}

Bitmap Desktop::screenshot(const Window& window) const {
    Bitmap picture(static_cast<Long>(window.Width()), static_cast<Long>(window.Height()));
    worlds::composePicture(picture, paneOf(window.hWnd()), {0, 0, picture.width, picture.height});
    return picture;
}

void Desktop::onYield(std::function<void()> body, int times) {
    if (times > 0)
        yieldHooks_.push_back({std::move(body), times});
}

void Desktop::runYieldHook() {
    if (yieldHooks_.empty())
        return;
    const std::function<void()> body = yieldHooks_.front().body;
    if (--yieldHooks_.front().times == 0)
        yieldHooks_.pop_front();
    body();
}

void Desktop::yield() {
    loop_.yield([this] { runYieldHook(); });
}

} // namespace lumtex::headless
