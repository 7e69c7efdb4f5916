/// \file
/// What the user hears, sees and presses outside the control.
#pragma once

#include "platform/user_control.h"
#include "values/types.h"

#include <optional>

namespace lumtex {

/// The system under the program. One of another family says 2, 5, 1 and maps its look onto the scheme names.
struct SystemVersion {
    Long platformId = 0; ///< 2 for the family that has themes
    Long major = 0;
    Long minor = 0;
};

/// Something to be opened by whatever the user's desktop opens it with.
struct OpenRequest {
    Long window = 0; ///< the window on whose behalf
    String file;     ///< a program, a document or a web address
    String parameters;
    String folder; ///< the working directory
    bool maximised = false;
};

/// No member throws. What the desktop cannot do is left undone.
class UserDesktop {
  public:
    UserDesktop() = default;
    UserDesktop(const UserDesktop&) = delete;
    UserDesktop& operator=(const UserDesktop&) = delete;
    virtual ~UserDesktop() = default;

    /// Starts a sound file and returns at once; silent if it cannot be played.
    virtual void playSound(StringView file) = 0;
    virtual SystemVersion systemVersion() const = 0;
    /// The name of the colour scheme of the active theme; empty while no theme is active.
    virtual std::optional<String> colorScheme() const = 0;
    /// Whether a mouse button is down now, or was pressed since the last call.
    virtual bool wasPressed(MouseButton button) = 0;
    virtual void open(const OpenRequest& request) = 0;
};

} // namespace lumtex
