/// Adding a row, and the cells that come with it.
#include "model/list_view.h"

#include <algorithm>

namespace lumtex {

namespace {

/// Hands out the pieces of a text between separators; empty pieces once they run out.
class Pieces {
  public:
    Pieces(StringView text, StringView separator) : rest_(text), separator_(separator) {}

    StringView next() {
        if (exhausted_)
            return {};
        // An empty separator separates nothing.
        const std::size_t end = separator_.empty() ? StringView::npos : rest_.find(separator_);
        const StringView piece = rest_.substr(0, end);
        if (end == StringView::npos)
            exhausted_ = true;
        else
            rest_.remove_prefix(end + separator_.size());
        return piece;
    }

  private:
    StringView rest_;
    StringView separator_;
    bool exhausted_ = false;
};

} // namespace

/// The style that a cell gets at its creation: a copy of the defaults that hold now.
StyleHandle lmListView::emptyItemStyle() {
    CellStyle style;
    style.ForeColor = properties_.DefaultItemForeColor;
    if (properties_.DefaultItemFont)
        style.font = properties_.DefaultItemFont->spec;
    return CellStyles::ofThread().acquire(style);
}

void lmListView::appendCell(Items& items, StringView text, StyleHandle style) {
    CompactText compact(text);
    items.append(std::move(compact), style);
}

void lmListView::growRows() {
    if (!rowsAllocated_)
        rows_.clear();
    rows_.emplace_back();
    rowsAllocated_ = true;
}

void lmListView::RowsAdd(Variant& aIndex, StringView aSplit, std::optional<StringView> aItemTexts) {
    if (ColumnsCount() == 0)
        return;
    Procedure p = procedure(u"RowsAdd");
    const bool grown = p.step([&] { growRows(); });
    if (!grown)
        return;

    p.step([&] {
        const Long columns = ColumnsCount();
        Items cells = Items::create(static_cast<std::size_t>(columns));
        rows_.back().items = cells;
        const StyleLease style(emptyItemStyle());
        Pieces pieces(aItemTexts.value_or(StringView{}), aSplit);
        for (paint_.scanIndex = 1; paint_.scanIndex <= columns; ++paint_.scanIndex)
            appendCell(cells, pieces.next(), style.handle());
    });

    const auto last = static_cast<Long>(rows_.size()) - 1;
    Long place = last;
    // A place that cannot be understood counts as out of range.
    const bool outOfRange =
        p.condition([&] { return aIndex.toDouble() < 0 || aIndex.toDouble() > last; }, true);
    if (outOfRange)
        p.step([&] { aIndex = last; });
    p.step([&] { place = aIndex.toLong(); });

    std::rotate(rows_.begin() + place, rows_.end() - 1, rows_.end());
    RowRecord& row = rows_[static_cast<std::size_t>(place)];
    row.Enabled = true;
    row.Selected = false;
    row.Checked = false;
    row.TextPosition = properties_.TextPositionDefault;
    properties_.NewIndex = place;

    if (properties_.AutoCheckScroll)
        CheckScroll();
    CheckForRedraw();
}

} // namespace lumtex
