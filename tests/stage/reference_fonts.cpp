#include "reference_fonts.h"

#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>

namespace lumtex::testing {

namespace {

/// A font file in memory. Its numbers have their highest byte first. Reading past the end throws
/// std::out_of_range.
class FontFile {
  public:
    explicit FontFile(const std::string& path) {
        std::ifstream file(path, std::ios::binary);
        bytes_.assign(std::istreambuf_iterator<char>(file), {});
        if (bytes_.empty())
            throw std::runtime_error("no font at " + path);
    }

    std::size_t word(std::size_t at) const { return byte(at) * 256 + byte(at + 1); }
    void letWord(std::size_t at, std::size_t value) {
        bytes_.at(at) = static_cast<char>(value / 256);
        bytes_.at(at + 1) = static_cast<char>(value % 256);
    }
    std::size_t doubleWord(std::size_t at) const { return word(at) * 65536 + word(at + 2); }
    /// Where a table begins.
    std::size_t table(std::string_view tag) const {
        const std::size_t count = word(4);
        for (std::size_t entry = 12; entry < 12 + count * 16; entry += 16)
            if (std::string_view(bytes_).substr(entry, 4) == tag)
                return doubleWord(entry + 8);
        throw std::runtime_error("the font has no table " + std::string(tag));
    }
    std::string& bytes() { return bytes_; }

  private:
    std::size_t byte(std::size_t at) const { return static_cast<unsigned char>(bytes_.at(at)); }

    std::string bytes_;
};

/// Names of the family alone and with its style, in both ways to say them.
bool isFamilyName(std::size_t nameId) {
    return nameId == 1 || nameId == 4 || nameId == 16;
}

/// The new name must not be longer than the old one.
void letFamilyName(FontFile& font, std::string_view name) {
    constexpr std::size_t windowsPlatform = 3;
    const std::size_t names = font.table("name");
    const std::size_t texts = names + font.word(names + 4);
    for (std::size_t entry = names + 6; entry < names + 6 + font.word(names + 2) * 12; entry += 12) {
        if (!isFamilyName(font.word(entry + 6)))
            continue;
        const bool isWide = font.word(entry) == windowsPlatform;
        const std::size_t text = texts + font.word(entry + 10);
        for (std::size_t i = 0; i < name.size(); ++i) {
            if (isWide)
                font.letWord(text + 2 * i, static_cast<unsigned char>(name[i]));
            else
                font.bytes().at(text + i) = name[i];
        }
        font.letWord(entry + 8, name.size() * (isWide ? 2 : 1));
    }
}

/// Windows rounds ascent and descent to the nearest pixel.
void roundHeightsUp(FontFile& font) {
    constexpr std::size_t halfPixel = 78; // units of the font, of 2048 to 13 pixels
    const std::size_t metrics = font.table("OS/2");
    for (const std::size_t field : {metrics + 74, metrics + 76})
        font.letWord(field, font.word(field) + halfPixel);
}

/// Each pixel of a letter has the text's colour or none of it, so that surfaces need not agree on the colours
/// in between.
void leaveOutGrey(FontFile& font) {
    constexpr std::size_t grey = 2; // one of the bits that tell how a range of sizes is painted
    const std::size_t ranges = font.table("gasp");
    for (std::size_t entry = ranges + 4; entry < ranges + 4 + font.word(ranges + 2) * 4; entry += 4)
        font.letWord(entry + 2, font.word(entry + 2) & ~grey);
}

/// Where the outline of a glyph begins.
std::size_t outline(const FontFile& font, std::size_t glyph) {
    const std::size_t places = font.table("loca");
    const bool areLong = font.word(font.table("head") + 50) != 0;
    const std::size_t place =
        areLong ? font.doubleWord(places + 4 * glyph) : 2 * font.word(places + 2 * glyph);
    return font.table("glyf") + place;
}

/// Letters say themselves how they are fitted to pixels, and that moves a letter by another width than the
/// one that texts are measured by. These only say "FLIPON" again and again, which is how it begins.
void leaveOutFitting(FontFile& font) {
    constexpr char flipOn = 0x4D;
    const std::size_t count = font.word(font.table("maxp") + 4);
    for (std::size_t glyph = 0; glyph < count; ++glyph) {
        const std::size_t start = outline(font, glyph);
        const std::size_t contours = font.word(start);
        const bool isMadeOfOthers = contours >= 0x8000;
        if (start == outline(font, glyph + 1) || isMadeOfOthers)
            continue;
        const std::size_t length = start + 10 + 2 * contours;
        for (std::size_t i = 0; i < font.word(length); ++i)
            font.bytes().at(length + 2 + i) = flipOn;
    }
}

} // namespace

ReferenceFonts::ReferenceFonts() {
    for (const char* file : {"DejaVuSans.ttf", "DejaVuSans-Bold.ttf"}) {
        FontFile font(std::string("Z:/usr/share/fonts/truetype/dejavu/") + file);
        letFamilyName(font, "Verdana");
        roundHeightsUp(font);
        leaveOutGrey(font);
        leaveOutFitting(font);
        DWORD count = 0;
        fonts_.push_back(AddFontMemResourceEx(
            font.bytes().data(), static_cast<DWORD>(font.bytes().size()), nullptr, &count));
        if (fonts_.back() == nullptr)
            throw std::runtime_error(std::string("the system does not take the font ") + file);
    }
}

ReferenceFonts::~ReferenceFonts() {
    for (const HANDLE font : fonts_)
        RemoveFontMemResourceEx(font);
}

} // namespace lumtex::testing
