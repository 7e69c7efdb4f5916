#include "worlds/qt/key_codes.h"

#include "worlds/qt/qt_text.h"

#include <array>

namespace lumtex::qt {

namespace {

struct KeyCode {
    int key;
    Integer code;
};

// clang-format off
constexpr std::array<KeyCode, 66> keyCodeTable{{
    {Qt::Key_Backspace, keys::backspace}, {Qt::Key_Tab, keys::tab},         {Qt::Key_Backtab, keys::tab},
    {Qt::Key_Clear, 12},                  {Qt::Key_Return, keys::enter},    {Qt::Key_Enter, keys::enter},
    {Qt::Key_Shift, keys::shift},         {Qt::Key_Control, keys::control}, {Qt::Key_Alt, keys::alt},
    {Qt::Key_Pause, 19},                  {Qt::Key_CapsLock, 20},           {Qt::Key_Escape, keys::escape},
    {Qt::Key_Space, keys::space},         {Qt::Key_PageUp, 33},             {Qt::Key_PageDown, 34},
    {Qt::Key_End, keys::end},             {Qt::Key_Home, keys::home},       {Qt::Key_Left, keys::left},
    {Qt::Key_Up, keys::up},               {Qt::Key_Right, keys::right},     {Qt::Key_Down, keys::down},
    {Qt::Key_Print, 44},                  {Qt::Key_Insert, 45},             {Qt::Key_Delete, keys::del},
    {Qt::Key_Meta, 91},                   {Qt::Key_Menu, 93},               {Qt::Key_NumLock, 144},
    {Qt::Key_ScrollLock, 145},
    // What Shift makes of the digits, and the other keys, where they lie on an American keyboard.
    {Qt::Key_ParenRight, '0'},            {Qt::Key_Exclam, '1'},            {Qt::Key_At, '2'},
    {Qt::Key_NumberSign, '3'},            {Qt::Key_Dollar, '4'},            {Qt::Key_Percent, '5'},
    {Qt::Key_AsciiCircum, '6'},           {Qt::Key_Ampersand, '7'},         {Qt::Key_Asterisk, '8'},
    {Qt::Key_ParenLeft, '9'},
    {Qt::Key_Semicolon, 186},             {Qt::Key_Colon, 186},             {Qt::Key_Plus, 187},
    {Qt::Key_Equal, 187},                 {Qt::Key_Comma, 188},             {Qt::Key_Less, 188},
    {Qt::Key_Minus, 189},                 {Qt::Key_Underscore, 189},        {Qt::Key_Period, 190},
    {Qt::Key_Greater, 190},               {Qt::Key_Slash, 191},             {Qt::Key_Question, 191},
    {Qt::Key_QuoteLeft, 192},             {Qt::Key_AsciiTilde, 192},        {Qt::Key_BracketLeft, 219},
    {Qt::Key_BraceLeft, 219},             {Qt::Key_Backslash, 220},         {Qt::Key_Bar, 220},
    {Qt::Key_BracketRight, 221},          {Qt::Key_BraceRight, 221},        {Qt::Key_Apostrophe, 222},
    {Qt::Key_QuoteDbl, 222},              {Qt::Key_AltGr, 165},             {Qt::Key_VolumeMute, 173},
    {Qt::Key_VolumeDown, 174},            {Qt::Key_VolumeUp, 175},          {Qt::Key_Help, 47},
    {Qt::Key_Select, 41},
}};

/// The same keys on the block of numbers, which is a block of its own.
constexpr std::array<KeyCode, 5> keypadTable{{
    {Qt::Key_Asterisk, 106}, {Qt::Key_Plus, 107}, {Qt::Key_Minus, 109}, {Qt::Key_Period, 110}, {Qt::Key_Slash, 111},
}};
// clang-format on

constexpr Integer firstKeypadDigit = 96;
constexpr Integer firstFunctionKey = 112;

template <std::size_t count>
Integer codeIn(const std::array<KeyCode, count>& table, int key) {
    for (const KeyCode& entry : table)
        if (entry.key == key)
            return entry.code;
    return 0;
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

bool isDigit(int key) {
    return key >= Qt::Key_0 && key <= Qt::Key_9;
}

} // namespace

Integer keyCodeOf(const QKeyEvent& event) {
    const int key = event.key();
    const bool onKeypad = event.modifiers().testFlag(Qt::KeypadModifier);
    if (onKeypad && isDigit(key))
        return static_cast<Integer>(firstKeypadDigit + key - Qt::Key_0);
    if (const Integer code = onKeypad ? codeIn(keypadTable, key) : Integer{0})
        return code;
    if ((key >= Qt::Key_A && key <= Qt::Key_Z) || isDigit(key))
        return static_cast<Integer>(key);
    if (key >= Qt::Key_F1 && key <= Qt::Key_F24)
        return static_cast<Integer>(firstFunctionKey + key - Qt::Key_F1);
    if (const Integer code = codeIn(keyCodeTable, key))
        return code;
    return event.text().isEmpty() ? Integer{0} : keys::packet;
}

String charactersOf(const QKeyEvent& event) {
    if (event.key() == Qt::Key_Delete || event.modifiers().testFlag(Qt::AltModifier))
        return {};
    return fromQString(event.text());
}

Integer shiftOf(Qt::KeyboardModifiers modifiers) {
    int shift = 0;
    if (modifiers.testFlag(Qt::ShiftModifier))
        shift |= keys::shiftMask;
    if (modifiers.testFlag(Qt::ControlModifier))
        shift |= keys::controlMask;
    if (modifiers.testFlag(Qt::AltModifier))
        shift |= keys::altMask;
    return static_cast<Integer>(shift);
}

Integer shiftOf(const QKeyEvent& event) {
    const int own = maskOf(keyCodeOf(event));
    const int held = shiftOf(event.modifiers());
    return static_cast<Integer>(event.type() == QEvent::KeyPress ? held | own : held & ~own);
}

} // namespace lumtex::qt
