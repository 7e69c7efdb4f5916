#include "raster/raster_surface.h"

#include "raster/system_colors.h"
#include "raster/text_painter.h"
#include "values/picture_scale.h"
#include "values/pixels.h"
#include "values/rounding.h"
#include "values/text.h"

#include <algorithm>
#include <array>
#include <utility>

namespace lumtex::raster {

namespace {

constexpr Double usualPixelsPerInch = 96;

constexpr Pixel fullAlpha = 0xFF000000U;

Pixel pixelOf(OLE_COLOR color) {
    if (isSystemColor(color)) {
        const unsigned index = systemColorIndex(color);
        return fullAlpha | (index < systemColors.size() ? systemColors[index] : 0U);
    }
    return fullAlpha | (static_cast<Pixel>(redOf(color)) << 16U) |
           (static_cast<Pixel>(greenOf(color)) << 8U) | blueOf(color);
}

Point rounded(Single x, Single y) {
    return {roundToLong(x), roundToLong(y)};
}

/// Of all surfaces that are told of no other.
const std::shared_ptr<const Double>& usualDensity() {
    static const auto density = std::make_shared<const Double>(usualPixelsPerInch);
    return density;
}

} // namespace

RasterSurface::RasterSurface(Long width, Long height, std::shared_ptr<FontLibrary> fonts)
    : width_(std::max<Long>(width, 0)), height_(std::max<Long>(height, 0)), pixelsPerInch_(usualDensity()),
      pixels_(static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_)),
      painted_(width_, height_), clearing_(pixelOf(white)), fonts_(std::move(fonts)) {}

RasterSurface::~RasterSurface() = default;

void RasterSurface::resize(Long width, Long height) {
    width = std::max<Long>(width, 0);
    height = std::max<Long>(height, 0);
    std::vector<Pixel> larger(static_cast<std::size_t>(width) * static_cast<std::size_t>(height),
                              pixelOf(backColor_));
    PaintedParts painted(width, height);
    carryOutClearing();
    const Long keptWidth = std::min(width, width_);
    for (Long y = 0; y < std::min(height, height_); ++y) {
        std::copy_n(pixels_.begin() + static_cast<std::ptrdiff_t>(y) * width_,
                    keptWidth,
                    larger.begin() + static_cast<std::ptrdiff_t>(y) * width);
    }
    pixels_ = std::move(larger);
    painted_ = std::move(painted);
    width_ = width;
    height_ = height;
}

void RasterSurface::carryOutClearing() {
    if (!clearing_)
        return;
    if (*clearing_ != ground_)
        painted_.noteAll();
    painted_.clear(pixels_.data(), *clearing_);
    ground_ = *clearing_;
    clearing_.reset();
}

Canvas RasterSurface::canvas() {
    carryOutClearing();
    return {pixels_.data(), width_, height_, &painted_};
}

std::span<const std::uint32_t> RasterSurface::pixels() {
    carryOutClearing();
    return pixels_;
}

void RasterSurface::Cls() {
    clearing_ = pixelOf(backColor_);
}

void RasterSurface::letBackColor(OLE_COLOR color) {
    backColor_ = color;
    clearing_ = pixelOf(color);
}

void RasterSurface::setFont(const FontSpec& font) {
    if (font_ == font)
        return;
    font_ = font;
    typeface_.reset();
}

Typeface& RasterSurface::typeface() {
    if (!typeface_ || typefaceDensity_ != *pixelsPerInch_) {
        FontSpec dense = font_;
        dense.Size = static_cast<Single>(dense.Size * *pixelsPerInch_ / usualPixelsPerInch);
        typeface_ = fonts_->typeface(dense);
        typefaceDensity_ = *pixelsPerInch_;
    }
    return *typeface_;
}

void RasterSurface::drawLine(Point from, Point to, OLE_COLOR color) {
    raster::drawLine(canvas(), from, to, pixelOf(color));
}

void RasterSurface::fillArea(const Rect& area, OLE_COLOR color) {
    raster::fillArea(canvas(), area, pixelOf(color));
}

void RasterSurface::polygon(std::span<const Point> points, OLE_COLOR fill) {
    const Canvas target = canvas();
    fillPolygon(target, points, pixelOf(fill));
    for (std::size_t i = 0; i < points.size(); ++i)
        raster::drawLine(target, points[i], points[(i + 1) % points.size()], pixelOf(foreColor_));
}

void RasterSurface::blendPicture(const Bitmap& source, const Rect& part, const Rect& target) {
    raster::blendPicture(canvas(), canvas().bounds(), source, part, target);
}

void RasterSurface::stretchDIBits(Long x, Long y, Long width, Long height, const Dib24& source) {
    if (width <= 0 || height <= 0 || source.width <= 0 || source.height <= 0)
        return;
    const std::uint64_t stride = dibStride(source.width, 24);
    if (source.bytes.size() < stride * static_cast<std::size_t>(source.height))
        return;
    const Canvas target = canvas();
    const Rect whole{std::max<Long>(x, 0),
                     std::max<Long>(y, 0),
                     static_cast<Long>(std::min<std::int64_t>(std::int64_t{x} + width, width_)),
                     static_cast<Long>(std::min<std::int64_t>(std::int64_t{y} + height, height_))};
    if (whole.Left >= whole.Right)
        return;
    target.note(whole);
    std::int64_t lineAbove = -1; // of the source
    for (Long row = whole.Top; row < whole.Bottom; ++row) {
        const std::int64_t fromTop = nearestSource(std::int64_t{row} - y, height, source.height);
        Pixel* pixels = target.row(row);
        if (std::exchange(lineAbove, fromTop) == fromTop) {
            std::copy(pixels - width_ + whole.Left, pixels - width_ + whole.Right, pixels + whole.Left);
            continue;
        }
        const Byte* bytes =
            source.bytes.data() + stride * static_cast<std::size_t>(source.height - 1 - fromTop);
        for (Long column = whole.Left; column < whole.Right; ++column) {
            const Byte* pixel = bytes + nearestSource(std::int64_t{column} - x, width, source.width) * 3;
            pixels[column] = fullAlpha | (Pixel{pixel[2]} << 16U) | (Pixel{pixel[1]} << 8U) | Pixel{pixel[0]};
        }
    }
}

void RasterSurface::print(Single x, Single y, StringView text) {
    const StringView drawn = drawnPart(text);
    const Canvas target = canvas();
    TextPainter painter(target, typeface(), pixelOf(foreColor_), font_.Underline, font_.Strikethrough);
    const Point at = rounded(x, y);
    painter.drawLine(drawn, at.x, at.y, target.bounds());
}

Single RasterSurface::textWidth(StringView text) {
    Long widest = 0;
    while (!text.empty()) {
        const std::size_t end = text.find(u'\n');
        widest = std::max(widest, typeface().width(text.substr(0, end)));
        text.remove_prefix(end == StringView::npos ? text.size() : end + 1);
    }
    return static_cast<Single>(widest);
}

Single RasterSurface::textHeight(StringView text) {
    const auto lines = 1 + std::count(text.begin(), text.end(), u'\n');
    return static_cast<Single>(lines) * static_cast<Single>(typeface().lineHeight());
}

Long RasterSurface::drawText(StringView text, Rect& rect, TextFormat format) {
    TextPainter painter(canvas(), typeface(), pixelOf(foreColor_), font_.Underline, font_.Strikethrough);
    return painter.drawText(drawnPart(text), rect, format, scratch_);
}

Bitmap RasterSurface::image() const {
    Bitmap bitmap(width_, height_, clearing_.value_or(0));
    if (!clearing_)
        bitmap.pixels = pixels_;
    return bitmap;
}

} // namespace lumtex::raster
