/// Pictures as file images.
#include "platform/runtime_error.h"
#include "platform/win32/win32_runtime.h"

namespace lumtex {

std::vector<Byte> Win32Runtime::imageOfPicture(const Picture& /*picture*/) const {
    throw RuntimeError(invalidPicture);
}

PictureRef Win32Runtime::pictureOfImage(std::span<const Byte> /*image*/) const {
    throw RuntimeError(invalidPicture);
}

} // namespace lumtex
