/// What the simulated desktop asks of the picture library, answered by the system.
#include "adapters/pictures/picture_image.h"
#include "picture_check.h"
#include "worlds/win32/ole_picture.h"

namespace lumtex::pictures {

PictureRef pictureOfImage(std::span<const Byte> image) {
    return win32::loadOlePicture(image);
}

} // namespace lumtex::pictures

namespace lumtex::testing {

/// The references show the letters of fonts that Windows need not have. What Windows paints besides letters
/// is held against the software surface at each paint, so here a picture need only be there.
::testing::AssertionResult showsPicture(const std::string& name,
                                        const Bitmap& actual,
                                        const PictureFolders& /*folders*/,
                                        SourcePlace /*where*/) {
    return actual.pixels.empty() ? ::testing::AssertionFailure() << name << " has no pixels"
                                 : ::testing::AssertionSuccess();
}

PictureFolders usualPictureFolders() {
    return {};
}

} // namespace lumtex::testing
