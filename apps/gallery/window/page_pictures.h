/// \file
/// The pages of the gallery as pictures, for where there is no display.
#pragma once

#include "gallery_window.h"

namespace lumtex::gallery {

/// Turns to each page, waits until it has nothing more to do, and saves what the window shows as PNG files
/// in a folder, which is made. False, with a line to stderr: one of them cannot be written.
bool savePictures(GalleryWindow& window, const QString& folder);

} // namespace lumtex::gallery
