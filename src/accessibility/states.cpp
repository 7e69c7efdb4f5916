/// What is true of an element.
#include "accessibility/accessible_list.h"
#include "accessibility/list_reader.h"
#include "interaction/header_gesture.h"
#include "interaction/mouse.h"
#include "scroll/scroller.h"
#include "sortfind/sorter.h"

namespace lumtex::accessibility {

namespace {

constexpr States when(bool condition, States state) {
    return condition ? state : 0;
}

States statesOfRow(const ListReader& reader, const Element& element, bool focusedHere) {
    const RowRecord& row = reader.row(element.row);
    const bool usable = row.Enabled && reader.core().properties.Enabled;
    return when(!usable, unavailable) | when(usable, focusable | selectable) |
           when(usable && reader.core().properties.MultiSelect, multiSelectable) |
           when(row.Selected, selected) | when(focusedHere, focused);
}

States statesOfCell(const ListReader& reader, const Element& element) {
    const bool usable = reader.isEnabled(element);
    const ListViewItem& cell = reader.cell(element);
    const RowRecord& row = reader.row(element.row);
    // The selection shows in the first column, or in all.
    const bool shows = reader.core().properties.FullRowSelect || element.column == 1;
    const bool box = reader.hasCheckBox(element.column);
    States states = when(!usable, unavailable) | when(reader.column(element.column).Width <= 0, invisible) |
                    when(box, checkable) | when(box && cell.Checked(), checked);
    if (element.kind == Kind::cell)
        states |= when(usable && cell.style().AllowEdit, editable) | when(usable, selectable) |
                  when(row.Selected && shows, selected);
    return states;
}

States statesOfHeader(const ListReader& reader, const Element& element) {
    const ListViewCore& core = reader.core();
    const Long column = element.column - 1;
    const bool sorted = core.sorter->sortColumn() == column;
    const HeaderLook look = core.headerGesture->lookOf(column);
    return when(!core.properties.Enabled, unavailable) |
           when(reader.column(element.column).Width <= 0, invisible) |
           when(sorted, core.sorter->sortAscending() != 0 ? sortedUp : sortedDown) |
           when(look != HeaderLook::normal, hot) | when(look == HeaderLook::down, pressed);
}

} // namespace

States AccessibleList::states(const Element& element) const {
    if (!exists(element))
        return gone;
    const ListReader reader(*core_);
    const bool enabled = core_->properties.Enabled;
    const bool focusedHere = focus() == element;
    States states = 0;
    switch (element.kind) {
    case Kind::nothing:
        return gone;
    case Kind::list:
        states = when(enabled, focusable) | when(!enabled, unavailable) |
                 when(!core_->listWindow->Visible(), invisible) |
                 when(core_->properties.MultiSelect, multiSelectable) | when(focusedHere, focused);
        break;
    case Kind::row:
        states = statesOfRow(reader, element, focusedHere);
        break;
    case Kind::cell:
    case Kind::checkBox:
        states = statesOfCell(reader, element);
        break;
    case Kind::headers:
        states = when(!enabled, unavailable);
        break;
    case Kind::header:
        states = statesOfHeader(reader, element);
        break;
    case Kind::editor:
        states = focusable | editable | when(focusedHere, focused);
        break;
    default:
        states = when(!enabled || !reader.bar(element).Enabled(), unavailable);
        break;
    }
    if ((states & invisible) == 0 && !place(element))
        states |= offscreen;
    return states;
}

std::optional<AccessibleList::Range> AccessibleList::range(const Element& element) const {
    if (!exists(element) || (element.kind != Kind::verticalBar && element.kind != Kind::horizontalBar))
        return std::nullopt;
    const bars::ScrollBar& bar = ListReader(*core_).bar(element);
    return Range{bar.Min(), bar.Value(), bar.Max(), bar.SmallChange(), bar.LargeChange()};
}

} // namespace lumtex::accessibility
