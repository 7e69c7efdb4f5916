/// Measures of the header band.
#include "drawing/font_attributes.h"
#include "render/painting.h"
#include "values/rounding.h"

namespace lumtex {

namespace {

constexpr Single bandMargin = 6; // pixels above and below a header's text, foot lines included

} // namespace

/// The band's height in pixels, 0 while headers are hidden. Measures on a surface of its own, so that it may
/// be called in the middle of a pass.
Long Painting::ColumnHeight() {
    if (properties_.HideColumnHeaders)
        return 0;
    Procedure p = procedure(u"ColumnHeight");
    drawing::readFontAttributes(
        properties_.DefaultColumnFont,
        [&](auto attribute) { return p.step(attribute); },
        [&](const FontSpec& font) { Picture1_->setFont(font); });
    return p.value<Long>([&] {
        return roundToLong(Picture1_->textHeight(u"A") + static_cast<Double>(properties_.ColumnTextY) +
                           bandMargin);
    });
}

Single Painting::columnWidthInPixels(Long index) {
    return scaleX(window_.surface(), records_.columnAt(index).Width, Unit::twips, Unit::pixels);
}

} // namespace lumtex
