/// Pictures as file images.
#include "platform/image_check.h"
#include "platform/picture_image.h"
#include "platform/runtime_error.h"
#include "platform/win32/ole_picture.h"
#include "platform/win32/ole_picture_image.h"
#include "platform/win32/win32_runtime.h"

namespace lumtex {

std::vector<Byte> Win32Runtime::imageOfPicture(const Picture& picture) const {
    std::vector<Byte> image = imageOfHostsPicture(picture);
    return image.empty() ? lumtex::imageOfPicture(picture) : image;
}

PictureRef Win32Runtime::pictureOfImage(std::span<const Byte> image) const {
    const ImageFormat format = checkImage(image);
    if (format != ImageFormat::bitmap && format != ImageFormat::icon && format != ImageFormat::cursor)
        throw RuntimeError(invalidPicture);
    return loadOlePicture(image);
}

} // namespace lumtex
