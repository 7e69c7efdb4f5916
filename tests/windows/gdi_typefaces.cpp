/// The software surface's fonts, replaced by those of Windows: same measures, and glyphs as Windows draws
/// them. So both surfaces lay out alike in one program, and their pictures can be compared.
#include "raster/font_library.h"
#include "values/rounding.h"
#include "worlds/win32/gdi_font.h"
#include "worlds/win32/memory_bitmap.h"

#include <algorithm>
#include <map>

namespace lumtex::raster {

struct FontLibrary::Implementation {};

struct Typeface::Implementation {
    explicit Implementation(const FontSpec& spec) : font(win32::gdiFont(spec, 96)) {
        former = SelectObject(sheet.dc(), font->handle());
        TEXTMETRICW metrics{};
        GetTextMetricsW(sheet.dc(), &metrics);
        ascent = metrics.tmAscent;
        lineHeight = metrics.tmHeight;
        SetTextColor(sheet.dc(), RGB(255, 255, 255));
        SetBkMode(sheet.dc(), TRANSPARENT);
    }
    Implementation(const Implementation&) = delete;
    Implementation& operator=(const Implementation&) = delete;
    ~Implementation() { SelectObject(sheet.dc(), former); }

    const Glyph& glyph(char16_t unit) {
        const auto [entry, isNew] = glyphs.try_emplace(unit);
        Glyph& glyph = entry->second;
        if (!isNew || unit < 0x20)
            return glyph;
        SIZE size{};
        const auto letter = static_cast<wchar_t>(unit);
        GetTextExtentPoint32W(sheet.dc(), &letter, 1, &size);
        glyph.advance = size.cx;
        glyph.left = -margin;
        glyph.top = ascent;
        glyph.width = std::min<Long>(size.cx + 2 * margin, sheet.width());
        PatBlt(sheet.dc(), 0, 0, sheet.width(), sheet.height(), BLACKNESS);
        TextOutW(sheet.dc(), margin, 0, &letter, 1);
        GdiFlush();
        glyph.mask = Mask(glyph.width, lineHeight);
        for (Long y = 0; y < lineHeight; ++y) {
            for (Long x = 0; x < glyph.width; ++x)
                glyph.mask.row(y)[x] = static_cast<Byte>(sheet.row(y)[x] & 0xFFU);
        }
        return glyph;
    }

    static constexpr Long margin = 8; ///< for what letters reach beyond their room, in pixels

    std::shared_ptr<const win32::GdiFont> font;
    win32::MemoryBitmap sheet{256, 256};
    HGDIOBJ former = nullptr;
    Long ascent = 0;
    Long lineHeight = 0;
    std::map<char16_t, Glyph> glyphs;
    GlyphRun scratch;
};

Typeface::Typeface(std::unique_ptr<Implementation> implementation)
    : implementation_(std::move(implementation)) {}
Typeface::~Typeface() = default;
Long Typeface::ascent() const {
    return implementation_->ascent;
}
Long Typeface::lineHeight() const {
    return implementation_->lineHeight;
}
Long Typeface::underlineTop() const {
    return implementation_->ascent + 1;
}
Long Typeface::strikeTop() const {
    return implementation_->ascent / 2;
}
Long Typeface::rule() const {
    return 1;
}

const GlyphRun& Typeface::run(StringView text) {
    GlyphRun& run = implementation_->scratch;
    run.glyphs.clear();
    run.width = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const Glyph& glyph = implementation_->glyph(text[i]);
        run.glyphs.push_back({&glyph, glyph.advance, 0, 0, static_cast<std::uint32_t>(i)});
        run.width += glyph.advance;
    }
    return run;
}

Long Typeface::width(StringView text, Long enough) {
    std::int64_t total = 0;
    for (std::size_t i = 0; i < text.size() && total <= enough; ++i)
        total += implementation_->glyph(text[i]).advance;
    return static_cast<Long>(std::min<std::int64_t>(total, maximum));
}

// Every unit is a letter of its own here.

StringView Typeface::firstPiece(StringView text) {
    return text.substr(0, longestRun);
}

Beginning Typeface::beginning(StringView text, Long room) {
    Beginning fitting;
    for (const char16_t unit : text) {
        const Long advance = implementation_->glyph(unit).advance;
        if (fitting.width + advance > room)
            break;
        fitting.width += advance;
        ++fitting.units;
    }
    return fitting;
}

Extent Typeface::extentOf(StringView text, std::size_t unit) {
    const Long from = width(text.substr(0, unit));
    return {from, from + implementation_->glyph(text[unit]).advance};
}

FontLibrary::FontLibrary(std::unique_ptr<Implementation> implementation)
    : implementation_(std::move(implementation)) {}
FontLibrary::~FontLibrary() = default;

std::shared_ptr<FontLibrary> FontLibrary::ofSystem() {
    return std::shared_ptr<FontLibrary>(new FontLibrary(std::make_unique<Implementation>()));
}
std::shared_ptr<FontLibrary> FontLibrary::fromConfiguration(const std::filesystem::path& /*file*/) {
    return ofSystem();
}

std::shared_ptr<Typeface> FontLibrary::typeface(const FontSpec& font) {
    // Rules are the surface's work.
    FontSpec plain = font;
    plain.Underline = false;
    plain.Strikethrough = false;
    return std::make_shared<Typeface>(std::make_unique<Typeface::Implementation>(plain));
}

} // namespace lumtex::raster
