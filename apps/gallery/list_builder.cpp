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

bool ListBuilder::looksNumeric(Long column) const {
    bool any = false;
    for (Long row = 1; row <= std::min(list_.RowsCount(), sampledRows); ++row) {
        const String text = list_.ItemText(row, column);
        if (text.empty())
            continue;
        if (!Variant(text).isNumeric())
            return false;
        any = true;
    }
    return any;
}

void ListBuilder::finish() {
    Surface& surface = list_.window().surface();
    surface.setFont(list_.DefaultItemFont()->spec);
    for (Long column = firstFieldColumn; column <= list_.ColumnsCount(); ++column) {
        Single width = surface.textWidth(list_.ColumnText(column)) + 14;
        for (Long row = 1; row <= std::min(list_.RowsCount(), sampledRows); ++row)
            width = std::max(width, surface.textWidth(list_.ItemText(row, column)));
        const Single room = column == firstFieldColumn ? 34 : 16; // edges, and the icon
        list_.letColumnWidth(column, std::clamp((width + room) * twipsPerPixel, narrowest, widest));
        if (looksNumeric(column)) {
            list_.letColumnAlignment(column, cColumnRight);
            for (Long row = 1; row <= list_.RowsCount(); ++row)
                list_.letItemAlignment(row, column, cItemRight);
        }
    }
    list_.letAutoCheckScroll(true);
    list_.letAutoRedraw(true);
}

} // namespace lumtex::gallery
