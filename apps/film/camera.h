/// \file
/// What a window looks like from moment to moment, with the pointer over it.
#pragma once

#include "worlds/headless/desktop.h"

#include <vector>

namespace lumtex::film {

/// A picture, and how long it stays.
struct Frame {
    Bitmap picture;
    std::chrono::milliseconds shown{0};
};

/// Films one window of a desktop, with a caption below. Time passes on the desktop while it films, and in no
/// other way: a timer of the list ticks in the film when it would tick for a user. Desktop and window must
/// outlive the camera.
class Camera {
  public:
    /// The shortest time that a picture stays.
    static constexpr std::chrono::milliseconds tick{40};
    /// Pixels of the strip below the window.
    static constexpr Long captionHeight = 26;

    Camera(headless::Desktop& desktop, const Window& window) : desktop_(desktop), window_(window) {}

    /// What the strip says from now on.
    void say(StringView caption) { caption_ = caption; }
    /// Lets time pass, in whole ticks. Pictures that are alike become one frame.
    void film(std::chrono::milliseconds span);

    const std::vector<Frame>& frames() const { return frames_; }

  private:
    Bitmap picture() const;

    headless::Desktop& desktop_;
    const Window& window_;
    String caption_;
    std::vector<Frame> frames_;
};

} // namespace lumtex::film
