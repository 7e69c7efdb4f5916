/// \file
/// A surface that writes down what is drawn on another one.
#pragma once

#include "platform/surface.h"
#include "values/text.h"
#include "values/variant.h"

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

namespace lumtex::testing {

/// One line for each operation, colours as 0xBBGGRR, before it is handed on. `before` may look at the line,
/// change the world, or throw in place of the operation.
class RecordingSurface final : public Surface {
  public:
    explicit RecordingSurface(Surface& inner) : inner_(inner) {}

    std::vector<std::string> log;
    std::function<void(const std::string&)> before;

    Long scaleWidth() const override { return inner_.scaleWidth(); }
    Long scaleHeight() const override { return inner_.scaleHeight(); }
    Double pixelsPerInchX() const override { return inner_.pixelsPerInchX(); }
    Double pixelsPerInchY() const override { return inner_.pixelsPerInchY(); }
    void Cls() override {
        note("Cls");
        inner_.Cls();
    }
    OLE_COLOR BackColor() const override { return inner_.BackColor(); }
    void letBackColor(OLE_COLOR color) override {
        note("BackColor " + hex(color));
        inner_.letBackColor(color);
    }
    OLE_COLOR ForeColor() const override { return inner_.ForeColor(); }
    void letForeColor(OLE_COLOR color) override {
        note("ForeColor " + hex(color));
        inner_.letForeColor(color);
    }
    const FontSpec& font() const override { return inner_.font(); }
    void setFont(const FontSpec& font) override {
        note("Font " + toUtf8(font.Name) + " " + number(font.Size));
        inner_.setFont(font);
    }
    void line(Single x1, Single y1, Single x2, Single y2, OLE_COLOR color) override {
        note("Line " + corners(x1, y1, x2, y2) + " " + hex(color));
        inner_.line(x1, y1, x2, y2, color);
    }
    void box(Single x1, Single y1, Single x2, Single y2, OLE_COLOR color) override {
        note("Box " + corners(x1, y1, x2, y2) + " " + hex(color));
        inner_.box(x1, y1, x2, y2, color);
    }
    void fillBox(Single x1, Single y1, Single x2, Single y2, OLE_COLOR color) override {
        note("Fill " + corners(x1, y1, x2, y2) + " " + hex(color));
        inner_.fillBox(x1, y1, x2, y2, color);
    }
    void pset(Single x, Single y, OLE_COLOR color) override {
        note("PSet " + number(x) + "," + number(y) + " " + hex(color));
        inner_.pset(x, y, color);
    }
    void polygon(std::span<const Point> points, OLE_COLOR fill) override {
        std::string line = "Polygon";
        for (const Point point : points)
            line += " " + std::to_string(point.x) + "," + std::to_string(point.y);
        note(line);
        inner_.polygon(points, fill);
    }
    void paintPicture(const Picture& picture, Single x, Single y) override {
        note("Picture " + number(x) + "," + number(y));
        inner_.paintPicture(picture, x, y);
    }
    void paintPicture(const Picture& picture, Single x, Single y, Single width, Single height) override {
        note("Picture " + number(x) + "," + number(y) + " " + number(width) + "x" + number(height));
        inner_.paintPicture(picture, x, y, width, height);
    }
    void paintPicture(const Picture& picture, const Area& target, const Area& part) override {
        note("PicturePart");
        inner_.paintPicture(picture, target, part);
    }
    // The operations above come here only on the surface inside.
    void drawLine(Point from, Point to, OLE_COLOR color) override { inner_.drawLine(from, to, color); }
    void fillArea(const Rect& area, OLE_COLOR color) override { inner_.fillArea(area, color); }
    void blendPicture(const Bitmap& source, const Rect& part, const Rect& target) override {
        inner_.blendPicture(source, part, target);
    }
    void stretchDIBits(Long x, Long y, Long width, Long height, const Dib24& source) override {
        note("Stretch " + std::to_string(x) + "," + std::to_string(y) + " " + std::to_string(width) + "x" +
             std::to_string(height) + " from " + std::to_string(source.width) + "x" +
             std::to_string(source.height));
        inner_.stretchDIBits(x, y, width, height, source);
    }
    void print(Single x, Single y, StringView text) override {
        note("Print " + number(x) + "," + number(y) + " " + toUtf8(text));
        inner_.print(x, y, text);
    }
    Single textWidth(StringView text) override { return inner_.textWidth(text); }
    Single textHeight(StringView text) override { return inner_.textHeight(text); }
    Long drawText(StringView text, Rect& rect, TextFormat format) override {
        note("Text '" + toUtf8(text) + "' " + std::to_string(rect.Left) + "," + std::to_string(rect.Top) +
             "-" + std::to_string(rect.Right) + "," + std::to_string(rect.Bottom) + " " +
             hex(static_cast<OLE_COLOR>(format)));
        return inner_.drawText(text, rect, format);
    }
    Bitmap image() const override { return inner_.image(); }

    /// Lines that start with `prefix`.
    std::vector<std::string> lines(const std::string& prefix) const {
        std::vector<std::string> found;
        for (const std::string& line : log) {
            if (line.rfind(prefix, 0) == 0)
                found.push_back(line);
        }
        return found;
    }

  private:
    static std::string number(Single value) { return toUtf8(textFromNumber(value)); }
    static std::string hex(OLE_COLOR color) {
        constexpr const char* digits = "0123456789ABCDEF";
        std::string text;
        for (int shift = 28; shift >= 0; shift -= 4)
            text += digits[(color >> static_cast<unsigned>(shift)) & 0xFU];
        return text.substr(std::min(text.find_first_not_of('0'), std::size_t{7}));
    }
    static std::string corners(Single x1, Single y1, Single x2, Single y2) {
        return number(x1) + "," + number(y1) + "-" + number(x2) + "," + number(y2);
    }

    void note(const std::string& line) {
        log.push_back(line);
        if (before)
            before(line);
    }

    Surface& inner_;
};

} // namespace lumtex::testing
