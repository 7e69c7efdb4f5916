#include "worlds/win32/gdi_surface.h"

#include "worlds/win32/gdi_color.h"
#include "worlds/win32/screen_density.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace lumtex::win32 {

namespace {

/// The system counts pixels in 28 bits; what lies further out is moved to this distance. The slope of a
/// slanting line changes by that, far outside of any screen.
constexpr Long farthest = 1 << 26;

/// A polygon's area costs the system time and room for each of its rows, seen or not.
constexpr Long farthestCorner = 0x7FFF;

constexpr Long within(Long coordinate, Long limit) {
    return std::clamp(coordinate, -limit, limit);
}

} // namespace

GdiSurface::GdiSurface(Long width, Long height, Long pixelsPerInchX, Long pixelsPerInchY)
    : width_(std::max<Long>(width, 0)), height_(std::max<Long>(height, 0)), pixelsPerInchX_(pixelsPerInchX),
      pixelsPerInchY_(pixelsPerInchY), bitmap_(std::make_unique<MemoryBitmap>(width_, height_)) {
    prepare();
    fillArea({0, 0, width_, height_}, backColor_);
}

GdiSurface::~GdiSurface() = default;

std::unique_ptr<GdiSurface> makeGdiSurface(Long width, Long height) {
    const PixelDensity density = screenDensity();
    return std::make_unique<GdiSurface>(width, height, density.x, density.y);
}

void GdiSurface::prepare() {
    const HDC dc = memoryDc();
    SelectObject(dc, GetStockObject(DC_PEN));
    SelectObject(dc, GetStockObject(DC_BRUSH));
    SetBkMode(dc, TRANSPARENT);
    SetPolyFillMode(dc, ALTERNATE);
    // The usual mode mixes the pixels of a stretched picture bit by bit.
    SetStretchBltMode(dc, COLORONCOLOR);
    fontSelected_ = false;
}

void GdiSurface::resize(Long width, Long height) {
    width = std::max<Long>(width, 0);
    height = std::max<Long>(height, 0);
    auto larger = std::make_unique<MemoryBitmap>(width, height);
    GdiFlush();
    std::swap(bitmap_, larger);
    const Long keptWidth = std::min(width, std::exchange(width_, width));
    const Long keptHeight = std::min(height, std::exchange(height_, height));
    prepare();
    fillArea({0, 0, width_, height_}, backColor_);
    BitBlt(memoryDc(), 0, 0, keptWidth, keptHeight, larger->dc(), 0, 0, SRCCOPY);
}

void GdiSurface::present(HDC target) const {
    BitBlt(target, 0, 0, width_, height_, memoryDc(), 0, 0, SRCCOPY);
}

void GdiSurface::Cls() {
    fillArea({0, 0, width_, height_}, backColor_);
}

void GdiSurface::letBackColor(OLE_COLOR color) {
    backColor_ = color;
    fillArea({0, 0, width_, height_}, color);
}

void GdiSurface::fillArea(const Rect& area, OLE_COLOR color) {
    const Long left = std::max<Long>(area.Left, 0);
    const Long top = std::max<Long>(area.Top, 0);
    const Long right = std::min(area.Right, width_);
    const Long bottom = std::min(area.Bottom, height_);
    if (left >= right || top >= bottom)
        return;
    SetDCBrushColor(memoryDc(), colorRef(color));
    PatBlt(memoryDc(), left, top, right - left, bottom - top, PATCOPY);
}

void GdiSurface::drawLine(Point from, Point to, OLE_COLOR color) {
    SetDCPenColor(memoryDc(), colorRef(color));
    MoveToEx(memoryDc(), within(from.x, farthest), within(from.y, farthest), nullptr);
    LineTo(memoryDc(), within(to.x, farthest), within(to.y, farthest));
}

void GdiSurface::polygon(std::span<const Point> points, OLE_COLOR fill) {
    std::vector<POINT> corners;
    corners.reserve(points.size());
    for (const Point point : points)
        corners.push_back({within(point.x, farthestCorner), within(point.y, farthestCorner)});
    const HDC dc = memoryDc();
    SetDCPenColor(dc, colorRef(foreColor_));
    SetDCBrushColor(dc, colorRef(fill));
    Polygon(dc, corners.data(), static_cast<int>(corners.size()));
}

Bitmap GdiSurface::image() const {
    constexpr std::uint32_t opaque = 0xFF000000U;
    GdiFlush();
    Bitmap copy(width_, height_);
    for (Long y = 0; y < height_; ++y) {
        const std::uint32_t* row = bitmap_->row(y);
        for (Long x = 0; x < width_; ++x)
            copy.at(x, y) = row[x] | opaque;
    }
    return copy;
}

} // namespace lumtex::win32
