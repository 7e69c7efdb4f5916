/// Pictures as file images.
#include "values/image_check.h"
#include "values/picture_image.h"
#include "values/runtime_error.h"
#include "worlds/win32/ole_picture.h"
#include "worlds/win32/ole_picture_image.h"
#include "worlds/win32/win32_runtime.h"

namespace lumtex::win32 {

std::vector<Byte> Win32Runtime::imageOfPicture(const Picture& picture) const {
    std::vector<Byte> image = imageOfHostsPicture(picture);
    return image.empty() ? lumtex::imageOfPicture(picture) : image;
}

PictureRef Win32Runtime::pictureOfImage(std::span<const Byte> image) const {
    const ImageFormat format = checkImage(image);
    if (format != ImageFormat::bitmap && format != ImageFormat::icon && format != ImageFormat::cursor)
        throw RuntimeError(ErrorNumber::invalidPicture);
    return loadOlePicture(image);
}

} // namespace lumtex::win32
