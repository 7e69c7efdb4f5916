#include "raster/raster_surface.h"

#include "raster/system_colors.h"
#include "raster/text_painter.h"
#include "values/picture_part.h"
#include "values/picture_scale.h"
#include "values/pixels.h"
#include "values/rounding.h"
#include "values/text.h"

#include <algorithm>
#include <array>
#include <utility>

namespace lumtex {

using raster::Canvas;
using raster::Pixel;

namespace {

constexpr Pixel opaque = 0xFF000000U;

Pixel pixelOf(OLE_COLOR color) {
    if (isSystemColor(color)) {
        const unsigned index = systemColorIndex(color);
        return opaque | (index < raster::systemColors.size() ? raster::systemColors[index] : 0U);
    }
    return opaque | (static_cast<Pixel>(redOf(color)) << 16U) | (static_cast<Pixel>(greenOf(color)) << 8U) |
           blueOf(color);
}

Point rounded(Single x, Single y) {
    return {roundToLong(x), roundToLong(y)};
}

/// Just past a pixel, without leaving 32 bits.
constexpr Long past(Long coordinate) {
    return coordinate == 0x7FFFFFFF ? coordinate : coordinate + 1;
}

} // namespace

RasterSurface::RasterSurface(Long width, Long height, std::shared_ptr<raster::FontLibrary> fonts)
    : width_(std::max<Long>(width, 0)), height_(std::max<Long>(height, 0)),
      pixels_(static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_)),
      clearing_(pixelOf(white)), fonts_(std::move(fonts)) {}

RasterSurface::~RasterSurface() = default;

void RasterSurface::resize(Long width, Long height) {
    width = std::max<Long>(width, 0);
    height = std::max<Long>(height, 0);
    std::vector<Pixel> larger(static_cast<std::size_t>(width) * static_cast<std::size_t>(height),
                              pixelOf(backColor_));
    carryOutClearing();
    const Long keptWidth = std::min(width, width_);
    for (Long y = 0; y < std::min(height, height_); ++y) {
        std::copy_n(pixels_.begin() + static_cast<std::ptrdiff_t>(y) * width_,
                    keptWidth,
                    larger.begin() + static_cast<std::ptrdiff_t>(y) * width);
    }
    pixels_ = std::move(larger);
    width_ = width;
    height_ = height;
}

void RasterSurface::carryOutClearing() {
    if (clearing_)
        std::fill(pixels_.begin(), pixels_.end(), *clearing_);
    clearing_.reset();
}

Canvas RasterSurface::canvas() {
    carryOutClearing();
    return {pixels_.data(), width_, height_};
}

std::span<const std::uint32_t> RasterSurface::pixels() {
    carryOutClearing();
    return pixels_;
}

void RasterSurface::Cls() {
    clearing_ = pixelOf(backColor_);
    currentX_ = 0;
    currentY_ = 0;
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

raster::Typeface& RasterSurface::typeface() {
    if (!typeface_)
        typeface_ = fonts_->typeface(font_);
    return *typeface_;
}

void RasterSurface::line(Single x1, Single y1, Single x2, Single y2, OLE_COLOR color) {
    raster::drawLine(canvas(), rounded(x1, y1), rounded(x2, y2), pixelOf(color));
}

void RasterSurface::box(Single x1, Single y1, Single x2, Single y2, OLE_COLOR color) {
    const Point a = rounded(x1, y1);
    const Point b = rounded(x2, y2);
    const auto [left, right] = std::minmax(a.x, b.x);
    const auto [top, bottom] = std::minmax(a.y, b.y);
    const Canvas target = canvas();
    const Pixel pixel = pixelOf(color);
    raster::fillArea(target, {left, top, past(right), past(top)}, pixel);
    raster::fillArea(target, {left, bottom, past(right), past(bottom)}, pixel);
    raster::fillArea(target, {left, top, past(left), past(bottom)}, pixel);
    raster::fillArea(target, {right, top, past(right), past(bottom)}, pixel);
}

void RasterSurface::fillBox(Single x1, Single y1, Single x2, Single y2, OLE_COLOR color) {
    const Point a = rounded(x1, y1);
    const Point b = rounded(x2, y2);
    const auto [left, right] = std::minmax(a.x, b.x);
    const auto [top, bottom] = std::minmax(a.y, b.y);
    raster::fillArea(canvas(), {left, top, past(right), past(bottom)}, pixelOf(color));
}

void RasterSurface::pset(Single x, Single y, OLE_COLOR color) {
    fillBox(x, y, x, y, color);
}

void RasterSurface::polygon(std::span<const Point> points) {
    const Canvas target = canvas();
    if (fillStyle_ == FillStyle::solid)
        raster::fillPolygon(target, points, pixelOf(fillColor_));
    for (std::size_t i = 0; i < points.size(); ++i)
        raster::drawLine(target, points[i], points[(i + 1) % points.size()], pixelOf(foreColor_));
}

void RasterSurface::paintPicture(const Picture& picture, Single x, Single y) {
    const Point size = pictureSize(*this, picture);
    paintPicture(picture, x, y, static_cast<Single>(size.x), static_cast<Single>(size.y));
}

void RasterSurface::paintPicture(const Picture& picture, Single x, Single y, Single width, Single height) {
    const Bitmap& source = picture.bitmap();
    const Point at = rounded(x, y);
    const Point end = {roundToLong(static_cast<Double>(at.x) + roundToLong(width)),
                       roundToLong(static_cast<Double>(at.y) + roundToLong(height))};
    raster::blendPicture(canvas(), source, {0, 0, source.width, source.height}, {at.x, at.y, end.x, end.y});
}

void RasterSurface::paintPicture(const Picture& picture,
                                 Single x,
                                 Single y,
                                 Single width,
                                 Single height,
                                 Single sourceX,
                                 Single sourceY,
                                 Single sourceWidth,
                                 Single sourceHeight) {
    const Bitmap& source = picture.bitmap();
    const PicturePart part =
        picturePart(source, x, y, width, height, sourceX, sourceY, sourceWidth, sourceHeight);
    raster::blendPicture(canvas(), source, part.source, part.target);
}

void RasterSurface::stretchDIBits(Long x, Long y, Long width, Long height, const Dib24& source) {
    if (width <= 0 || height <= 0 || source.width <= 0 || source.height <= 0)
        return;
    const std::uint64_t stride = dibStride(source.width, 24);
    if (source.bytes.size() < stride * static_cast<std::size_t>(source.height))
        return;
    const Canvas target = canvas();
    const std::int64_t right = std::min<std::int64_t>(std::int64_t{x} + width, width_);
    const std::int64_t bottom = std::min<std::int64_t>(std::int64_t{y} + height, height_);
    for (std::int64_t row = std::max<std::int64_t>(y, 0); row < bottom; ++row) {
        const std::int64_t fromTop = nearestSource(row - y, height, source.height);
        const Byte* bytes =
            source.bytes.data() + stride * static_cast<std::size_t>(source.height - 1 - fromTop);
        Pixel* pixels = target.row(static_cast<Long>(row));
        for (std::int64_t column = std::max<std::int64_t>(x, 0); column < right; ++column) {
            const Byte* pixel = bytes + nearestSource(column - x, width, source.width) * 3;
            pixels[column] = opaque | (Pixel{pixel[2]} << 16U) | (Pixel{pixel[1]} << 8U) | Pixel{pixel[0]};
        }
    }
}

void RasterSurface::print(StringView text) {
    const StringView drawn = drawnPart(text);
    const Canvas target = canvas();
    raster::TextPainter painter(
        target, typeface(), pixelOf(foreColor_), font_.Underline, font_.Strikethrough);
    const Point at = rounded(currentX_, currentY_);
    painter.drawLine(drawn, at.x, at.y, target.bounds());
    currentX_ = 0;
    currentY_ += textHeight(text);
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

Long RasterSurface::drawText(StringView text, Rect& rect, Long format) {
    raster::TextPainter painter(
        canvas(), typeface(), pixelOf(foreColor_), font_.Underline, font_.Strikethrough);
    return painter.drawText(drawnPart(text), rect, format, scratch_);
}

Bitmap RasterSurface::image() const {
    Bitmap bitmap(width_, height_, clearing_.value_or(0));
    if (!clearing_)
        bitmap.pixels = pixels_;
    return bitmap;
}

} // namespace lumtex
