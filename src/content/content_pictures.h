/// \file
/// Pictures of cells as the content file has them.
#pragma once

#include "platform/runtime.h"

#include <vector>

namespace lumtex::content {

/// The picture's file image, and its length in bytes. A picture that cannot be turned into one is reported
/// and gives no bytes.
std::vector<Byte> GetPictureString(Runtime& runtime, const Picture& picture, Long& length);

/// The picture of a file image; null, and a report, if the bytes are not a picture.
PictureRef GetStringPicture(Runtime& runtime, std::span<const Byte> bytes);

} // namespace lumtex::content
