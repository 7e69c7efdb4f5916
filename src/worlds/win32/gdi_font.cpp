#include "worlds/win32/gdi_font.h"

#include "values/rounding.h"
#include "values/runtime_error.h"

#include <algorithm>
#include <map>
#include <mutex>
#include <tuple>

namespace lumtex::win32 {

namespace {

constexpr Double pointsPerInch = 72;
constexpr Double smallest = 1;   // pixels
constexpr Double largest = 1000; // pixels

/// How many fonts are kept before all are let go.
constexpr std::size_t fontsKept = 64;

using Key = std::tuple<String, Long, bool, bool, bool, bool>;

Long pixelsOf(Single points, Long pixelsPerInch) {
    const Double pixels = static_cast<Double>(points) * pixelsPerInch / pointsPerInch;
    // Written so that what is not a number ends up smallest.
    return pixels >= smallest ? roundToLong(std::min(pixels, largest)) : static_cast<Long>(smallest);
}

std::shared_ptr<const GdiFont> makeFont(const FontSpec& font, Long pixels) {
    LOGFONTW wish{};
    wish.lfHeight = -pixels; // negative: of the letters, without the room between lines
    wish.lfWeight = font.Bold ? FW_BOLD : FW_NORMAL;
    wish.lfItalic = font.Italic ? TRUE : FALSE;
    wish.lfUnderline = font.Underline ? TRUE : FALSE;
    wish.lfStrikeOut = font.Strikethrough ? TRUE : FALSE;
    wish.lfCharSet = DEFAULT_CHARSET;
    const std::size_t length = std::min<std::size_t>(font.Name.size(), LF_FACESIZE - 1);
    std::copy_n(wide(font.Name), length, std::begin(wish.lfFaceName));
    HFONT made = CreateFontIndirectW(&wish);
    if (made == nullptr)
        throw RuntimeError(ErrorNumber::outOfMemory);
    return std::make_shared<GdiFont>(made);
}

} // namespace

std::shared_ptr<const GdiFont> gdiFont(const FontSpec& font, Long pixelsPerInch) {
    static std::mutex guard;
    static std::map<Key, std::shared_ptr<const GdiFont>> fonts;
    const Long pixels = pixelsOf(font.Size, pixelsPerInch);
    Key key{font.Name, pixels, font.Bold, font.Italic, font.Underline, font.Strikethrough};
    const std::lock_guard lock(guard);
    if (const auto found = fonts.find(key); found != fonts.end())
        return found->second;
    if (fonts.size() >= fontsKept)
        fonts.clear();
    auto made = makeFont(font, pixels);
    fonts.emplace(std::move(key), made);
    return made;
}

} // namespace lumtex::win32
