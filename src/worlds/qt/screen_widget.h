/// \file
/// The widget that shows an outermost window.
#pragma once

#include "platform/window_handle.h"
#include "values/bitmap.h"
#include "values/geometry.h"

#include <QPointer>
#include <QWidget>
#include <vector>

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

    /// Takes in a widget of the program, below all that lies in the window of this number. Its own events may
    /// end either.
    void takeIn(QWidget& guest, WindowHandle window);
    bool hasGuests() const { return !guests_.empty(); }
    /// Those that are there still, in the order in which they came.
    std::vector<QWidget*> guests() const;
    /// Where the window of a guest begins, in units of widgets.
    QPoint originOfGuest(const QWidget& guest) const;

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    /// Brings the picture up to date, and has the widget repaint where it has changed.
    void bringUpToDate();

    struct Guest {
        QPointer<QWidget> widget;
        QPointer<QWidget> home; ///< where it was before
        WindowHandle window;
    };

    /// Guests show only where their window does, and nothing that lies in it is above them.
    void clipGuests();
    void clip(QWidget& guest, WindowHandle window) const;
    void sendGuestsHome();
    /// In units of widgets, with whatever it covers in part.
    QRect unitsOf(const Rect& pixels) const;

    QtWorld* world_;
    std::vector<Guest> guests_;
    WindowHandle window_;
    Bitmap shown_;
    Bitmap next_;
    Rect touched_;
    bool updateWaits_ = false;
    std::int64_t pixelsChanged_ = 0;
};

} // namespace lumtex::qt
