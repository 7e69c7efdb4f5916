/// Text on the surface of Windows.
#include "values/rounding.h"
#include "values/text.h"
#include "worlds/win32/gdi_color.h"
#include "worlds/win32/gdi_surface.h"

#include <algorithm>

namespace lumtex::win32 {

namespace {

/// Half of what fits, so that the system may add two of them.
constexpr Long farthest = 0x3FFFFFFF;

constexpr Long within(Long coordinate) {
    return std::clamp(coordinate, -farthest, farthest);
}

/// The system wants a place to read from even for no text at all.
const wchar_t* start(StringView text) {
    return text.empty() ? L"" : reinterpret_cast<const wchar_t*>(text.data());
}

Long widthOf(HDC dc, StringView line) {
    SIZE size{};
    GetTextExtentPoint32W(dc, start(line), static_cast<int>(line.size()), &size);
    return size.cx;
}

Long moved(Long from, std::int64_t distance) {
    return static_cast<Long>(std::clamp<std::int64_t>(from + distance, -0x7FFFFFFF, 0x7FFFFFFF));
}

} // namespace

void GdiSurface::setFont(const FontSpec& font) {
    if (font_ == font)
        return;
    font_ = font;
    fontSelected_ = false;
}

HDC GdiSurface::textDc() {
    const HDC dc = memoryDc();
    if (!fontSelected_) {
        auto chosen = gdiFont(font_, pixelsPerInchY_);
        SelectObject(dc, chosen->handle());
        gdiFont_ = std::move(chosen);
        fontSelected_ = true;
    }
    SetTextColor(dc, colorRef(foreColor_));
    return dc;
}

void GdiSurface::print(Single left, Single top, StringView whole) {
    const StringView text = drawnPart(whole);
    const Long x = roundToLong(left);
    const Long y = roundToLong(top);
    TextOutW(textDc(), within(x), within(y), start(text), static_cast<int>(text.size()));
}

Single GdiSurface::textWidth(StringView text) {
    const HDC dc = textDc();
    Long widest = 0;
    while (!text.empty()) {
        const std::size_t end = text.find(u'\n');
        StringView line = text.substr(0, end);
        text.remove_prefix(end == StringView::npos ? text.size() : end + 1);
        if (line.ends_with(u'\r'))
            line.remove_suffix(1);
        widest = std::max(widest, widthOf(dc, line));
    }
    return static_cast<Single>(widest);
}

Single GdiSurface::textHeight(StringView text) {
    TEXTMETRICW metrics{};
    GetTextMetricsW(textDc(), &metrics);
    const auto lines = 1 + std::count(text.begin(), text.end(), u'\n');
    return static_cast<Single>(lines) * static_cast<Single>(metrics.tmHeight);
}

/// The system leaves the rectangle of no text as it was, and its versions differ in the height.
Long GdiSurface::placeNothing(Rect& rect, TextFormat format) {
    const auto height = static_cast<Long>(textHeight({}));
    if (has(format, TextFormat::calcRect)) {
        rect.Right = rect.Left;
        rect.Bottom = moved(rect.Top, height);
        return height;
    }
    if (!has(format, TextFormat::singleLine) || !has(format, TextFormat::vCenter))
        return height;
    const std::int64_t room = std::int64_t{rect.Bottom} - rect.Top;
    return moved(height - height / 2, room / 2);
}

Long GdiSurface::drawText(StringView whole, Rect& rect, TextFormat format) {
    const StringView text = drawnPart(whole);
    const bool calculate = has(format, TextFormat::calcRect);
    if (text.empty())
        return placeNothing(rect, format);
    const HDC dc = textDc();
    RECT area{within(rect.Left), within(rect.Top), within(rect.Right), within(rect.Bottom)};
    // What may be asked for besides these would have the system write into the text, or read beyond it.
    constexpr TextFormat known = TextFormat::center | TextFormat::right | TextFormat::vCenter |
                                 TextFormat::singleLine | TextFormat::calcRect | TextFormat::wordEllipsis;
    // The extent of a text does not depend on where it would stand.
    const Long bits =
        static_cast<Long>(format & known) & (calculate ? ~static_cast<Long>(TextFormat::vCenter) : -1);
    const Long height =
        DrawTextW(dc, start(text), static_cast<int>(text.size()), &area, static_cast<UINT>(bits));
    if (calculate) {
        rect.Right = moved(rect.Left, std::int64_t{area.right} - area.left);
        rect.Bottom = moved(rect.Top, std::int64_t{area.bottom} - area.top);
    }
    return height;
}

} // namespace lumtex::win32
