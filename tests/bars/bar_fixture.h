/// \file
/// One bar in a window of a simulated desktop, and the means to look inside it.
#pragma once

#include "bars/scroll_bar.h"
#include "log_comparison.h"
#include "recording_world.h"
#include "test_fonts.h"
#include "values/text.h"
#include "worlds/headless/desktop.h"

#include <gtest/gtest.h>

namespace lumtex::bars {

/// The private state, for tests alone.
class ScrollInspector {
  public:
    static ScrollThumb& thumb(ScrollBar& bar) { return bar.thumb_; }
    static ArrowButton& low(ScrollBar& bar) { return bar.low_; }
    static ArrowButton& high(ScrollBar& bar) { return bar.high_; }
    static Double imx(const ScrollBar& bar) { return bar.GetIMX(); }
    static bool dragging(const ScrollBar& bar) { return bar.dragging_; }
    static bool pressActive(const ScrollBar& bar) { return bar.pressActive_; }
    static Long pressDir(const ScrollBar& bar) { return bar.pressDir_; }
    static void takeValueFromThumb(ScrollBar& bar) { bar.ÜberprüfeValue(); }

    static bool over(const ScrollThumb& thumb) { return thumb.hover_.over; }
    static bool down(const ScrollThumb& thumb) { return thumb.hover_.down; }
    static bool over(const ArrowButton& button) { return button.hover_.over; }
    static bool down(const ArrowButton& button) { return button.hover_.down; }
    static Timer& timer(ArrowButton& button) { return *button.Timer1; }
};

} // namespace lumtex::bars

namespace lumtex::testing {

/// The bar lies at (20, 30) of a window of 300 x 300 and is 134 pixels long, 100 of them between its buttons;
/// `Max` 50 makes the thumb 50 long, so that it travels one pixel for a unit. The log holds the bar's events.
class OneBar {
  public:
    explicit OneBar(bars::Axis axis) : axis_(axis), along(axis) {
        form_->place(0, 0, 300, 300);
        bars::ScrollBar::Events events{[this] {
                                           log.emplace_back("Change");
                                           onChange();
                                       },
                                       [this] { log.emplace_back("Scroll"); },
                                       [this](StringView name) { told.push_back(toUtf8(name)); }};
        if (axis == bars::Axis::vertical)
            bar_ = std::make_unique<bars::lmVScroll>(world, *form_, std::move(events));
        else
            bar_ = std::make_unique<bars::lmHScroll>(world, *form_, std::move(events));
        bar().UserControl_InitProperties();
        bar().move(20, 30);
        setLength(134);
        bar().letVisible(true);
        bar().letMax(50);
        told.clear();
    }

    bars::ScrollBar& bar() { return *bar_; }
    bars::lmVScroll& vertical() { return dynamic_cast<bars::lmVScroll&>(*bar_); }
    bars::ScrollThumb& thumb() { return bars::ScrollInspector::thumb(*bar_); }
    bars::ArrowButton& low() { return bars::ScrollInspector::low(*bar_); }
    bars::ArrowButton& high() { return bars::ScrollInspector::high(*bar_); }
    Single thumbStart() { return along.start(thumb().window()); }
    Single thumbLength() { return along.length(thumb().window()); }

    void setLength(Single length) {
        if (axis_ == bars::Axis::vertical)
            bar().letHeight(length);
        else
            bar().letWidth(length);
    }

    /// A point of the bar.
    Point at(Single lengthwise, Single crosswise = 8) {
        return axis_ == bars::Axis::vertical ? desktop.onDesktop(bar().window(), crosswise, lengthwise)
                                             : desktop.onDesktop(bar().window(), lengthwise, crosswise);
    }
    void moveTo(Single lengthwise, Single crosswise = 8) { desktop.move(at(lengthwise, crosswise)); }
    void pressAt(Single lengthwise) {
        moveTo(lengthwise);
        desktop.press();
    }
    Lines take() { return std::exchange(log, {}); }

    static RecordingSurface& drawn(Window& window) {
        return static_cast<RecordingWindow&>(window).recorder();
    }
    /// What the window draws during the action.
    static Lines drawnBy(Window& window, const std::function<void()>& action) {
        drawn(window).log.clear();
        action();
        return drawn(window).log;
    }
    std::size_t boxes() { return desktop.runtime().boxes.size(); }

  private:
    /// A container that does nothing.
    class Form final : public UserControl {};

    bars::Axis axis_;

  public:
    bars::AlongAxis along;
    headless::Desktop desktop{testFonts()};
    RecordingWorld world{desktop};
    Lines log;
    std::function<void()> onChange = [] {};
    Lines told; ///< the names given to `propertyChanged`

  private:
    Form client_;
    std::unique_ptr<Window> form_ = world.createWindow(nullptr, client_);
    std::unique_ptr<bars::ScrollBar> bar_;
};

/// A rule that both bars obey.
class BothBars : public ::testing::TestWithParam<bars::Axis>, public OneBar {
  protected:
    BothBars() : OneBar(GetParam()) {}

    bool isVertical() const { return GetParam() == bars::Axis::vertical; }
};

inline std::string axisName(const ::testing::TestParamInfo<bars::Axis>& info) {
    return info.param == bars::Axis::vertical ? "vertical" : "horizontal";
}

} // namespace lumtex::testing
