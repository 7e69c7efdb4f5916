#include "real_hands.h"

#include <QTest>
#include <stdexcept>

// Behind Qt's headers, whose names X takes for macros.
#include <X11/Xlib.h>
#include <X11/extensions/XTest.h>

namespace lumtex::testing {

namespace {

constexpr int quickHand = 60; // milliseconds between two acts
constexpr unsigned leftButton = 1;
constexpr unsigned wheelUp = 4;
constexpr unsigned wheelDown = 5;

} // namespace

RealHands::RealHands(const std::string& display) : display_(XOpenDisplay(display.c_str())) {
    if (display_ == nullptr)
        throw std::runtime_error("no display " + display);
}

RealHands::~RealHands() {
    XCloseDisplay(display_);
}

void RealHands::letRun(int milliseconds) {
    XSync(display_, False);
    QTest::qWait(milliseconds);
}

/// On the way, as a hand moves.
void RealHands::move(QPoint to) {
    constexpr int steps = 4;
    const QPoint from = at_;
    for (int step = 1; step <= steps; ++step) {
        at_ = from + (to - from) * step / steps;
        XTestFakeMotionEvent(display_, -1, at_.x(), at_.y(), CurrentTime);
        letRun(quickHand / 2);
    }
    letRun(quickHand);
}

void RealHands::button(unsigned number, bool down) {
    XTestFakeButtonEvent(display_, number, down ? True : False, CurrentTime);
    letRun(quickHand);
}

void RealHands::press() {
    button(leftButton, true);
}

void RealHands::release() {
    button(leftButton, false);
}

void RealHands::click(QPoint at) {
    move(at);
    press();
    release();
    letRun(700); // so that the next press is no second one
}

void RealHands::doubleClick(QPoint at) {
    move(at);
    press();
    release();
    press();
    release();
}

void RealHands::drag(QPoint from, QPoint to) {
    move(from);
    press();
    move(to);
    release();
}

void RealHands::wheel(int notches) {
    for (int i = 0; i < std::abs(notches); ++i) {
        button(notches > 0 ? wheelDown : wheelUp, true);
        button(notches > 0 ? wheelDown : wheelUp, false);
    }
}

void RealHands::key(const char* name) {
    const KeyCode code = XKeysymToKeycode(display_, XStringToKeysym(name));
    XTestFakeKeyEvent(display_, code, True, CurrentTime);
    letRun(quickHand);
    XTestFakeKeyEvent(display_, code, False, CurrentTime);
    letRun(quickHand);
}

void RealHands::type(const std::string& text) {
    for (const char letter : text)
        key(std::string(1, letter).c_str());
}

} // namespace lumtex::testing
