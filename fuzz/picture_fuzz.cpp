/// Picture files: no bytes may crash a reader or take memory out of proportion, and what was read comes back.
#include "adapters/pictures/picture_image.h"
#include "fuzz_input.h"
#include "values/image_check.h"
#include "values/picture_image.h"

using namespace lumtex;

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    const std::span<const Byte> image(data, size);
    const bool sound = isSoundImage(image);
    // What needs no free pixels needs none of them.
    fuzz::require(!sound || isSoundImage(image, freeSettingsPixels));
    try {
        const PictureRef picture = pictures::pictureOfImage(image);
        fuzz::require(sound);
        const Bitmap& bitmap = picture->bitmap();
        fuzz::require(bitmap.pixels.size() <= size * mostPixelsToAByte);
        const std::vector<Byte> stored = imageOfPicture(*picture);
        fuzz::require(isSoundImage(stored));
        fuzz::require(pictures::pictureOfImage(stored)->bitmap() == bitmap);
    } catch (const RuntimeError& error) {
        fuzz::require(error.number() == ErrorNumber::invalidPicture);
    }
    return 0;
}
