/// \file
/// A window of the world of Qt.
#pragma once

#include "platform/window.h"
#include "raster/raster_surface.h"
#include "worlds/common/pane.h"
#include "worlds/qt/screen_widget.h"

#include <QCursor>
#include <QPointer>
#include <optional>

namespace lumtex::qt {

class QtGuideLine;
class QtTextBox;
class QtWorld;

/// Drawn in memory. An outermost window has a widget, which shows it with all that lies in it; so pieces of
/// it stand on whole pixels of the screen also where these are smaller than the units that widgets are placed
/// by.
class QtWindow final : public Window, public worlds::Pane {
  public:
    enum class Kind { child, outermost, form };

    /// `container` is the widget around an outermost window; null: it stands by itself.
    QtWindow(QtWorld& world, worlds::Pane* parent, Kind kind, QWidget* container, UserControl& client);
    ~QtWindow() override;

    WindowHandle hWnd() const override { return handle(); }
    raster::RasterSurface& surface() override { return surface_; }
    Single Left() const override { return static_cast<Single>(area().Left); }
    Single Top() const override { return static_cast<Single>(area().Top); }
    Single Width() const override { return static_cast<Single>(surface_.scaleWidth()); }
    Single Height() const override { return static_cast<Single>(surface_.scaleHeight()); }
    /// Throws RuntimeError 6 for a place that is no 32-bit number, and 7 for a size past
    /// `QtWorld::mostPixels`; the window then stays as it was.
    void place(Single left, Single top, Single width, Single height) override;
    bool Visible() const override { return isVisible(); }
    /// Hiding it, or disabling it, passes on a focus and ends a capture in it.
    void letVisible(bool visible) override;
    void letEnabled(bool enabled) override;
    /// Mode 1 takes drops, also on what lies in the window and takes none itself.
    void letOLEDropMode(Long mode) override;
    void letMousePointer(CursorShape shape) override;
    void setMouseIcon(PictureRef icon) override;
    void setFocus() override;
    void letTakesKeys(bool takesKeys) override { takesKeys_ = takesKeys; }
    void setCapture() override;
    void releaseCapture() override;
    bool pointerStrictlyInside() const override;
    Point pointer() const override;
    bool underPointer() const override;
    /// Also takes in the widget of a WidgetObject, which then lies below the windows in this one.
    bool adopt(WindowHandle child) override;
    void present() override;

    /// The widget that shows it; null for a window that lies in another one, and once the widget has gone.
    ScreenWidget* screen() const { return screen_; }
    UserControl& client() const { return client_; }
    bool takesDrops() const { return oleDropMode_ == 1; }
    /// The shape of the pointer over it.
    QCursor cursor() const { return mousePointer_ == CursorShape::custom && icon_ ? *icon_ : QCursor(); }

    void addGuide(QtGuideLine& guide) { guides_.push_back(&guide); }
    void removeGuide(QtGuideLine& guide);

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
    void paint() override {}

  private:
    /// Tells the screen that the pixels under the window may be others.
    void touch();
    void placeScreen();
    void dropScreen();
    bool takeIn(QWidget& guest);

    QtWorld& world_;
    UserControl& client_;
    raster::RasterSurface surface_;
    QPointer<ScreenWidget> screen_;
    std::vector<QtGuideLine*> guides_;
    Long oleDropMode_ = 0;
    CursorShape mousePointer_ = CursorShape::standard;
    PictureRef mouseIcon_;
    std::optional<QCursor> icon_;
};

} // namespace lumtex::qt
