/// \file
/// The world of Qt: widgets on the user's screen, Qt's own text box, tips, timers and settings.
#pragma once

#include "platform/world.h"
#include "raster/font_library.h"
#include "worlds/common/early_presses.h"
#include "worlds/common/focus.h"
#include "worlds/common/kept_tips.h"
#include "worlds/common/pointer.h"
#include "worlds/common/window_tree.h"
#include "worlds/qt/drag_target.h"
#include "worlds/qt/qt_runtime.h"
#include "worlds/qt/screen_widget.h"

#include <QEvent>
#include <QEventLoop>
#include <QMouseEvent>
#include <QObject>
#include <QPointer>
#include <QWheelEvent>
#include <QWidget>
#include <deque>
#include <functional>
#include <memory>
#include <vector>

namespace lumtex::qt {

class QtTimer;

/// Belongs to the thread of the application object, as do all things made by it.
///
/// Who hears of a press, who has capture and focus, and what is made up when a capture ends, follows the
/// rules that worlds with a window tree of their own share. Pixels are those of the screen, which are smaller
/// than the units of widgets where it is dense.
class QtWorld : public World {
  public:
    /// Pixels that one surface may have at most.
    static constexpr std::int64_t mostPixels = std::int64_t{1} << 26U;

    /// Windows without a parent lie in `container`; with none, each stands by itself. How dense pixels are,
    /// the screen of `container` says, from one to the next; without a container, that of the application
    /// once and for all. `runtime` stands in for the world's own one and must outlive it.
    explicit QtWorld(QWidget* container = nullptr,
                     Runtime* runtime = nullptr,
                     std::shared_ptr<raster::FontLibrary> fonts = raster::FontLibrary::ofSystem());
    /// All windows, boxes, tips and timers must be gone.
    ~QtWorld() override;

    Runtime& runtime() override { return runtime_ != nullptr ? *runtime_ : ownRuntime_; }
    worlds::KeptTips& tips() override { return tips_; }
    /// A window without a parent is shown from the start, and no UserControl_Show comes of that.
    std::unique_ptr<Window> createWindow(Window* parent, UserControl& client) override;
    std::unique_ptr<Window> createForm(UserControl& client) override;
    void showModal(Window& form) override;
    Point screenSize() const override;
    std::unique_ptr<TextBox> createTextBox(Window& parent, TextBoxClient& client) override;
    std::unique_ptr<GuideLine> createGuideLine(Window& parent) override;
    std::unique_ptr<Timer> createTimer(std::function<void()> onTimer) override;
    /// Throws RuntimeError 7 for more than `mostPixels`.
    std::unique_ptr<Surface> createSurface(Long width, Long height) override;

    /// What the world is part of; may be null. It is held while input or a tick is told, so that a handler
    /// that lets go of the last reference does not destroy what still runs.
    std::weak_ptr<void> owner;

    /// Pixels to a unit of widgets.
    Double ratio() const { return ratio_; }
    /// What all surfaces share.
    const std::shared_ptr<const Double>& pixelsPerInch() const { return pixelsPerInch_; }
    /// The container stands on a denser screen, or on one less dense, and surfaces know it. Whoever placed an
    /// outermost window does so anew.
    std::function<void()> onDensity;

    // For what the world makes

    worlds::WindowTree& tree() { return tree_; }
    const worlds::WindowTree& tree() const { return tree_; }
    worlds::Focus& keyFocus() { return focus_; }
    worlds::Pointer& mouse() { return pointer_; }
    const std::shared_ptr<raster::FontLibrary>& fonts() const { return fonts_; }
    /// The pane, or what it lies in, was hidden or disabled.
    void inputLost(const worlds::Pane& pane);
    /// Has the pointer the shape that it is to have where it is.
    void showPointer();
    /// An outermost window was hidden, or goes.
    void formMayBeClosed();
    /// Throws RuntimeError 7 for more than `mostPixels`.
    static void refuseHugeSize(Long width, Long height);
    /// Something of the world is told of input: widgets must not be destroyed now.
    bool isDelivering() const { return depth_ > 0; }

    /// Input that reached the widget of an outermost window. False: it is nothing for the world, and the
    /// widget does with it what widgets do. Never throws.
    bool input(ScreenWidget& screen, QEvent& event) noexcept;
    /// The same for the mouse over `field`, which the box `pane` shows.
    void mouseOver(const QWidget& field, const worlds::Pane& pane, QEvent& event) noexcept;
    /// `pane` got the focus of the platform, or lost it.
    void focusCame(const worlds::Pane& pane);
    void focusWent();

    /// As long as one lives, the owner of the world is held.
    class Delivery {
      public:
        explicit Delivery(QtWorld& world) : alive_(world.owner.lock()), depth_(world.depth_) { ++depth_; }
        Delivery(const Delivery&) = delete;
        Delivery& operator=(const Delivery&) = delete;
        ~Delivery() { --depth_; }

      private:
        std::shared_ptr<void> alive_;
        int& depth_;
    };

  private:
    /// Throws RuntimeError 5 for a window or box that is not of this world.
    worlds::Pane& paneOf(WindowHandle handle) const;
    QWidget* widgetOf(const worlds::Pane& pane) const;
    bool claimFocus(const worlds::Pane* pane);

    bool deliver(ScreenWidget& screen, QEvent& event);
    /// Pixels to a unit of widgets are others once the container stands on another screen.
    void lookAtDensity();
    void letRatio(Double ratio);
    Point onDesktop(const QWidget& widget, const worlds::Pane& pane, QPointF at) const;
    /// `window` is the outermost one; 0 for an event that must be told before this returns.
    void mouseEvent(Point at, const QMouseEvent& event, WindowHandle window);
    void tellPress(Point at, const QMouseEvent& event);
    void tellRelease(Point at, const QMouseEvent& event);
    /// The timers by which controls notice the mouse.
    std::vector<QtTimer*> quickTimers() const;
    worlds::EarlyPresses::Noticed noticed() const;
    void tickQuickTimers();
    bool wheelEvent(Point at, const QWheelEvent& event);
    void pointerLeft(const ScreenWidget& screen, const worlds::Pane& pane);
    void keyPressed(const QKeyEvent& event);
    void keyReleased(const QKeyEvent& event);
    void enter(const String& characters);
    void deliverCharacters();
    worlds::Pane* keyTarget() const;
    bool showTip(Point at, QPoint onScreen);

    Double ratio_ = 1;
    std::shared_ptr<Double> density_ = std::make_shared<Double>(96);
    std::shared_ptr<const Double> pixelsPerInch_ = density_;
    std::shared_ptr<raster::FontLibrary> fonts_;
    QObject context_; ///< what is posted goes with it
    QPointer<QWidget> container_;
    Runtime* runtime_;
    QEventLoop* modal_ = nullptr; ///< the innermost form's that is open
    int depth_ = 0;
    bool claiming_ = false;        ///< the platform's focus moves because ours does
    WindowHandle focusedLast_ = 0; ///< has the focus again when its window is back
    Long wheelRest_ = 0;           ///< of a notch
    bool moveIsFresh_ = false;     ///< no event but those of the mouse has come since it was told
    std::vector<QtTimer*> timers_;
    worlds::EarlyPresses presses_{[this] { return noticed(); }, [this] { tickQuickTimers(); }};
    std::deque<Integer> characters_; ///< of a key that went down, waiting for what the key itself sets off
    worlds::WindowTree tree_;
    worlds::Focus focus_{tree_};
    worlds::Pointer pointer_{tree_, focus_};
    worlds::KeptTips tips_{tree_};
    DragTarget drops_{*this};
    QtRuntime ownRuntime_;
};

} // namespace lumtex::qt
