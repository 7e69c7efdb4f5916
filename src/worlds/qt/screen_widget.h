/// \file
/// The widget that shows an outermost window.
#pragma once

#include "platform/window_handle.h"
#include "values/bitmap.h"
#include "values/geometry.h"

#include <QWidget>

namespace lumtex::qt {

class QtWorld;

/// Keeps a picture of what it shows, and has only those pixels painted anew that have changed. Passes all
/// input on to the world. Belongs to its window, or dies before it with the widget around it.
class ScreenWidget final : public QWidget {
  public:
    ScreenWidget(QtWorld& world, WindowHandle window, QWidget* container);
    ~ScreenWidget() override;

    /// The pixels of this part of the window, without right and lower edges, may be others by now.
    void touch(const Rect& part);
    /// The window goes first: from here on the widget shows nothing and hears nothing.
    void loseWindow();
    WindowHandle shownWindow() const { return window_; }
    /// How many pixels had to be painted anew so far.
    std::int64_t pixelsChanged() const { return pixelsChanged_; }

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    /// Brings the picture up to date, and has the widget repaint where it has changed.
    void bringUpToDate();

    QtWorld* world_;
    WindowHandle window_;
    Bitmap shown_;
    Bitmap next_;
    Rect touched_;
    bool updateWaits_ = false;
    std::int64_t pixelsChanged_ = 0;
};

} // namespace lumtex::qt
