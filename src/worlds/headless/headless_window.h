/// \file
/// A window of the simulated desktop, drawn on in memory.
#pragma once

#include "raster/raster_surface.h"
#include "worlds/common/pane.h"
#include "worlds/headless/desktop.h"

namespace lumtex::headless {

class HeadlessGuideLine;

class HeadlessWindow final : public Window, public worlds::Pane {
  public:
    HeadlessWindow(Desktop& desktop, worlds::Pane* parent, UserControl& client);
    ~HeadlessWindow() override;

    WindowHandle hWnd() const override { return handle(); }
    raster::RasterSurface& surface() override { return surface_; }
    const raster::RasterSurface& surface() const { return surface_; }
    Single Left() const override { return static_cast<Single>(area().Left); }
    Single Top() const override { return static_cast<Single>(area().Top); }
    Single Width() const override { return static_cast<Single>(surface_.scaleWidth()); }
    Single Height() const override { return static_cast<Single>(surface_.scaleHeight()); }
    /// Throws RuntimeError 6 for a place that is no 32-bit number, and 7 for a size past
    /// `Desktop::mostPixels`; the window then stays as it was.
    void place(Single left, Single top, Single width, Single height) override;
    bool Visible() const override { return isVisible(); }
    /// Hiding it, or disabling it, passes on a focus and ends a capture in it.
    void letVisible(bool visible) override;
    bool Enabled() const { return isEnabled(); }
    void letEnabled(bool enabled) override;
    Long OLEDropMode() const { return oleDropMode_; }
    void letOLEDropMode(Long mode) override { oleDropMode_ = mode; }
    CursorShape MousePointer() const { return mousePointer_; }
    void letMousePointer(CursorShape shape) override { mousePointer_ = shape; }
    PictureRef MouseIcon() const { return mouseIcon_; }
    void setMouseIcon(PictureRef icon) override { mouseIcon_ = std::move(icon); }
    void setFocus() override;
    void letTakesKeys(bool takesKeys) override { takesKeys_ = takesKeys; }
    void setCapture() override;
    void releaseCapture() override;
    bool pointerStrictlyInside() const override;
    Point pointer() const override;
    bool underPointer() const override;
    bool adopt(WindowHandle child) override;
    void present() override;

    /// How often the screen was asked to show the surface, and how many paints came of it. Requests that come
    /// before their paint share one.
    int presented() const { return presented_; }
    int painted() const { return painted_; }

    void addGuide(HeadlessGuideLine& guide) { guides_.push_back(&guide); }
    void removeGuide(HeadlessGuideLine& guide) { std::erase(guides_, &guide); }

    Bitmap picture() const override;
    void mouseDown(Integer button, Integer shift, Point at) override;
    void doubleClick(Point at) override;
    void mouseMove(Integer buttons, Integer shift, Point at) override;
    void mouseUp(Integer button, Integer shift, Point at) override;
    void click() override { client_.UserControl_Click(); }
    void keyDown(Integer keyCode, Integer shift) override { client_.UserControl_KeyDown(keyCode, shift); }
    void character(Integer unit) override { client_.UserControl_KeyPress(unit); }
    void keyUp(Integer keyCode, Integer shift) override { client_.UserControl_KeyUp(keyCode, shift); }
    void gotFocus() override { client_.UserControl_GotFocus(); }
    void lostFocus(bool /*toOther*/) override { client_.UserControl_LostFocus(); }
    bool wheel(Long rotation, Integer shift, Point at) override;
    void paint() override;

  private:
    friend class Desktop;

    Desktop& desktop_;
    UserControl& client_;
    raster::RasterSurface surface_;
    std::vector<HeadlessGuideLine*> guides_;
    bool paintWaits_ = false;
    Long oleDropMode_ = 0;
    CursorShape mousePointer_ = CursorShape::standard;
    PictureRef mouseIcon_;
    int presented_ = 0;
    int painted_ = 0;
};

} // namespace lumtex::headless
