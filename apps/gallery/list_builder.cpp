#include "list_builder.h"

#include "icons.h"

#include <algorithm>

namespace lumtex::gallery {

namespace {

/// Stands between the fields of a row on their way into the list; no text holds it.
constexpr char16_t unitSeparator = 0x1F;
constexpr StringView separator(&unitSeparator, 1);

constexpr Single twipsPerPixel = 15;
constexpr Single checkBoxColumn = 26 * twipsPerPixel;
constexpr Single edges = 16; // pixels beside a text
constexpr Single narrowest = 60 * twipsPerPixel;
constexpr Single widest = 230 * twipsPerPixel;
constexpr Long firstFieldColumn = 2;

/// Rows that decide how wide a column is and whether it holds numbers.
constexpr Long sampledRows = 200;
constexpr Long rowsBetweenReports = 50'000;

/// No list is made wider than this, whatever a file holds.
constexpr Long mostColumns = 500;

} // namespace

ListBuilder::ListBuilder(lmListView& list, std::function<void(Long)> progress)
    : list_(list), progress_(std::move(progress)) {}

void ListBuilder::addColumn(const String& title) {
    list_.ColumnsAdd(title, nullptr, nullptr, nullptr, cColumnLeft, narrowest, true);
}

void ListBuilder::begin(const std::vector<String>& titles) {
    list_.letAutoRedraw(false);
    list_.letAutoCheckScroll(false);
    list_.letStyle(cCheckBoxes);
    list_.ColumnsAdd(u"", nullptr, nullptr, nullptr, cColumnLeft, checkBoxColumn);
    list_.letColumnCheckBoxes(1, true);
    for (const String& title : titles)
        addColumn(title);
}

void ListBuilder::add(const std::vector<String>& fields, const PictureRef& icon) {
    line_.clear();
    for (const String& field : fields) {
        line_ += unitSeparator;
        for (const char16_t unit : field) {
            if (unit == unitSeparator)
                continue;
            line_ += unit;
            // The list draws "&" as a prefix and "&&" as the character.
            if (unit == u'&')
                line_ += unit;
        }
    }
    const auto wanted = std::min(static_cast<Long>(fields.size()) + 1, mostColumns);
    while (list_.ColumnsCount() < wanted)
        addColumn(u"Column " + Variant(list_.ColumnsCount()).toText());
    list_.RowsAdd(Long{-1}, separator, line_);
    if (icon)
        list_.setItemIcon(list_.NewIndex() + 1, firstFieldColumn, icon);
    if (++rows_ % rowsBetweenReports == 0)
        progress_(rows_);
}

namespace {

bool looksNumeric(lmListView& list, Long column) {
    bool any = false;
    for (Long row = 1; row <= std::min(list.RowsCount(), sampledRows); ++row) {
        const String text = list.ItemText(row, column);
        if (text.empty())
            continue;
        if (!Variant(text).isNumeric())
            return false;
        any = true;
    }
    return any;
}

} // namespace

void fitColumns(lmListView& list, Long first, Single extraOfFirst) {
    Surface& surface = list.window().surface();
    surface.setFont(list.DefaultItemFont()->spec);
    for (Long column = first; column <= list.ColumnsCount(); ++column) {
        Single width = surface.textWidth(list.ColumnText(column)) + 14;
        for (Long row = 1; row <= std::min(list.RowsCount(), sampledRows); ++row)
            width = std::max(width, surface.textWidth(list.ItemText(row, column)));
        width += edges + (column == first ? extraOfFirst : 0);
        list.letColumnWidth(column, std::clamp(width * twipsPerPixel, narrowest, widest));
        if (looksNumeric(list, column)) {
            list.letColumnAlignment(column, cColumnRight);
            for (Long row = 1; row <= list.RowsCount(); ++row)
                list.letItemAlignment(row, column, cItemRight);
        }
    }
}

void ListBuilder::finish() {
    constexpr Single iconWidth = 18;
    fitColumns(list_, firstFieldColumn, iconWidth);
    list_.letAutoCheckScroll(true);
    list_.letAutoRedraw(true);
}

} // namespace lumtex::gallery
