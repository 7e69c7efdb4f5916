#include "user_hands.h"

#include "worlds/headless/keyboard.h"

#include <QApplication>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>
#include <array>
#include <utility>

namespace lumtex::testing {

namespace {

constexpr int farApart = 10000; // no two presses are a double click

struct KeyName {
    Integer code;
    Qt::Key key;
};
constexpr std::array<KeyName, 15> keyNames{{
    {keys::backspace, Qt::Key_Backspace},
    {keys::tab, Qt::Key_Tab},
    {keys::enter, Qt::Key_Return},
    {keys::shift, Qt::Key_Shift},
    {keys::control, Qt::Key_Control},
    {keys::alt, Qt::Key_Alt},
    {keys::escape, Qt::Key_Escape},
    {keys::end, Qt::Key_End},
    {keys::home, Qt::Key_Home},
    {keys::left, Qt::Key_Left},
    {keys::up, Qt::Key_Up},
    {keys::right, Qt::Key_Right},
    {keys::down, Qt::Key_Down},
    {keys::del, Qt::Key_Delete},
    {keys::packet, Qt::Key_unknown},
}};

constexpr std::array<std::pair<Integer, int>, 2> pageKeys{{{33, Qt::Key_PageUp}, {34, Qt::Key_PageDown}}};

int qtKeyOf(Integer code) {
    for (const KeyName& name : keyNames)
        if (name.code == code)
            return name.key;
    for (const auto& [page, key] : pageKeys)
        if (page == code)
            return key;
    return code;
}

Integer maskOf(Integer keyCode) {
    switch (keyCode) {
    case keys::shift:
        return keys::shiftMask;
    case keys::control:
        return keys::controlMask;
    case keys::alt:
        return keys::altMask;
    default:
        return 0;
    }
}

Qt::MouseButton qtButtonOf(MouseButton button) {
    switch (button) {
    case rightButton:
        return Qt::RightButton;
    case middleButton:
        return Qt::MiddleButton;
    default:
        return Qt::LeftButton;
    }
}

} // namespace

UserHands::UserHands(QWidget& program, std::function<void()> deliver)
    : program_(&program), deliver_(std::move(deliver)) {}

UserHands::~UserHands() {
    if (program_ == nullptr)
        return;
    for (const MouseButton button : {leftButton, rightButton, middleButton})
        if (buttons_.testFlag(qtButtonOf(button)))
            release(button, 0);
    move({-1, -1}, 0);
}

Qt::KeyboardModifiers UserHands::modifiers(Integer shift) const {
    const int all = shift | held_;
    Qt::KeyboardModifiers modifiers;
    modifiers.setFlag(Qt::ShiftModifier, (all & keys::shiftMask) != 0);
    modifiers.setFlag(Qt::ControlModifier, (all & keys::controlMask) != 0);
    modifiers.setFlag(Qt::AltModifier, (all & keys::altMask) != 0);
    return modifiers;
}

void UserHands::mouse(QEvent::Type type, Qt::MouseButton button, Integer shift) {
    qt_handleMouseEvent(program_->windowHandle(),
                        at_,
                        program_->mapToGlobal(at_),
                        buttons_,
                        button,
                        type,
                        modifiers(shift),
                        time_);
    deliver_();
}

void UserHands::move(QPoint to, Integer shift) {
    // Qt keeps a move that leads nowhere to itself.
    if (at_ == to)
        moveNowhere(shift);
    at_ = to;
    mouse(QEvent::MouseMove, Qt::NoButton, shift);
}

void UserHands::press(MouseButton button, Integer shift) {
    time_ += farApart;
    buttons_.setFlag(qtButtonOf(button), true);
    mouse(QEvent::MouseButtonPress, qtButtonOf(button), shift);
}

void UserHands::doublePress(MouseButton button, Integer shift) {
    ++time_;
    buttons_.setFlag(qtButtonOf(button), true);
    mouse(QEvent::MouseButtonPress, qtButtonOf(button), shift);
}

void UserHands::release(MouseButton button, Integer shift) {
    buttons_.setFlag(qtButtonOf(button), false);
    mouse(QEvent::MouseButtonRelease, qtButtonOf(button), shift);
}

QWidget& UserHands::target() const {
    QWidget* under = program_->childAt(at_);
    return under != nullptr ? *under : *program_;
}

void UserHands::moveNowhere(Integer shift) {
    const QPoint global = program_->mapToGlobal(at_);
    QMouseEvent event(
        QEvent::MouseMove, target().mapFromGlobal(global), global, Qt::NoButton, buttons_, modifiers(shift));
    QCoreApplication::sendEvent(&target(), &event);
    deliver_();
}

void UserHands::wheel(Long rotation, Integer shift) {
    QWidget* target = &this->target();
    const QPoint global = program_->mapToGlobal(at_);
    QWheelEvent event(target->mapFromGlobal(global),
                      global,
                      QPoint(),
                      QPoint(0, rotation),
                      buttons_,
                      modifiers(shift),
                      Qt::NoScrollPhase,
                      false);
    QCoreApplication::sendEvent(target, &event);
    deliver_();
}

void UserHands::key(QEvent::Type type, Integer keyCode, Integer shift, char16_t character) {
    const QString text = character != 0 ? QString(QChar(character)) : QString();
    qt_handleKeyEvent(program_->windowHandle(), type, qtKeyOf(keyCode), modifiers(shift), text);
    deliver_();
}

void UserHands::keyDown(Integer keyCode) {
    held_ = static_cast<Integer>(held_ | maskOf(keyCode));
    key(QEvent::KeyPress, keyCode, 0, static_cast<char16_t>(headless::characterOf(keyCode, held_)));
}

void UserHands::keyUp(Integer keyCode) {
    held_ = static_cast<Integer>(held_ & ~maskOf(keyCode));
    key(QEvent::KeyRelease, keyCode, 0, 0);
}

void UserHands::type(StringView text) {
    for (const char16_t unit : text) {
        const headless::KeyStroke stroke = headless::keyStrokeOf(unit);
        key(QEvent::KeyPress, stroke.keyCode, stroke.shift, unit);
        key(QEvent::KeyRelease, stroke.keyCode, stroke.shift, unit);
    }
}

} // namespace lumtex::testing
