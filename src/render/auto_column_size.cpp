/// Fitting columns to their texts.
#include "guards/failure_of.h"
#include "model/list_view.h"
#include "render/painting.h"

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

void Painting::AutoColumnSize(std::span<const Variant> lColumns) {
    if (records_.ColumnsCount() == 0)
        return;
    Procedure p = procedure(u"AutoColumnSize");
    const String spec = columnSpec(lColumns);
    const Long columns = records_.ColumnsCount();
    for (Long column = 0; column < columns; ++column) {
        core_.yield(p);
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

void Painting::fitColumn(Long column, Procedure& p) {
    Single widest = 0;
    for (Long row = 1; row <= records_.RowsCount(); ++row)
        widest = std::max(widest, list_.ItemTextWidth(row, column + 1));
    Single header = 0;
    p.step([&] { header = window_.surface().textWidth(records_.columnAt(column).Text); });
    // Wanted: the header wins already where its text is less than the margin narrower.
    if (header + margin > widest)
        widest = header;
    widest += margin;
    p.step([&] {
        records_.columnAt(column).Width = scaleX(window_.surface(), widest, Unit::pixels, Unit::twips);
    });
}

} // namespace lumtex
