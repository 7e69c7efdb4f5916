#include "stage_world.h"

#include "test_fonts.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QFont>
#include <utility>

namespace lumtex::testing {

void StageLoop::deliver() {
    QAbstractEventDispatcher* const dispatcher = QAbstractEventDispatcher::instance();
    do
        for (int pass = 0; pass < qt::QtRuntime::mostPasses; ++pass)
            if (!dispatcher->processEvents(QEventLoop::AllEvents))
                break;
    while (clock.deliverTick());
}

void StageLoop::advance(std::chrono::milliseconds span) {
    const auto end = clock.after(span);
    deliver();
    for (auto due = clock.nextDue(); due && *due <= end; due = clock.nextDue()) {
        clock.moveTo(*due);
        deliver();
    }
    clock.moveTo(end);
}

void StageLoop::runYieldBody() {
    if (yields.empty())
        return;
    const std::function<void()> body = std::move(yields.front());
    yields.pop_front();
    body();
}

void StageRuntime::DoEvents() {
    if (areYieldsHeld())
        return;
    const worlds::NestingLevel level(loop_.depth);
    loop_.runYieldBody();
    letThrough();
}

void StageRuntime::messageBox(StringView text, BoxStyle /*style*/, StringView /*title*/) {
    const worlds::NestingLevel level(loop_.depth);
    loop_.onBox(text);
    letThrough();
}

void StageRuntime::letThrough() {
    do
        qt::QtRuntime::DoEvents();
    while (loop_.clock.deliverTick());
}

StageWorld::StageWorld(QWidget& container, StageLoop& loop)
    : qt::QtWorld(&container, nullptr, testFonts()), loop_(loop), runtime_(mouse(), loop) {}

std::unique_ptr<Timer> StageWorld::createTimer(std::function<void()> onTimer) {
    return std::make_unique<headless::HeadlessTimer>(loop_.clock, [this, tick = std::move(onTimer)] {
        const Delivery delivery(*this);
        tick();
    });
}

ProgramWindow::ProgramWindow() : neighbour_(&window_) {
    window_.setGeometry(0, 0, 700, 400);
    // What a list has in a container without a font.
    QFont font(QStringLiteral("Verdana"));
    font.setPointSizeF(9.75);
    window_.setFont(font);
    window_.setFocusPolicy(Qt::StrongFocus);
    neighbour_.setFocusPolicy(Qt::StrongFocus);
    neighbour_.setGeometry(600, 100, 50, 50);
    window_.show();
    window_.activateWindow();
    QCoreApplication::processEvents();
    window_.setFocus();
}

} // namespace lumtex::testing
