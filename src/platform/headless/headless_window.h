/// \file
/// A window of the simulated desktop, drawn on in memory.
#pragma once

#include "platform/headless/desktop.h"
#include "platform/raster/raster_surface.h"

namespace lumtex {

class HeadlessWindow final : public Window {
  public:
    HeadlessWindow(Desktop& desktop, HeadlessWindow* parent, UserControl& client, WindowHandle handle);
    ~HeadlessWindow() override;

    WindowHandle hWnd() const override { return handle_; }
    RasterSurface& surface() override { return surface_; }
    const RasterSurface& surface() const { return surface_; }
    Single Left() const override { return static_cast<Single>(left_); }
    Single Top() const override { return static_cast<Single>(top_); }
    Single Width() const override { return static_cast<Single>(surface_.scaleWidth()); }
    Single Height() const override { return static_cast<Single>(surface_.scaleHeight()); }
    void place(Single left, Single top, Single width, Single height) override;
    bool Visible() const override { return visible_; }
    void letVisible(bool visible) override;
    bool Enabled() const override { return enabled_; }
    void letEnabled(bool enabled) override { enabled_ = enabled; }
    Integer OLEDropMode() const override { return oleDropMode_; }
    void letOLEDropMode(Integer mode) override { oleDropMode_ = mode; }
    Integer MousePointer() const override { return mousePointer_; }
    void letMousePointer(Integer shape) override { mousePointer_ = shape; }
    PictureRef MouseIcon() const override { return mouseIcon_; }
    void setMouseIcon(PictureRef icon) override { mouseIcon_ = std::move(icon); }
    void setFocus() override;
    void setCapture() override;
    void releaseCapture() override;
    bool pointerStrictlyInside() const override;
    Point pointer() const override;
    bool underPointer() const override;
    bool adopt(WindowHandle child) override;
    void present() override { ++presented_; }

    /// How often the screen was asked to show the surface.
    int presented() const { return presented_; }
    HeadlessWindow* parent() const { return parent_; }
    UserControl& client() const { return client_; }
    /// The left upper corner on the desktop.
    Point origin() const;
    /// Shown, and so are all windows that it lies in.
    bool shown() const;
    /// Enabled, and so are all windows that it lies in.
    bool takesInput() const;
    bool contains(Point onDesktop) const;

  private:
    friend class Desktop;

    Desktop& desktop_;
    HeadlessWindow* parent_;
    UserControl& client_;
    WindowHandle handle_;
    RasterSurface surface_;
    Long left_ = 0;
    Long top_ = 0;
    bool visible_ = false;
    bool wasShown_ = false;
    bool enabled_ = true;
    Integer oleDropMode_ = 0;
    Integer mousePointer_ = pointerDefault;
    PictureRef mouseIcon_;
    int presented_ = 0;
};

} // namespace lumtex
