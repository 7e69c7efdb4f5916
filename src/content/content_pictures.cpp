#include "content/content_pictures.h"

#include "guards/procedure.h"

namespace lumtex::content {

std::vector<Byte> GetPictureString(Runtime& runtime, const Picture& picture, Long& length) {
    Procedure p{runtime, u"GetPictureString", ModuleKind::control, u"lmListView"};
    std::vector<Byte> bytes =
        p.value<std::vector<Byte>>([&] { return runtime.pictures().imageOfPicture(picture); });
    length = static_cast<Long>(bytes.size());
    return bytes;
}

PictureRef GetStringPicture(Runtime& runtime, std::span<const Byte> bytes) {
    Procedure p{runtime, u"GetStringPicture", ModuleKind::control, u"lmListView"};
    return p.value<PictureRef>([&] { return runtime.pictures().pictureOfImage(bytes); });
}

} // namespace lumtex::content
