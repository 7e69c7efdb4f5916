#include "worlds/win32/screen_density.h"

#include "worlds/win32/owned.h"

namespace lumtex::win32 {

PixelDensity screenDensity() {
    const ScreenContext screen;
    const PixelDensity density{GetDeviceCaps(screen.get(), LOGPIXELSX),
                               GetDeviceCaps(screen.get(), LOGPIXELSY)};
    // There is no context where there is no screen.
    constexpr PixelDensity usual{96, 96};
    return density.x > 0 && density.y > 0 ? density : usual;
}

} // namespace lumtex::win32
