/// Birth of the control, and the way from its public members to its parts.
#include "model/list_view.h"

#include "interaction/cell_editor.h"
#include "interaction/header_gesture.h"
#include "interaction/mouse.h"
#include "interaction/row_drag.h"
#include "interaction/selection.h"
#include "render/painting.h"
#include "scroll/scroller.h"
#include "sortfind/finder.h"
#include "sortfind/sorter.h"

namespace lumtex {

namespace {

/// The client area at design time, in twips.
constexpr Single designWidth = 4635;
constexpr Single designHeight = 3900;

const FontSpec designFont{.Name = u"Verdana", .Size = 9.75F};

/// Column 0 counted from 1, and no column as it is.
constexpr Long fromOne(Long column) {
    return column == -1 ? -1 : column + 1;
}

} // namespace

lmListView::lmListView(World& world, Host& host, lmListViewEvents& events, Window* parent)
    : ListViewRecords(*this, destroy, world, host, events) {
    lblFont = std::make_shared<Font>(designFont);
    ListViewCore& core = *this;
    core.listWindow = world.createWindow(parent, *this);
    scroller = std::make_unique<Scroller>(core);
    editor = std::make_unique<CellEditor>(core);
    headerGesture = std::make_unique<HeaderGesture>(core);
    mouse = std::make_unique<Mouse>(core);
    rowDrag = std::make_unique<RowDrag>(core);
    selection = std::make_unique<Selection>(core);
    painting = std::make_unique<Painting>(core);
    sorter = std::make_unique<Sorter>(core);
    finder = std::make_unique<Finder>(core);

    // The size of the design comes before the properties, so it must not paint.
    painting->hold();
    const Surface& surface = core.listWindow->surface();
    core.listWindow->place(0,
                           0,
                           scaleX(surface, designWidth, Unit::twips, Unit::pixels),
                           scaleY(surface, designHeight, Unit::twips, Unit::pixels));
    painting->release();
}

// clang-format off
void lmListView::Redraw() { painting->Redraw(); }
void lmListView::ClearListView() { painting->ClearListView(); }
void lmListView::AutoColumnSize(std::span<const Variant> lColumns) { painting->AutoColumnSize(lColumns); }

void lmListView::SetEdit(const Variant& Row, const Variant& Column) { editor->SetEdit(Row, Column); }
void lmListView::StopEdit() { editor->StopEdit(); }
WindowHandle lmListView::hwndEdit() const { return editor->hWnd(); }

void lmListView::Sort(Long Column, cSortMode SortMode, cSortType SortType) { sorter->Sort(Column, SortMode, SortType); }
Long lmListView::SortColumnIndex() const { return fromOne(sorter->sortColumn()); }

void lmListView::CheckScroll() { scroller->CheckScroll(); }
Long lmListView::TopIndex() const { return scroller->TopIndex(); }
void lmListView::letTopIndex(Long topIndex) { scroller->letTopIndex(topIndex); }
void lmListView::UserControl_Resize() { scroller->resize(); }
bool lmListView::UserControl_Wheel(Long Rotation, Integer Shift, Single X, Single Y) { return scroller->wheel(Rotation, Shift, X, Y); }

Long lmListView::ListIndex() { return selection->ListIndex(); }
void lmListView::letListIndex(Long index) { selection->letListIndex(index); }
Long lmListView::RowIndex() { return selection->RowIndex(); }
void lmListView::letRowIndex(Long index) { selection->letRowIndex(index); }
void lmListView::UserControl_KeyDown(Integer KeyCode, Integer Shift) { selection->keyDown(KeyCode, Shift); }
void lmListView::UserControl_KeyUp(Integer KeyCode, Integer Shift) { selection->keyUp(KeyCode, Shift); }

Long lmListView::ColumnIndex() const { return fromOne(headerGesture->currentColumn()); }
void lmListView::UserControl_MouseDown(Integer Button, Integer Shift, Single X, Single Y) { mouse->down(Button, Shift, X, Y); }
void lmListView::UserControl_MouseMove(Integer Button, Integer Shift, Single X, Single Y) { mouse->move(Button, Shift, X, Y); }
void lmListView::UserControl_MouseUp(Integer Button, Integer Shift, Single X, Single Y) { mouse->up(Button, Shift, X, Y); }
void lmListView::UserControl_DblClick() { mouse->doubleClick(); }
// clang-format on

FindResults lmListView::FindItem(
    StringView sFind, cFindBegin cBegin, cFindCompare cCompare, StringView sColumns, StringView sRows) {
    Procedure p = procedure(u"FindItem");
    return p.value<FindResults>([&] {
        String columns(sColumns);
        String rows(sRows);
        return FindItem(sFind, cBegin, cCompare, columns, rows);
    });
}

FindResults lmListView::FindItem(
    StringView sFind, cFindBegin cBegin, cFindCompare cCompare, String& sColumns, String& sRows) {
    return finder->FindItem(sFind, cBegin, cCompare, sColumns, sRows);
}

} // namespace lumtex
