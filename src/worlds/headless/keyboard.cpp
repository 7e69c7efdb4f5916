#include "worlds/headless/keyboard.h"

namespace lumtex::headless {

namespace {

/// From a capital letter to its small one, and from it to the character that Control makes of it.
constexpr Integer toSmallLetter = u'a' - u'A';
constexpr Integer toControlCharacter = u'A' - 1;

constexpr bool isLetterKey(Integer keyCode) {
    return keyCode >= u'A' && keyCode <= u'Z';
}
constexpr bool isDigitKey(Integer keyCode) {
    return keyCode >= u'0' && keyCode <= u'9';
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

} // namespace

void Keyboard::hold(Integer keyCode) {
    shift_ = static_cast<Integer>(shift_ | maskOf(keyCode));
}

void Keyboard::letGo(Integer keyCode) {
    shift_ = static_cast<Integer>(shift_ & ~maskOf(keyCode));
}

worlds::Pane* Keyboard::target() const {
    worlds::Pane* pane = focus_.holder();
    return pane != nullptr && pane->takesInput() ? pane : nullptr;
}

void Keyboard::deliverKeyDown(Integer keyCode, Integer shift) {
    if (worlds::Pane* pane = target())
        pane->keyDown(keyCode, shift);
}

void Keyboard::deliverCharacter(Integer unit) {
    if (worlds::Pane* pane = target())
        pane->character(unit);
}

void Keyboard::deliverKeyUp(Integer keyCode, Integer shift) {
    if (worlds::Pane* pane = target())
        pane->keyUp(keyCode, shift);
}

Integer characterOf(Integer keyCode, Integer shift) {
    if ((shift & keys::altMask) != 0)
        return 0;
    const bool control = (shift & keys::controlMask) != 0;
    if (isLetterKey(keyCode)) {
        if (control)
            return static_cast<Integer>(keyCode - toControlCharacter);
        return static_cast<Integer>((shift & keys::shiftMask) != 0 ? keyCode : keyCode + toSmallLetter);
    }
    switch (keyCode) {
    case keys::backspace:
    case keys::tab:
    case keys::enter:
    case keys::escape:
    case keys::space:
        return keyCode;
    default:
        // What Shift makes of a digit depends on the layout of a keyboard, so that no character comes of it.
        return isDigitKey(keyCode) && !control && (shift & keys::shiftMask) == 0 ? keyCode : Integer{0};
    }
}

KeyStroke keyStrokeOf(char16_t unit) {
    const auto code = static_cast<Integer>(unit);
    if (isLetterKey(code))
        return {code, keys::shiftMask};
    if (unit >= u'a' && unit <= u'z')
        return {static_cast<Integer>(code - toSmallLetter), 0};
    return {characterOf(code, 0) == code ? code : static_cast<Integer>(keys::packet), 0};
}

} // namespace lumtex::headless
