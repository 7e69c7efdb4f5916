/// \file
/// Keys of Qt by the numbers that hosts know.
#pragma once

#include "platform/keys.h"

#include <QKeyEvent>

namespace lumtex::qt {

/// `keys::packet` for a key that has no number but enters a character; 0 for one that hosts know nothing of.
Integer keyCodeOf(const QKeyEvent& event);

/// The characters that a press enters, as UTF-16 units. None for keys that only make one up, such as Delete,
/// and none with Alt, which is for menus.
String charactersOf(const QKeyEvent& event);

Integer shiftOf(Qt::KeyboardModifiers modifiers);
/// The shift keys once this key went down or up; a press of Shift counts for itself already.
Integer shiftOf(const QKeyEvent& event);

} // namespace lumtex::qt
