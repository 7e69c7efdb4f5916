#include "accessibility/change_stream.h"

#include "interaction/cell_editor.h"
#include "render/painting.h"
#include "scroll/scroller.h"
#include "sortfind/sorter.h"

#include <algorithm>

namespace lumtex::accessibility {

namespace {

/// More cells at once are told as one change.
constexpr std::size_t mostCells = 16;
/// So often a listener that changes the list itself is called again.
constexpr int mostRounds = 16;

} // namespace

ChangeStream::ChangeStream(const AccessibleList& list, ListViewCore& core, ChangeListener listener)
    : list_(list), core_(core), listener_(std::move(listener)), numbers_(numbersNow()), shown_(shownNow()) {}

ChangeStream::Numbers ChangeStream::numbersNow() const {
    const ListReader reader(core_);
    return {.rows = reader.rows(),
            .columns = reader.columns(),
            .top = core_.scroller->vertical().Value(),
            .shift = core_.scroller->horizontal().Value(),
            .sortColumn = core_.sorter->sortColumn(),
            .sortAscending = core_.sorter->sortAscending(),
            .enabled = core_.properties.Enabled,
            .editorOpen = core_.editor->isOpen(),
            .verticalBar = reader.exists(verticalBar),
            .horizontalBar = reader.exists(horizontalBar),
            .headers = reader.hasHeaders(),
            .focus = list_.focus(),
            .passes = core_.painting->lastPass().passes};
}

ChangeStream::Shown ChangeStream::shownNow() const {
    const ListReader reader(core_);
    const PaintState& pass = core_.painting->lastPass();
    Shown shown;
    for (Long column = 1; column <= reader.columns(); ++column)
        shown.headers.push_back(reader.column(column).Text);
    const Long last = std::min(pass.lastRow + 1, reader.rows());
    for (Long number = std::max(pass.firstRow + 1, Long{1}); number <= last; ++number) {
        ShownRow row{.number = number, .selected = reader.row(number).Selected, .cells = {}};
        for (Long column = 1; column <= reader.cells(number); ++column) {
            const ListViewItem& cell = reader.cell(cellElement(number, column));
            row.cells.push_back({cell.Text(), cell.Checked()});
        }
        shown.rows.push_back(std::move(row));
    }
    return shown;
}

void ChangeStream::tell(ChangeKind kind, const Element& element, Long count) {
    changes_.push_back({kind, element, count});
}

void ChangeStream::compareNumbers(const Numbers& now) {
    const auto shows = [&](bool before, bool after, const Element& element) {
        if (before != after)
            tell(after ? ChangeKind::shown : ChangeKind::hidden, element);
    };
    if (now.columns != numbers_.columns)
        tell(ChangeKind::columnsChanged, theList);
    if (now.rows > numbers_.rows)
        tell(ChangeKind::rowsAdded, theList, now.rows - numbers_.rows);
    else if (now.rows < numbers_.rows)
        tell(ChangeKind::rowsRemoved, theList, numbers_.rows - now.rows);
    if (now.sortColumn != numbers_.sortColumn || now.sortAscending != numbers_.sortAscending)
        tell(ChangeKind::sorted, now.sortColumn >= 0 ? headerElement(now.sortColumn + 1) : theList);
    shows(numbers_.headers, now.headers, theHeaders);
    shows(numbers_.verticalBar, now.verticalBar, verticalBar);
    shows(numbers_.horizontalBar, now.horizontalBar, horizontalBar);
    shows(numbers_.editorOpen, now.editorOpen, theEditor);
    if (now.enabled != numbers_.enabled)
        tell(ChangeKind::state, theList);
    if (now.top != numbers_.top)
        tell(ChangeKind::scrolled, verticalBar);
    if (now.shift != numbers_.shift)
        tell(ChangeKind::scrolled, horizontalBar);
    if (now.focus != numbers_.focus) {
        focusMoved_ = true;
        tell(ChangeKind::focus, now.focus);
    }
}

void ChangeStream::compareShown(const Shown& now, bool sameRows) {
    if (now.headers.size() == shown_.headers.size()) {
        for (std::size_t i = 0; i < now.headers.size(); ++i)
            if (now.headers[i] != shown_.headers[i])
                tell(ChangeKind::name, headerElement(static_cast<Long>(i) + 1));
    }
    // Whose rows came, went or changed places is read anew anyway.
    if (!sameRows)
        return;
    compareSelection(now);
    compareCells(now);
}

void ChangeStream::compareSelection(const Shown& now) {
    std::vector<Long> added;
    std::vector<Long> removed;
    bool others = false;
    for (const ShownRow& row : now.rows) {
        const auto before = std::ranges::find(shown_.rows, row.number, &ShownRow::number);
        // Of a row that has just come into view only the current one can have been selected with that.
        const bool wasSelected =
            before != shown_.rows.end()
                ? before->selected
                : row.selected && !(focusMoved_ && rowElement(row.number) == list_.focus());
        if (row.selected && !wasSelected)
            added.push_back(row.number);
        else if (!row.selected && wasSelected)
            removed.push_back(row.number);
        else
            others = others || row.selected;
    }
    if (added.size() == 1 && !others)
        tell(ChangeKind::selected, rowElement(added.front()));
    else if (added.size() == 1 && removed.empty())
        tell(ChangeKind::selectionAdded, rowElement(added.front()));
    else if (added.empty() && removed.size() == 1)
        tell(ChangeKind::selectionRemoved, rowElement(removed.front()));
    else if (!added.empty() || !removed.empty())
        tell(ChangeKind::selectionChanged, theList);
}

void ChangeStream::compareCells(const Shown& now) {
    const std::size_t toldBefore = changes_.size();
    for (const ShownRow& row : now.rows) {
        const auto before = std::ranges::find(shown_.rows, row.number, &ShownRow::number);
        if (before == shown_.rows.end())
            continue;
        for (std::size_t i = 0; i < std::min(row.cells.size(), before->cells.size()); ++i) {
            const Element cell = cellElement(row.number, static_cast<Long>(i) + 1);
            if (row.cells[i].text != before->cells[i].text)
                tell(ChangeKind::name, cell);
            const Element box = checkBoxElement(cell.row, cell.column);
            if (row.cells[i].checked != before->cells[i].checked && list_.exists(box))
                tell(ChangeKind::state, box);
        }
    }
    if (changes_.size() - toldBefore > mostCells) {
        changes_.resize(toldBefore);
        tell(ChangeKind::contents, theList);
    }
}

void ChangeStream::compare() {
    const Numbers now = numbersNow();
    if (now == numbers_)
        return;
    compareNumbers(now);
    const bool sameRows = now.rows == numbers_.rows && now.columns == numbers_.columns &&
                          now.sortColumn == numbers_.sortColumn &&
                          now.sortAscending == numbers_.sortAscending;
    if (now.passes != numbers_.passes) {
        Shown shown = shownNow();
        compareShown(shown, sameRows);
        shown_ = std::move(shown);
        focusMoved_ = false;
    } else if (!sameRows) {
        shown_.rows.clear();
    }
    numbers_ = now;
}

/// False once nobody listens any more, when the list may be gone.
bool ChangeStream::deliver() {
    std::vector<Change> changes;
    changes.swap(changes_);
    for (const Change& change : changes) {
        if (closed_)
            return false;
        try {
            listener_(change);
        } catch (...) { // whoever listens has no one to tell
        }
    }
    // Its memory serves the next look.
    changes.clear();
    changes_.swap(changes);
    return !closed_;
}

void ChangeStream::look() noexcept {
    if (busy_) {
        again_ = true;
        return;
    }
    busy_ = true;
    try {
        for (int round = 0; round < mostRounds; ++round) {
            again_ = false;
            compare();
            if (!deliver() || !again_)
                break;
        }
    } catch (...) { // without memory there is nothing to tell
        changes_.clear();
    }
    busy_ = false;
}

} // namespace lumtex::accessibility
