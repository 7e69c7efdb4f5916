#include "worlds/win32/screen_density.h"

#include "worlds/win32/windows_api.h"

namespace lumtex {

PixelDensity screenDensity() {
    const HDC screen = GetDC(nullptr);
    const PixelDensity density{GetDeviceCaps(screen, LOGPIXELSX), GetDeviceCaps(screen, LOGPIXELSY)};
    ReleaseDC(nullptr, screen);
    // There is no context where there is no screen.
    constexpr PixelDensity usual{96, 96};
    return density.x > 0 && density.y > 0 ? density : usual;
}

} // namespace lumtex
