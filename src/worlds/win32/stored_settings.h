/// \file
/// The registry as the settings store.
#pragma once

#include "platform/settings.h"

namespace lumtex::win32 {

/// The part of the registry that belongs to the current user.
class StoredSettings final : public Settings {
  public:
    /// Asks for the right to write as well. None for a value of more than `longestText` bytes of UTF-8, the
    /// closing zero among them.
    std::optional<String> text(StringView key, StringView name) const override;
    std::optional<String> readOnlyText(StringView key, StringView name) const override;

    static constexpr std::size_t longestText = 1024;
};

} // namespace lumtex::win32
