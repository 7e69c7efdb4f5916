/// \file
/// Sound files for the user to hear.
#pragma once

#include <QString>
#include <cstdint>

namespace lumtex::qt {

/// By the sound devices or the sound server of the user. Each player plays one sound at a time, which ends
/// with it.
class SoundPlayer {
  public:
    SoundPlayer();
    SoundPlayer(const SoundPlayer&) = delete;
    SoundPlayer& operator=(const SoundPlayer&) = delete;
    ~SoundPlayer();

    /// Begins to play, in place of what is still heard, and does not wait. False where nothing is heard:
    /// there is no such file, or nobody to play it.
    bool play(const QString& file);

  private:
    std::uint32_t sound_; ///< its number among those of all players
    bool played_ = false;
};

} // namespace lumtex::qt
