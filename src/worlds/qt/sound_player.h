/// \file
/// Sound files for the user to hear.
#pragma once

#include <QString>
#include <memory>

struct ca_context;

namespace lumtex::qt {

/// By the sound devices or the sound server of the user.
class SoundPlayer {
  public:
    /// Begins to play, in place of what is still heard, and does not wait. False where nothing is heard:
    /// there is no such file, or nobody to play it.
    bool play(const QString& file);

  private:
    struct Close {
        void operator()(ca_context* context) const;
    };

    std::unique_ptr<ca_context, Close> context_; ///< made for the first sound
};

} // namespace lumtex::qt
