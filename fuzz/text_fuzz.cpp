/// Drawn text: no text, font, place or format may crash or hang a surface, and measuring draws nothing.
#include "fuzz_input.h"
#include "raster/font_library.h"
#include "raster/raster_surface.h"

#include <vector>

using namespace lumtex;

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    static const std::shared_ptr<raster::FontLibrary> fonts = raster::FontLibrary::ofSystem();
    fuzz::Input input(data, size);
    raster::RasterSurface surface(
        static_cast<Long>(input.below(64)), static_cast<Long>(input.below(64)), fonts);
    while (!input.atEnd()) {
        if (input.flag())
            surface.setFont(input.font());
        surface.letForeColor(input.raw<OLE_COLOR>());
        const String text = input.text();
        Rect place{input.number(), input.number(), input.number(), input.number()};
        const auto format =
            static_cast<TextFormat>(input.flag() ? input.raw<Long>() : static_cast<Long>(input.byte()));
        const auto before = surface.image();
        surface.textWidth(text);
        surface.textHeight(text);
        fuzz::require(surface.image() == before);
        surface.drawText(text, place, format);
        const bool anywhere = input.flag();
        const Single x = anywhere ? input.single() : 0;
        const Single y = anywhere ? input.single() : 0;
        try {
            surface.print(x, y, text);
        } catch (const RuntimeError& error) { // a place that no pixel has
            fuzz::require(error.number() == ErrorNumber::overflow);
        }
        fuzz::require(surface.textWidth({}) == 0);
    }
    return 0;
}
