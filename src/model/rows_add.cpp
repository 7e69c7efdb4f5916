/// Adding a row, and the cells that come with it.
#include "drawing/font_attributes.h"
#include "guards/failure_of.h"
#include "model/list_view.h"
#include "values/unit_blocks.h"

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
        const std::size_t end = separator_.empty()       ? StringView::npos
                                : separator_.size() == 1 ? indexOfUnit(rest_, separator_.front())
                                                         : rest_.find(separator_);
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

void makeNew(RowRecord& row, cTextPosition position) {
    row.Enabled = true;
    row.Selected = false;
    row.Checked = false;
    row.TextPosition = position;
}

} // namespace

/// The style that a cell gets at its creation: a copy of the defaults that hold now.
void lmListView::emptyItemStyle(std::optional<StyleLease>& style) {
    Procedure p = procedure(u"EmptyItem");
    const OLE_COLOR foreColor = properties.DefaultItemForeColor;
    // Nobody can take the font away between the reading of it and its use.
    const FontSpec* font = nullptr;
    drawing::readFontAttributes(
        properties.DefaultItemFont,
        [&](auto attribute) { return p.step(attribute); },
        [&](const FontSpec& spec) { font = &spec; });
    style.emplace(foreColor, font != nullptr ? *font : FontSpec{});
}

/// Readies `style` for the next new cell. As long as nothing fails all cells of a walk share one.
void lmListView::freshenItemStyle(std::optional<StyleLease>& style) {
    // Without a font every cell has its own failures, and the host may change the defaults at each.
    if (!style || !properties.DefaultItemFont)
        emptyItemStyle(style);
}

/// Where the row goes that stands last now; a place out of range becomes that of the last row, for the caller
/// too.
Long lmListView::placeOfNewRow(Variant& aIndex, Procedure& p) {
    // A place that cannot be understood counts as out of range.
    const bool outOfRange = p.condition(
        [&] { return aIndex.toDouble() < 0 || aIndex.toDouble() > records.upperBoundOfRows(); }, true);
    if (outOfRange)
        p.step([&] { writeBack(aIndex, records.upperBoundOfRows()); });
    Long place = 0;
    if (!p.step([&] { place = aIndex.toLong(); }))
        p.step([&] { place = records.upperBoundOfRows(); });
    return place;
}

/// As many rows behind the last, as `RowsAdd` adds them without texts.
void lmListView::addEmptyRows(Long count) {
    Long added = 0;
    // Then nothing between two of them is painted, reported or asked of the host.
    if (ColumnsCount() > 0 && properties.DefaultItemFont && !properties.AutoCheckScroll &&
        !properties.AutoRedraw && !designMode()) {
        // Where memory runs out, the other way tells.
        ignoringErrors([&] {
            const Long columns = ColumnsCount();
            std::optional<StyleLease> style;
            freshenItemStyle(style);
            for (; added < count; ++added) {
                Items cells = Items::create(static_cast<std::size_t>(columns));
                for (Long column = 1; column <= columns; ++column)
                    cells.append({}, *style);
                records.growRows();
                RowRecord& row = records.rows().back();
                row.items = std::move(cells);
                makeNew(row, properties.TextPositionDefault);
                counters.scanIndex = columns + 1;
                properties.NewIndex = records.upperBoundOfRows();
            }
        });
    }
    for (; added < count; ++added)
        RowsAdd(Long{-1}, u",", u"");
}

void lmListView::RowsAdd(Variant& aIndex, StringView aSplit, std::optional<StringView> aItemTexts) {
    if (ColumnsCount() == 0)
        return;
    Procedure p = procedure(u"RowsAdd");
    const bool grown = p.step([&] { records.growRows(); });
    if (!grown)
        return;

    p.step([&] {
        const Long columns = ColumnsCount();
        Items cells = Items::create(static_cast<std::size_t>(columns));
        records.rows().back().items = cells;
        std::optional<StyleLease> style;
        Pieces pieces(aItemTexts.value_or(StringView{}), aSplit);
        for (counters.scanIndex = 1; counters.scanIndex <= columns; ++counters.scanIndex) {
            freshenItemStyle(style);
            cells.append(pieces.next(), *style);
        }
    });

    const Long place = placeOfNewRow(aIndex, p);
    // A report above may have let host code take rows away, the new one among them.
    const bool placed = p.step([&] {
        if (place < 0 || place > records.upperBoundOfRows())
            throw RuntimeError(ErrorNumber::subscriptOutOfRange);
        records.rows().moveLastTo(static_cast<std::size_t>(place));
        makeNew(records.recordAt(place), properties.TextPositionDefault);
    });
    if (placed)
        properties.NewIndex = place;

    if (properties.AutoCheckScroll)
        CheckScroll();
    CheckForRedraw();
}

} // namespace lumtex
