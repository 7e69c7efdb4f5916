/// \file
/// A list whose drawing operations are written down.
#pragma once

#include "guards/error.h"
#include "list_fixture.h"
#include "log_comparison.h"
#include "recording_world.h"
#include "test_object.h"

namespace lumtex::testing {

/// 200 x 100 pixels, no border unless a test asks for one, fixed rows of 20 pixels, nothing sorted.
class PaintedList : public ::testing::Test {
  protected:
    PaintedList() {
        list.UserControl_InitProperties();
        list.letAutoRedraw(false);
        list.letAutoCheckScroll(false);
        list.letBorderVisible(false);
        list.letRowsDynamic(false);
        list.letRowHeight(300);
        window().place(0, 0, 200, 100);
        inside.makeIdle();
    }
    ~PaintedList() override { Error().letSilentError(false); }

    RecordingWindow& window() { return static_cast<RecordingWindow&>(list.window()); }
    RecordingSurface& drawn() { return window().recorder(); }

    void addColumns(std::initializer_list<int> widths) {
        for (const int width : widths)
            list.ColumnsAdd(u"", nullptr, nullptr, nullptr, cColumnLeft, static_cast<Single>(width * 15));
    }
    void addRows(int count, StringView texts = u"") {
        for (int i = 0; i < count; ++i)
            list.RowsAdd(Long{-1}, u",", texts);
    }
    /// Paints anew and keeps the log of that pass alone.
    const std::vector<std::string>& repaint() {
        drawn().log.clear();
        list.Redraw();
        return drawn().log;
    }
    std::vector<std::string> repainted(const std::string& prefix) {
        repaint();
        return drawn().lines(prefix);
    }
    std::uint32_t pixel(Long x, Long y) {
        raster::RasterSurface& surface = window().inner().surface();
        return surface.pixels()[static_cast<std::size_t>(y * surface.scaleWidth() + x)] & 0xFFFFFFU;
    }
    /// The mouse rests at a point of the surface.
    void mouseAt(Single x, Single y, Integer button = 0) {
        inside.letInside(true);
        inside.letPointer(x, y, button);
    }
    static PictureRef plainPicture(Long width, Long height, std::uint32_t color = 0xFF00FF00U) {
        return std::make_shared<BitmapPicture>(Bitmap(width, height, color));
    }

    headless::Desktop desktop{testFonts()};
    RecordingWorld world{desktop};
    TestHost host;
    RecordingEvents events;
    lmListView list{world, host, events};
    ListViewInspector inside{list};
};

} // namespace lumtex::testing
