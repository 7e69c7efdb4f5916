/// \file
/// One surface that draws on two.
#pragma once

#include "raster/raster_surface.h"
#include "worlds/win32/gdi_surface.h"
#include "worlds/win32/surface_pair.h"

#include <memory>
#include <utility>

namespace lumtex::testing {

/// Hands each operation on to a software surface and to a surface of Windows of the same size. Letters are
/// measured on both and painted on neither, so that all the rest must come out equal.
class MirrorSurface final : public Surface {
  public:
    explicit MirrorSurface(raster::RasterSurface& software)
        : software_(software), windows_(software.scaleWidth(), software.scaleHeight(), 96, 96) {}
    explicit MirrorSurface(std::unique_ptr<raster::RasterSurface> software) : MirrorSurface(*software) {
        owned_ = std::move(software);
    }

    /// What both show; `windows` first.
    struct Pictures {
        Bitmap windows;
        Bitmap software;
    };
    Pictures pictures() {
        follow();
        return {windows_.image(), software_.image()};
    }
    /// How often the two measured a text differently.
    int disagreements = 0;

    Long scaleWidth() const override { return software_.scaleWidth(); }
    Long scaleHeight() const override { return software_.scaleHeight(); }
    Double pixelsPerInchX() const override { return software_.pixelsPerInchX(); }
    Double pixelsPerInchY() const override { return software_.pixelsPerInchY(); }
    void Cls() override {
        both([](Surface& surface) { surface.Cls(); });
    }
    OLE_COLOR BackColor() const override { return software_.BackColor(); }
    void letBackColor(OLE_COLOR color) override {
        both([&](Surface& surface) { surface.letBackColor(color); });
    }
    OLE_COLOR ForeColor() const override { return software_.ForeColor(); }
    void letForeColor(OLE_COLOR color) override {
        both([&](Surface& surface) { surface.letForeColor(color); });
    }
    const FontSpec& font() const override { return software_.font(); }
    void setFont(const FontSpec& font) override {
        both([&](Surface& surface) { surface.setFont(font); });
    }
    void polygon(std::span<const Point> points, OLE_COLOR fill) override {
        both([&](Surface& surface) { surface.polygon(points, fill); });
    }
    void drawLine(Point from, Point to, OLE_COLOR color) override {
        both([&](Surface& surface) { surface.drawLine(from, to, color); });
    }
    void fillArea(const Rect& area, OLE_COLOR color) override {
        both([&](Surface& surface) { surface.fillArea(area, color); });
    }
    void blendPicture(const Bitmap& source, const Rect& part, const Rect& target) override {
        both([&](Surface& surface) { surface.blendPicture(source, part, target); });
    }
    void stretchDIBits(Long x, Long y, Long width, Long height, const Dib24& source) override {
        both([&](Surface& surface) { surface.stretchDIBits(x, y, width, height, source); });
    }
    void print(Single /*x*/, Single /*y*/, StringView text) override { textHeight(text); }
    Single textWidth(StringView text) override {
        return measured(software_.textWidth(text), windows_.textWidth(text));
    }
    Single textHeight(StringView text) override {
        return measured(software_.textHeight(text), windows_.textHeight(text));
    }
    Long drawText(StringView text, Rect& rect, TextFormat format) override {
        Rect onWindows = rect;
        Rect inSoftware = rect;
        const Long height = measured(software_.drawText(text, inSoftware, format | TextFormat::calcRect),
                                     windows_.drawText(text, onWindows, format | TextFormat::calcRect));
        if (has(format, TextFormat::calcRect))
            rect = inSoftware;
        return height;
    }
    Bitmap image() const override {
        Bitmap picture = software_.image();
        EXPECT_TRUE(samePixels(windows_.image(), picture)) << "a picture cut from a board";
        return picture;
    }

  private:
    template <class Operation>
    void both(Operation operation) {
        follow();
        operation(static_cast<Surface&>(software_));
        operation(static_cast<Surface&>(windows_));
    }
    template <class Number>
    Number measured(Number software, Number windows) {
        disagreements += software != windows ? 1 : 0;
        return software;
    }
    /// The window gives its own surface a new size.
    void follow() {
        if (windows_.scaleWidth() != software_.scaleWidth() ||
            windows_.scaleHeight() != software_.scaleHeight())
            windows_.resize(software_.scaleWidth(), software_.scaleHeight());
    }

    std::unique_ptr<raster::RasterSurface> owned_;
    raster::RasterSurface& software_;
    win32::GdiSurface windows_;
};

} // namespace lumtex::testing
