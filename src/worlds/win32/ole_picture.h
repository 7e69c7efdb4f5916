/// \file
/// Pictures of hosts, and ours as hosts see them.
#pragma once

#include "values/references/picture.h"
#include "worlds/win32/com_ref.h"

#include <span>
#include <vector>

namespace lumtex::win32 {

/// The picture object of a host as one of ours, which keeps it alive. The same object gives the same picture
/// each time, and one that `toIPicture` made gives the picture that it was made for. Null for null and for an
/// object that is no picture.
PictureRef pictureFrom(IPictureDisp* picture);

/// What a host gets to see of a picture: the object that it came from, or one made for it. As long as
/// somebody holds that, the same picture gives it each time. Null for null and for a picture without pixels.
/// Throws RuntimeError 7 if it cannot be made.
ComRef<IPictureDisp> toIPicture(const PictureRef& picture);

/// The object of a host that `picture` came from, alive as long as that is; null for a picture of ours.
IPicture* hostsPicture(const Picture& picture);

/// Reads the bytes of a picture file of any kind that `checkImage` admits with this many free pixels. Throws
/// RuntimeError 481 for anything else.
PictureRef loadOlePicture(std::span<const Byte> image, std::uint64_t freePixels = 0);

} // namespace lumtex::win32
