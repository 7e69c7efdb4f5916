/// \file
/// A list, a folder for its content files, and the bytes of such files spelled out.
#pragma once

#include "list_fixture.h"
#include "scratch_folder.h"
#include "values/text.h"

#include <bit>
#include <string>

namespace lumtex::testing {

/// A content file by its fields, in their order.
class ContentBytes {
  public:
    ContentBytes& integer(int value) { return little(static_cast<std::uint32_t>(value), 2); }
    ContentBytes& number(std::int64_t value) { return little(static_cast<std::uint32_t>(value), 4); }
    ContentBytes& single(float value) { return little(std::bit_cast<std::uint32_t>(value), 4); }
    ContentBytes& byte(int value) { return little(static_cast<std::uint32_t>(value), 1); }
    ContentBytes& flag(bool value) { return integer(value ? -1 : 0); }
    /// Length and characters.
    ContentBytes& text(const std::string& characters) {
        return number(static_cast<std::int64_t>(characters.size())).raw(characters);
    }
    ContentBytes& raw(const std::string& bytes) {
        bytes_ += bytes;
        return *this;
    }
    ContentBytes& header(std::int64_t rows, std::int64_t columns, bool properties) {
        return integer(275).number(rows).number(columns).flag(properties);
    }
    operator const std::string&() const { return bytes_; }

  private:
    ContentBytes& little(std::uint32_t value, int count) {
        for (int i = 0; i < count; ++i)
            bytes_.push_back(static_cast<char>(value >> (8 * i)));
        return *this;
    }

    std::string bytes_;
};

/// The fields of a record behind its text, with a value each for tests to change.
struct CellProperties {
    bool enabled = true;
    bool bold = false, italic = false, underline = false, strikethrough = false;
    float fontSize = 9.75F;
    std::string fontName = "Verdana";
    bool allowEdit = false;
    int alignment = 0;
    std::string tag;
    std::int64_t foreColor = 0;
    std::int64_t foreColorSelect = 999999999;
    std::int64_t foreColorDis = 0x80000011U;
    std::int64_t backColor = 999999999;
    std::int64_t backColorSelect = 999999999;
    std::int64_t backColorDis = 0x8000000FU;
    int iconAlignment = 0;
    std::string icon; ///< "" for none, otherwise present byte, length and image
    std::string iconSelected;

    static std::string image(const std::string& bytes) { return ContentBytes().byte(1).text(bytes); }

    std::string bytes() const {
        const std::string none(1, '\0');
        return ContentBytes()
            .flag(enabled)
            .flag(bold)
            .flag(italic)
            .flag(underline)
            .flag(strikethrough)
            .single(fontSize)
            .text(fontName)
            .flag(allowEdit)
            .byte(alignment)
            .text(tag)
            .number(foreColor)
            .number(foreColorSelect)
            .number(foreColorDis)
            .number(backColor)
            .number(backColorSelect)
            .number(backColorDis)
            .byte(iconAlignment)
            .raw(icon.empty() ? none : icon)
            .raw(iconSelected.empty() ? none : iconSelected);
    }
};

/// A 2 x 1 bitmap file of 24 bits: red, blue.
inline std::string bitmapImage() {
    return ContentBytes()
        .raw("BM")
        .number(62) // bytes of the file
        .number(0)
        .number(54) // where the pixels start
        .number(40) // bytes of this header
        .number(2)  // width
        .number(1)  // height
        .integer(1)
        .integer(24) // bits a pixel
        .number(0)
        .number(8) // bytes of the pixels
        .raw(std::string(16, '\0'))
        .raw(std::string("\0\0\377\377\0\0\0\0", 8));
}
inline Bitmap bitmapPixels() {
    Bitmap bitmap(2, 1, 0xFFFF0000U);
    bitmap.at(1, 0) = 0xFF0000FFU;
    return bitmap;
}

/// A 2 x 1 icon file of 32 bits: red, and a pixel of `alpha` in white.
inline std::string iconImage(int alpha) {
    return ContentBytes()
        .integer(0)
        .integer(1) // an icon
        .integer(1) // of one picture
        .raw(std::string("\2\1\0\0", 4))
        .integer(1)
        .integer(32)
        .number(52) // bytes of the picture
        .number(22) // where it starts
        .number(40)
        .number(2)
        .number(2) // height, with the mask
        .integer(1)
        .integer(32)
        .number(0)
        .number(12)
        .raw(std::string(16, '\0'))
        .raw(std::string("\0\0\377\377", 4))
        .raw(alpha == 0 ? std::string(4, '\0') : std::string(4, '\377'))
        .raw(alpha == 0 ? std::string("\100\0\0\0", 4) : std::string(4, '\0'));
}
inline Bitmap iconPixels(int alpha) {
    Bitmap bitmap(2, 1, 0xFFFF0000U);
    bitmap.at(1, 0) = alpha == 0 ? 0 : 0xFFFFFFFFU;
    return bitmap;
}

class ContentFixture : public ListFixture {
  protected:
    bool save(bool properties) { return list.ContentSave(path(), properties); }
    std::string saved(bool properties) {
        EXPECT_TRUE(save(properties));
        return folder.contentOf(name);
    }
    bool load(bool properties) { return list.ContentInput(path(), properties); }
    bool load(const std::string& bytes, bool properties) {
        folder.write(name, bytes);
        return load(properties);
    }
    String path() const { return folder.pathTo(name); }

    /// "13 ItemText" for each report, one to a line; forgets them.
    std::string takeReports() {
        std::string lines;
        for (const auto& box : desktop.runtime().boxes) {
            const std::string text = toUtf8(box.text);
            const std::size_t number = text.find(": ") + 2;
            const std::size_t procedure = text.find('/', text.find("Line/Procedure: ") + 6) + 1;
            lines += text.substr(number, text.find('\r') - number) + " " +
                     text.substr(procedure, text.find('\r', procedure) - procedure) + "\n";
        }
        desktop.runtime().boxes.clear();
        return lines;
    }
    /// "a b|c d": rows between bars, cells between blanks; "?" for a cell that is not there.
    std::string texts() {
        std::string all;
        for (Long row = 1; row <= list.RowsCount(); ++row) {
            all += row > 1 ? "|" : "";
            for (Long column = 1; column <= list.ColumnsCount(); ++column)
                all += (column > 1 ? " " : "") + toUtf8(list.ItemText(row, column));
        }
        return all;
    }

    const std::string name = "list.dat";
    ScratchFolder folder;
};

} // namespace lumtex::testing
