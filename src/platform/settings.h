/// \file
/// The settings that a user has for all programs.
#pragma once

#include "values/types.h"

#include <optional>

namespace lumtex {

/// Values by key and name, read anew each time. A key separates its parts with "\".
class Settings {
  public:
    Settings() = default;
    Settings(const Settings&) = delete;
    Settings& operator=(const Settings&) = delete;
    virtual ~Settings() = default;

    /// The text of a value, or the digits of a number; empty text for a value of another kind. Nothing if
    /// there is no such value, if the user may not write under `key`, or if it is longer than the store hands
    /// out.
    virtual std::optional<String> text(StringView key, StringView name) const = 0;
    /// The same for a value of any length, under a key that the user may read and perhaps not write.
    virtual std::optional<String> readOnlyText(StringView key, StringView name) const {
        return text(key, name);
    }
};

} // namespace lumtex
