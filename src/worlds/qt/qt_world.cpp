#include "worlds/qt/qt_world.h"

#include "values/runtime_error.h"
#include "worlds/qt/key_codes.h"
#include "worlds/qt/qt_guide_line.h"
#include "worlds/qt/qt_text_box.h"
#include "worlds/qt/qt_timer.h"
#include "worlds/qt/qt_window.h"

#include <QApplication>
#include <QEventLoop>
#include <QScreen>
#include <cmath>
#include <utility>

namespace lumtex::qt {

namespace {

/// Throws RuntimeError 5 for a window of another world.
QtWindow& windowOfOurs(worlds::Pane& pane) {
    auto* own = dynamic_cast<QtWindow*>(&pane);
    if (own == nullptr)
        throw RuntimeError(ErrorNumber::invalidProcedureCall);
    return *own;
}

/// What a modal loop ends with when a form was hidden.
constexpr int formClosed = 4711;

} // namespace

QtWorld::QtWorld(QWidget* container, Runtime* runtime, std::shared_ptr<raster::FontLibrary> fonts)
    : fonts_(std::move(fonts)), container_(container), runtime_(runtime), ownRuntime_(pointer_) {
    letRatio(container != nullptr ? container->devicePixelRatioF() : qApp->devicePixelRatio());
    tree_.onRemove = [this](const worlds::Pane& pane) {
        pointer_.forget(pane);
        focus_.forget(pane);
    };
    pointer_.onMadeUpMove = [this](worlds::Pointer::Event event) {
        event.shift = static_cast<Integer>(event.shift | shiftOf(QGuiApplication::keyboardModifiers()));
        QMetaObject::invokeMethod(
            &context_,
            [this, event] {
                const Delivery delivery(*this);
                pointer_.deliverMadeUpMove(event);
            },
            Qt::QueuedConnection);
    };
    focus_.claim = [this](const worlds::Pane* pane) { return claimFocus(pane); };
}

QtWorld::~QtWorld() = default;

void QtWorld::letRatio(Double ratio) {
    constexpr Double usualPixelsPerInch = 96;
    ratio_ = ratio;
    *density_ = usualPixelsPerInch * ratio;
}

void QtWorld::lookAtDensity() {
    const Double ratio = container_ != nullptr ? container_->devicePixelRatioF() : ratio_;
    if (ratio == ratio_)
        return;
    const QtRuntime::HeldYields quiet;
    const Double factor = ratio / ratio_;
    letRatio(ratio);
    tree_.forEach([&](worlds::Pane& pane) {
        if (auto* box = dynamic_cast<QtTextBox*>(&pane))
            box->stretch(factor);
    });
    if (onDensity)
        onDensity();
}

worlds::Pane& QtWorld::paneOf(WindowHandle handle) const {
    worlds::Pane* pane = tree_.find(handle);
    if (pane == nullptr)
        throw RuntimeError(ErrorNumber::invalidProcedureCall);
    return *pane;
}

std::unique_ptr<Window> QtWorld::createWindow(Window* parent, UserControl& client) {
    worlds::Pane* outer = parent != nullptr ? &paneOf(parent->hWnd()) : nullptr;
    const auto kind = parent != nullptr ? QtWindow::Kind::child : QtWindow::Kind::outermost;
    return std::make_unique<QtWindow>(*this, outer, kind, container_, client);
}

std::unique_ptr<Window> QtWorld::createForm(UserControl& client) {
    return std::make_unique<QtWindow>(*this, nullptr, QtWindow::Kind::form, container_, client);
}

void QtWorld::showModal(Window& form) {
    const WindowHandle handle = form.hWnd();
    const Delivery delivery(*this);
    if (ScreenWidget* screen = windowOfOurs(paneOf(handle)).screen())
        screen->setWindowModality(Qt::ApplicationModal);
    form.letVisible(true);
    if (tree_.find(handle) != nullptr)
        form.setFocus();
    QEventLoop loop;
    QEventLoop* const outer = std::exchange(modal_, &loop);
    const auto isOpen = [&] {
        worlds::Pane* pane = tree_.find(handle);
        // The widget around may have taken what shows it along.
        return pane != nullptr && pane->isVisible() && windowOfOurs(*pane).screen() != nullptr;
    };
    // Anything else ends it because the application is told to end: its own loop hears of that too.
    while (isOpen() && loop.exec() == formClosed)
        continue;
    modal_ = outer;
    if (isOpen())
        form.letVisible(false);
}

void QtWorld::formMayBeClosed() {
    if (modal_ != nullptr)
        modal_->exit(formClosed);
}

Point QtWorld::screenSize() const {
    const QScreen* screen = container_ != nullptr ? container_->screen() : QGuiApplication::primaryScreen();
    const QSize size = screen != nullptr ? screen->availableSize() : QSize();
    return {static_cast<Long>(size.width() * ratio_), static_cast<Long>(size.height() * ratio_)};
}

std::unique_ptr<TextBox> QtWorld::createTextBox(Window& parent, TextBoxClient& client) {
    return std::make_unique<QtTextBox>(*this, paneOf(parent.hWnd()), client);
}

std::unique_ptr<GuideLine> QtWorld::createGuideLine(Window& parent) {
    return std::make_unique<QtGuideLine>(windowOfOurs(paneOf(parent.hWnd())));
}

std::unique_ptr<Timer> QtWorld::createTimer(std::function<void()> onTimer) {
    return std::make_unique<QtTimer>(
        [this, tick = std::move(onTimer)] {
            const Delivery delivery(*this);
            tick();
        },
        &timers_);
}

void QtWorld::refuseHugeSize(Long width, Long height) {
    if (width > 0 && height > 0 && std::int64_t{width} * height > mostPixels)
        throw RuntimeError(ErrorNumber::outOfMemory);
}

std::unique_ptr<Surface> QtWorld::createSurface(Long width, Long height) {
    refuseHugeSize(width, height);
    auto surface = std::make_unique<raster::RasterSurface>(width, height, fonts_);
    surface->letPixelsPerInch(pixelsPerInch_);
    return surface;
}

void QtWorld::inputLost(const worlds::Pane& pane) {
    pointer_.forget(pane);
    focus_.leave(pane);
}

void QtWorld::showPointer() {
    worlds::Pane* pane =
        pointer_.captured() != 0 ? tree_.find(pointer_.captured()) : tree_.at(pointer_.place());
    const auto* window = dynamic_cast<QtWindow*>(pane);
    const auto* outer = window != nullptr ? dynamic_cast<QtWindow*>(&pane->outermost()) : nullptr;
    if (outer != nullptr && outer->screen() != nullptr)
        outer->screen()->setCursor(window->cursor());
}

// Focus

QWidget* QtWorld::widgetOf(const worlds::Pane& pane) const {
    if (const auto* box = dynamic_cast<const QtTextBox*>(&pane))
        return box->field();
    const auto* outer = dynamic_cast<QtWindow*>(&paneOf(pane.handle()).outermost());
    return outer != nullptr ? outer->screen() : nullptr;
}

bool QtWorld::claimFocus(const worlds::Pane* pane) {
    QWidget* widget = pane != nullptr ? widgetOf(*pane) : QApplication::focusWidget();
    if (widget == nullptr)
        return pane == nullptr;
    const WindowHandle handle = pane != nullptr ? pane->handle() : 0;
    const QPointer<QWidget> watched(widget);
    const bool outer = std::exchange(claiming_, true);
    widget->setFocusProxy(nullptr);
    if (pane == nullptr)
        widget->clearFocus();
    else if (!widget->hasFocus())
        widget->setFocus(Qt::OtherFocusReason);
    claiming_ = outer;
    focusedLast_ = handle;
    return pane == nullptr || (watched != nullptr && watched->hasFocus());
}

void QtWorld::focusCame(const worlds::Pane& pane) {
    if (claiming_)
        return;
    const QtRuntime::HeldYields quiet;
    const worlds::Pane* last = tree_.find(focusedLast_);
    const bool goesOn = last != nullptr && !last->isBox() && !pane.isBox() && last->isWithin(pane);
    focus_.moveTo(goesOn ? *last : pane);
}

void QtWorld::focusWent() {
    if (claiming_)
        return;
    const QtRuntime::HeldYields quiet;
    const worlds::Pane* held = focus_.holder();
    const QWidget* widget = QApplication::focusWidget();
    if (held == nullptr || (widget != nullptr && widget == widgetOf(*held)))
        return;
    const WindowHandle handle = held->handle();
    // What else of ours gets it says so itself.
    if (dynamic_cast<const ScreenWidget*>(widget) != nullptr || QtTextBox::isField(widget))
        return;
    if (QApplication::activeWindow() == nullptr || QtRuntime::isBoxOpen())
        focus_.switchAway();
    else
        focus_.moveAway();
    focusedLast_ = handle;
}

} // namespace lumtex::qt
