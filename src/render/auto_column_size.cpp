/// Fitting columns to their texts.
#include "guards/ignoring_errors.h"
#include "model/list_view.h"

#include <algorithm>

namespace lumtex {

namespace {

/// Pixels beside the widest text.
constexpr Single margin = 10;

/// The arguments as text, each with a comma behind it; one without a text form is left out.
String columnSpec(std::span<const Variant> lColumns) {
    String spec;
    for (const Variant& column : lColumns)
        ignoringErrors([&] { spec += (column.isNull() ? String() : column.toText()) + u","; });
    return spec;
}

} // namespace

void lmListView::AutoColumnSize(std::span<const Variant> lColumns) {
    if (ColumnsCount() == 0)
        return;
    Procedure p = procedure(u"AutoColumnSize");
    const String spec = columnSpec(lColumns);
    const Long columns = ColumnsCount();
    for (Long column = 0; column < columns; ++column) {
        yield(p);
        // Wanted: the number is looked for as a text, so that 12 fits column 2 too.
        const bool meant = p.condition(
            [&] { return spec.empty() || spec.find(Variant(column + 1).toText() + u",") != String::npos; },
            true);
        if (meant)
            fitColumn(column, p);
    }
    // Wanted: the places of the columns behind and the scroll bars stay as they are.
    Redraw();
}

void lmListView::fitColumn(Long column, Procedure& p) {
    Single widest = 0;
    for (Long row = 1; row <= RowsCount(); ++row)
        widest = std::max(widest, ItemTextWidth(row, column + 1));
    Single header = 0;
    p.step([&] { header = window_->surface().textWidth(columnAt(column).Text); });
    // Wanted: the header wins already where its text is less than the margin narrower.
    if (header + margin > widest)
        widest = header;
    widest += margin;
    p.step([&] { columnAt(column).Width = scaleX(window_->surface(), widest, pixels, twips); });
}

} // namespace lumtex
