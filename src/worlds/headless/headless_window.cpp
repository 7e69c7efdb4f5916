#include "worlds/headless/headless_window.h"

#include "raster/canvas.h"
#include "values/rounding.h"
#include "worlds/headless/headless_guide_line.h"

#include <algorithm>
#include <utility>

namespace lumtex::headless {

namespace {

constexpr std::uint32_t guideColor = 0xFF000000U; // 0xAARRGGBB

} // namespace

HeadlessWindow::HeadlessWindow(Desktop& desktop, worlds::Pane* parent, UserControl& client)
    : worlds::Pane(desktop.tree(), parent), desktop_(desktop), client_(client),
      surface_(0, 0, desktop.fonts()) {}

HeadlessWindow::~HeadlessWindow() {
    for (HeadlessGuideLine* guide : guides_)
        guide->loseParent();
}

void HeadlessWindow::place(Single left, Single top, Single width, Single height) {
    const Point corner{roundToLong(left), roundToLong(top)};
    const Long newWidth = std::max<Long>(roundToLong(width), 0);
    const Long newHeight = std::max<Long>(roundToLong(height), 0);
    const bool resized = newWidth != surface_.scaleWidth() || newHeight != surface_.scaleHeight();
    if (resized) {
        Desktop::refuseHugeSize(newWidth, newHeight);
        surface_.resize(newWidth, newHeight);
    }
    letArea(corner, newWidth, newHeight);
    if (resized)
        client_.UserControl_Resize();
}

void HeadlessWindow::letVisible(bool visible) {
    const bool wasVisible = std::exchange(visible_, visible);
    if (!visible)
        desktop_.inputLost(*this);
    else if (!wasVisible)
        client_.UserControl_Show();
}

void HeadlessWindow::letEnabled(bool enabled) {
    enabled_ = enabled;
    if (!enabled)
        desktop_.inputLost(*this);
}

void HeadlessWindow::setFocus() {
    desktop_.keyFocus().moveTo(*this);
}
void HeadlessWindow::setCapture() {
    desktop_.mouse().capture(*this);
}
void HeadlessWindow::releaseCapture() {
    desktop_.mouse().releaseCapture(*this);
}

bool HeadlessWindow::underPointer() const {
    return desktop_.tree().at(desktop_.pointer()) == this;
}

bool HeadlessWindow::pointerStrictlyInside() const {
    // Right and lower bounds lie outside, so that only the first row and column count as outside too.
    const Point at = pointer();
    return underPointer() && at.x > 0 && at.y > 0;
}

Point HeadlessWindow::pointer() const {
    return fromDesktop(desktop_.pointer());
}

bool HeadlessWindow::adopt(WindowHandle child) {
    worlds::Pane* pane = desktop_.tree().find(child);
    if (pane == nullptr || !desktop_.tree().adopt(*this, *pane))
        return false;
    if (!pane->takesInput())
        desktop_.inputLost(*pane);
    return true;
}

void HeadlessWindow::present() {
    ++presented_;
    if (paintWaits_)
        return;
    desktop_.postPaint(*this);
    paintWaits_ = true;
}

void HeadlessWindow::paint() {
    paintWaits_ = false;
    ++painted_;
}

Bitmap HeadlessWindow::picture() const {
    Bitmap picture = surface_.image();
    const raster::Canvas canvas{picture.pixels.data(), picture.width, picture.height};
    for (const HeadlessGuideLine* guide : guides_) {
        if (guide->Visible())
            raster::drawLine(canvas, guide->from(), guide->to(), guideColor);
    }
    return picture;
}

void HeadlessWindow::mouseDown(Integer button, Integer shift, Point at) {
    client_.UserControl_MouseDown(button, shift, static_cast<Single>(at.x), static_cast<Single>(at.y));
}
void HeadlessWindow::doubleClick(Point /*at*/) {
    client_.UserControl_DblClick();
}
void HeadlessWindow::mouseMove(Integer buttons, Integer shift, Point at) {
    client_.UserControl_MouseMove(buttons, shift, static_cast<Single>(at.x), static_cast<Single>(at.y));
}
void HeadlessWindow::mouseUp(Integer button, Integer shift, Point at) {
    client_.UserControl_MouseUp(button, shift, static_cast<Single>(at.x), static_cast<Single>(at.y));
}

bool HeadlessWindow::wheel(Long rotation, Integer shift, Point at) {
    return client_.UserControl_Wheel(rotation, shift, static_cast<Single>(at.x), static_cast<Single>(at.y));
}

} // namespace lumtex::headless
