#include "worlds/qt/qt_window.h"

#include "raster/canvas.h"
#include "values/rounding.h"
#include "worlds/qt/qt_guide_line.h"
#include "worlds/qt/qt_picture.h"
#include "worlds/qt/qt_text_box.h"
#include "worlds/qt/qt_world.h"
#include "worlds/qt/widget_object.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace lumtex::qt {

namespace {

constexpr std::uint32_t guideColor = 0xFF000000U; // 0xAARRGGBB

} // namespace

QtWindow::QtWindow(QtWorld& world, worlds::Pane* parent, Kind kind, QWidget* container, UserControl& client)
    : Pane(world.tree(), parent), world_(world), client_(client), surface_(0, 0, world.fonts()) {
    surface_.letPixelsPerInch(world.pixelsPerInch());
    if (kind == Kind::child)
        return;
    screen_ = new ScreenWidget(world, handle(), container);
    if (kind == Kind::form)
        screen_->setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
    visible_ = kind == Kind::outermost;
    screen_->setVisible(visible_ && container != nullptr);
}

QtWindow::~QtWindow() {
    for (QtGuideLine* guide : guides_)
        guide->loseParent();
    touch();
    dropScreen();
}

void QtWindow::dropScreen() {
    ScreenWidget* screen = screen_;
    screen_.clear();
    if (screen == nullptr)
        return;
    // A guest that goes with it may be in an event of its own.
    const bool later = world_.isDelivering() || screen->hasGuests();
    const QPointer<ScreenWidget> watched(screen);
    screen->loseWindow();
    world_.formMayBeClosed();
    if (watched == nullptr)
        return;
    if (later)
        screen->deleteLater();
    else
        delete screen;
}

void QtWindow::placeScreen() {
    if (screen_ == nullptr)
        return;
    const Double ratio = world_.ratio();
    const auto unit = [&](Long pixels) { return static_cast<int>(std::ceil(pixels / ratio)); };
    const QRect place(static_cast<int>(area().Left / ratio),
                      static_cast<int>(area().Top / ratio),
                      unit(surface_.scaleWidth()),
                      unit(surface_.scaleHeight()));
    screen_->setGeometry(place);
}

void QtWindow::place(Single left, Single top, Single width, Single height) {
    const Point corner{roundToLong(left), roundToLong(top)};
    const Long newWidth = std::max<Long>(roundToLong(width), 0);
    const Long newHeight = std::max<Long>(roundToLong(height), 0);
    const bool resized = newWidth != surface_.scaleWidth() || newHeight != surface_.scaleHeight();
    if (resized) {
        QtWorld::refuseHugeSize(newWidth, newHeight);
        surface_.resize(newWidth, newHeight);
    }
    touch();
    letArea(corner, newWidth, newHeight);
    placeScreen();
    touch();
    if (resized)
        client_.UserControl_Resize();
}

void QtWindow::letVisible(bool visible) {
    const bool wasVisible = std::exchange(visible_, visible);
    const WindowHandle self = handle();
    const QtWorld& world = world_;
    touch();
    if (!visible)
        world_.inputLost(*this);
    if (world.tree().find(self) == nullptr)
        return;
    if (ScreenWidget* screen = screen_) {
        // A widget that appears may get the focus, and a handler of that may let the window go.
        screen->setVisible(visible);
        if (world.tree().find(self) == nullptr)
            return;
    }
    if (screen_ != nullptr && !visible)
        world_.formMayBeClosed();
    if (visible && !wasVisible)
        client_.UserControl_Show();
}

void QtWindow::letEnabled(bool enabled) {
    enabled_ = enabled;
    const WindowHandle self = handle();
    const QtWorld& world = world_;
    if (!enabled)
        world_.inputLost(*this);
    if (world.tree().find(self) != nullptr && screen_ != nullptr)
        screen_->setEnabled(enabled);
}

void QtWindow::letOLEDropMode(Long mode) {
    oleDropMode_ = mode;
    const auto* outer = dynamic_cast<QtWindow*>(&outermost());
    // Elsewhere the widgets around may take what is dropped.
    if (outer != nullptr && outer->screen_ != nullptr && (takesDrops() || outer == this))
        outer->screen_->setAcceptDrops(takesDrops());
}

void QtWindow::letMousePointer(CursorShape shape) {
    mousePointer_ = shape;
    world_.showPointer();
}

void QtWindow::setMouseIcon(PictureRef icon) {
    if (icon == mouseIcon_)
        return;
    mouseIcon_ = std::move(icon);
    icon_.reset();
    if (mouseIcon_ && mouseIcon_->bitmap().width > 0 && mouseIcon_->bitmap().height > 0)
        icon_.emplace(QPixmap::fromImage(imageOf(mouseIcon_->bitmap())));
    world_.showPointer();
}

void QtWindow::setFocus() {
    world_.keyFocus().moveTo(*this);
}
void QtWindow::setCapture() {
    world_.mouse().capture(*this);
}
void QtWindow::releaseCapture() {
    world_.mouse().releaseCapture(*this);
}

bool QtWindow::underPointer() const {
    return world_.tree().at(world_.mouse().place()) == this;
}

bool QtWindow::pointerStrictlyInside() const {
    // Right and lower bounds lie outside, so that only the first row and column count as outside too.
    const Point at = pointer();
    return underPointer() && at.x > 0 && at.y > 0;
}

Point QtWindow::pointer() const {
    return fromDesktop(world_.mouse().place());
}

bool QtWindow::takeIn(QWidget& guest) {
    const auto* outer = dynamic_cast<QtWindow*>(&outermost());
    ScreenWidget* screen = outer != nullptr ? outer->screen() : nullptr;
    if (screen == nullptr || guest.isAncestorOf(screen) || &guest == screen)
        return false;
    touch();
    screen->takeIn(guest, handle());
    return true;
}

bool QtWindow::adopt(WindowHandle child) {
    if (QWidget* guest = WidgetObject::find(child))
        return takeIn(*guest);
    worlds::Pane* pane = world_.tree().find(child);
    if (pane == nullptr || !world_.tree().adopt(*this, *pane))
        return false;
    if (auto* window = dynamic_cast<QtWindow*>(pane))
        window->dropScreen();
    if (auto* box = dynamic_cast<QtTextBox*>(pane))
        box->placeField();
    if (!pane->takesInput())
        world_.inputLost(*pane);
    touch();
    return true;
}

void QtWindow::present() {
    touch();
}

void QtWindow::touch() {
    worlds::Pane& outer = outermost();
    const auto* window = dynamic_cast<QtWindow*>(&outer);
    if (window == nullptr || window->screen_ == nullptr)
        return;
    const Point corner = origin();
    const Point outerCorner = outer.origin();
    const Long left = corner.x - outerCorner.x;
    const Long top = corner.y - outerCorner.y;
    window->screen_->touch({left, top, left + area().Right - area().Left, top + area().Bottom - area().Top});
}

void QtWindow::removeGuide(QtGuideLine& guide) {
    std::erase(guides_, &guide);
    touch();
}

Bitmap QtWindow::picture() const {
    Bitmap picture = surface_.image();
    const raster::Canvas canvas{picture.pixels.data(), picture.width, picture.height};
    for (const QtGuideLine* guide : guides_) {
        if (guide->Visible())
            raster::drawLine(canvas, guide->from(), guide->to(), guideColor);
    }
    return picture;
}

void QtWindow::mouseDown(Integer button, Integer shift, Point at) {
    client_.UserControl_MouseDown(button, shift, static_cast<Single>(at.x), static_cast<Single>(at.y));
}
void QtWindow::doubleClick(Point /*at*/) {
    client_.UserControl_DblClick();
}
void QtWindow::mouseMove(Integer buttons, Integer shift, Point at) {
    client_.UserControl_MouseMove(buttons, shift, static_cast<Single>(at.x), static_cast<Single>(at.y));
}
void QtWindow::mouseUp(Integer button, Integer shift, Point at) {
    client_.UserControl_MouseUp(button, shift, static_cast<Single>(at.x), static_cast<Single>(at.y));
}

bool QtWindow::wheel(Long rotation, Integer shift, Point at) {
    return client_.UserControl_Wheel(rotation, shift, static_cast<Single>(at.x), static_cast<Single>(at.y));
}

} // namespace lumtex::qt
