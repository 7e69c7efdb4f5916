/// \file
/// A list on a simulated desktop, and the means to look inside it.
#pragma once

#include "model/list_view.h"
#include "recording_events.h"
#include "test_fonts.h"
#include "test_host.h"
#include "worlds/headless/desktop.h"
#include "worlds/headless/headless_window.h"

#include <gtest/gtest.h>

namespace lumtex {

/// The private state, for tests alone.
class ListViewInspector {
  public:
    explicit ListViewInspector(lmListView& list) : list_(list) {}

    PaintState& paint() { return list_.paint_; }
    MouseState& mouse() { return list_.mouse_; }
    HeaderPressState& header() { return list_.headerPress_; }
    EditState& edit() { return list_.edit_; }
    SelectionState& selection() { return list_.selection_; }
    ItemMoveState& itemMove() { return list_.move_; }
    ScrollState& scroll() { return list_.scroll_; }
    SortState& sort() { return list_.sort_; }
    FindState& find() { return list_.find_; }
    ContentState& content() { return list_.content_; }
    Properties& properties() { return list_.properties_; }
    std::vector<RowRecord>& rows() { return list_.rows_; }
    std::vector<std::unique_ptr<ColumnHeader>>& columns() { return list_.columns_; }
    lmVScroll& vertical() { return *list_.VS; }
    lmHScroll& horizontal() { return *list_.HS; }
    TextBox& editor() { return *list_.txtEdit; }
    GuideLine& guide() { return *list_.Line1; }
    Timer& mouseInTimer() { return *list_.tmrMouseIn; }
    Timer& mouseActionTimer() { return *list_.tmrMouseAction; }
    const ListViewArtwork& artwork() { return list_.artwork_; }
    bool ArrDim(const Variant& which) { return list_.ArrDim(which); }
    Long ColumnHeight() { return list_.ColumnHeight(); }
    Long VisibleItems() { return list_.VisibleItems(); }
    OLE_COLOR aktValueColor() { return list_.aktValueColor(); }
    void CheckForRedraw() { list_.CheckForRedraw(); }
    void verticalChange() { list_.VS_Change(); }
    void verticalScroll() { list_.VS_Scroll(); }
    void horizontalScroll() { list_.HS_Scroll(); }
    Single topInset() const { return list_.topInset_; }
    void MouseOut(Single x, Single y) { list_.MouseOut(x, y); }
    void SetNewSelected(Long index) { list_.SetNewSelected(index); }
    /// In notches, up above 0.
    void turnWheel(Integer rotation) {
        Integer keys = 0;
        Single x = 0;
        Single y = 0;
        list_.Wheel1_WheelScroll(rotation, keys, x, y);
    }
    void MoveItemUp(Long row, Long count) { list_.MoveItemUp(row, count); }
    void MoveItemDown(Long row, Long count) { list_.MoveItemDown(row, count); }
    QI* tips() { return list_.tips_.get(); }
    const ControlLife& life() const { return list_.life_; }
    void letAllowItemMoving(bool value) { list_.letAllowItemMoving(value); }

    /// What `RowsClear` and `ColumnsClear` leave behind: one blank element and the flag False.
    void clearRows() {
        list_.rows_.clear();
        list_.rows_.emplace_back();
        list_.rowsAllocated_ = false;
    }
    void clearColumns() {
        list_.columns_.clear();
        list_.columns_.emplace_back();
        list_.columnsAllocated_ = false;
    }

  private:
    lmListView& list_;
};

} // namespace lumtex

namespace lumtex::testing {

/// An initialised list of 300 x 200 pixels at (100, 100) on its desktop, without rows and columns.
class ListFixture : public ::testing::Test {
  protected:
    ListFixture() {
        events.depth = [this] { return desktop.yieldDepth(); };
        list.UserControl_InitProperties();
        list.window().place(100, 100, 300, 200);
        inside.sort().sortColumn = -1;
        inside.header() = {false, -1, -1, -1, -1, false};
    }

    HeadlessWindow& window() { return static_cast<HeadlessWindow&>(list.window()); }
    RasterSurface& surface() { return window().surface(); }

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

    Desktop desktop{testFonts()};
    TestHost host;
    RecordingEvents events;
    lmListView list{desktop, host, events};
    ListViewInspector inside{list};
};

/// 0xRRGGBB of a colour that is written 0xBBGGRR.
constexpr std::uint32_t rgbOf(OLE_COLOR color) {
    return (std::uint32_t{redOf(color)} << 16U) | (std::uint32_t{greenOf(color)} << 8U) | blueOf(color);
}

} // namespace lumtex::testing
