/// \file
/// A list on a simulated desktop, and the means to look inside it.
#pragma once

#include "interaction/cell_editor.h"
#include "interaction/header_gesture.h"
#include "interaction/mouse.h"
#include "interaction/row_drag.h"
#include "interaction/selection.h"
#include "model/list_view.h"
#include "recording_events.h"
#include "render/painting.h"
#include "scroll/scroller.h"
#include "sortfind/finder.h"
#include "sortfind/sorter.h"
#include "test_fonts.h"
#include "test_host.h"
#include "worlds/headless/desktop.h"
#include "worlds/headless/headless_guide_line.h"
#include "worlds/headless/headless_text_box.h"
#include "worlds/headless/headless_window.h"

#include <gtest/gtest.h>

namespace lumtex {

/// The private state, for tests alone.
class ListViewInspector {
  public:
    explicit ListViewInspector(lmListView& list) : list_(list) {}

    ListViewCore& core() { return list_; }
    PaintState& paint() { return core().painting->state_; }
    WalkCounters& counters() { return core().counters; }
    Mouse::State& mouse() { return core().mouse->state_; }
    HeaderGesture::State& header() { return core().headerGesture->state_; }
    CellEditor::State& edit() { return core().editor->edit_; }
    Selection::State& selection() { return core().selection->state_; }
    Long& moveTargetRow() { return core().rowDrag->moveTargetRow_; }
    Scroller::State& scroll() { return core().scroller->state_; }
    Sorter::State& sort() { return core().sorter->state_; }
    Finder::State& find() { return core().finder->state_; }
    Properties& properties() { return core().properties; }
    std::vector<RowRecord>& rows() { return core().records.rows_; }
    std::vector<std::unique_ptr<ColumnHeader>>& columns() { return core().records.columns_; }
    lmVScroll& vertical() { return core().scroller->vertical(); }
    lmHScroll& horizontal() { return core().scroller->horizontal(); }
    TextBox& anyEditor() { return *core().editor->txtEdit_; }
    GuideLine& anyGuide() { return *core().headerGesture->Line1_; }
    /// Of a list on a Desktop.
    HeadlessTextBox& editor() { return static_cast<HeadlessTextBox&>(anyEditor()); }
    HeadlessGuideLine& guide() { return static_cast<HeadlessGuideLine&>(anyGuide()); }
    Timer& mouseInTimer() { return *core().mouse->tmrMouseIn_; }
    Timer& mouseActionTimer() { return *core().mouse->tmrMouseAction_; }
    const ListViewArtwork& artwork() { return core().painting->artwork(); }
    bool ArrDim(const Variant& which) { return list_.ArrDim(which); }
    Long ColumnHeight() { return core().painting->ColumnHeight(); }
    Long VisibleItems() { return core().scroller->VisibleItems(); }
    OLE_COLOR aktValueColor() { return core().painting->aktValueColor(); }
    void CheckForRedraw() { core().CheckForRedraw(); }
    void verticalChange() { core().scroller->VS_Change(); }
    void verticalScroll() { core().scroller->VS_Scroll(); }
    void horizontalScroll() { core().scroller->HS_Scroll(); }
    Single topInset() { return core().topInset(); }
    void MouseOut(Single x, Single y) { core().mouse->MouseOut(x, y); }
    void SetNewSelected(Long index) { core().selection->SetNewSelected(index); }
    /// In notches, up above 0.
    void turnWheel(Integer rotation) {
        Integer keys = 0;
        Single x = 0;
        Single y = 0;
        core().scroller->Wheel1_WheelScroll(rotation, keys, x, y);
    }
    void MoveItemUp(Long row, Long count) { core().rowDrag->MoveItemUp(row, count); }
    void MoveItemDown(Long row, Long count) { core().rowDrag->MoveItemDown(row, count); }
    QI* tips() { return core().mouse->tips_.get(); }
    const ControlLife& life() { return core().life(); }
    void letAllowItemMoving(bool value) { list_.letAllowItemMoving(value); }

    /// No column is pressed, hovered over, resized or sorted: as saved settings leave it, where a new list
    /// starts with zeros.
    void makeIdle() {
        header() = {.pressPending = false,
                    .currentColumn = -1,
                    .pressedColumn = -1,
                    .hoverColumn = -1,
                    .resizeColumn = -1,
                    .resizing = false};
        sort().sortColumn = -1;
    }

    /// What `RowsClear` and `ColumnsClear` leave behind.
    void clearRows() { core().records.clearRows(); }
    void clearColumns() { core().records.clearColumns(); }

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
        inside.makeIdle();
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
