/// \file
/// A list on a simulated desktop.
#pragma once

#include "list_view_inspector.h"
#include "recording_events.h"
#include "test_fonts.h"
#include "test_host.h"
#include "worlds/headless/desktop.h"
#include "worlds/headless/headless_window.h"

#include <gtest/gtest.h>

namespace lumtex::testing {

/// An initialised list of 300 x 200 pixels at (100, 100) on its desktop, without rows and columns.
class ListFixture : public ::testing::Test {
  protected:
    ListFixture() {
        events.depth = [this] { return desktop.yieldDepth(); };
        list.UserControl_InitProperties();
        list.window().place(100, 100, 300, 200);
        inside.makeIdle();
    }

    headless::HeadlessWindow& window() { return static_cast<headless::HeadlessWindow&>(list.window()); }
    raster::RasterSurface& surface() { return window().surface(); }

    /// 0xRRGGBB of one pixel of the list's own surface.
    std::uint32_t pixel(Long x, Long y) {
        return surface().pixels()[static_cast<std::size_t>(y * surface().scaleWidth() + x)] & 0xFFFFFFU;
    }

    /// How many times the screen was told of a new picture: once for each pass that was not turned away.
    int paintsOf(const std::function<void()>& action) {
        const int before = window().presented();
        action();
        return window().presented() - before;
    }

    /// Columns of the given widths in pixels, without text.
    void addColumns(std::initializer_list<int> widths) {
        for (const int width : widths)
            list.ColumnsAdd(u"", nullptr, nullptr, nullptr, cColumnLeft, static_cast<Single>(width * 15));
    }
    void addRows(int count, StringView texts = u"") {
        for (int i = 0; i < count; ++i)
            list.RowsAdd(Long{-1}, u",", texts);
    }

    std::size_t reportCount() { return desktop.runtime().boxes.size(); }
    /// "13 ItemText" for the last report.
    std::string lastReport() {
        const std::string text = toUtf8(desktop.runtime().boxes.back().text);
        const std::size_t number = text.find(": ") + 2;
        const std::size_t procedure = text.find('/', text.find("Line/Procedure: ") + 6) + 1;
        return text.substr(number, text.find('\r') - number) + " " +
               text.substr(procedure, text.find('\r', procedure) - procedure);
    }

    headless::Desktop desktop{testFonts()};
    TestHost host;
    RecordingEvents events;
    lmListView list{desktop, host, events};
    ListViewInspector inside{list};
};

/// Where a text box lies, in whole pixels of its parent.
template <class Box>
Rect areaOf(const Box& box) {
    return {static_cast<Long>(box.Left()),
            static_cast<Long>(box.Top()),
            static_cast<Long>(box.Left() + box.Width()),
            static_cast<Long>(box.Top() + box.Height())};
}

/// 0xRRGGBB of a colour that is written 0xBBGGRR.
constexpr std::uint32_t rgbOf(OLE_COLOR color) {
    return (std::uint32_t{redOf(color)} << 16U) | (std::uint32_t{greenOf(color)} << 8U) | blueOf(color);
}

} // namespace lumtex::testing
