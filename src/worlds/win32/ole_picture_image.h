/// \file
/// Pictures of hosts as the system stores them.
#pragma once

#include "values/references/picture.h"
#include "worlds/win32/com_ref.h"

#include <vector>

namespace lumtex::win32 {

/// All bytes of the file that the system itself writes for a host's picture: a bitmap in its own depth and
/// with its own palette, an icon with all images that it was loaded with. Where the system writes another
/// format, or none, a bitmap is written here in the same way. No bytes for a picture of ours, and for one
/// that no bitmap or icon file holds as its kind is.
std::vector<Byte> imageOfHostsPicture(const Picture& picture);

/// Whatever the system writes for a picture, in any format; no bytes if it writes none.
std::vector<Byte> fileOfPicture(IPicture& picture);

} // namespace lumtex::win32
