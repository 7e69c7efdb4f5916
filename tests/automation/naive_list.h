/// \file
/// The list's content as plainly as it can be said: maps of fields, no sharing, no packing. What the random
/// operations compare the real list with.
#pragma once

#include "values/runtime_error.h"
#include "values/variant.h"

#include <cmath>
#include <limits>
#include <map>
#include <vector>

namespace lumtex::testing {

using Fields = std::map<String, Variant>; ///< values by the names of their members

/// Each operation says which failures it reports, by number and in order.
using Reports = std::vector<Long>;

class NaiveList {
  public:
    struct Row {
        Fields fields;
        std::vector<Fields> cells;
    };
    struct Column {
        Fields fields;
        Long itemsChecked = 0;
    };

    std::vector<Row> rows;
    std::vector<Column> columns;
    bool rowsAllocated = false;
    bool columnsAllocated = false;
    Long listIndex = -1;
    Long newIndex = 0;
    bool multiSelect = false;
    FontSpec itemFont;
    OLE_COLOR itemColor = 0;
    bool iconH = true; ///< whether new columns get a size at all
    bool iconW = true;
    cTextPosition textPosition = cTextPosCenter;

    Long rowsCount() const { return rowsAllocated ? static_cast<Long>(rows.size()) : 0; }
    Long columnsCount() const { return columnsAllocated ? static_cast<Long>(columns.size()) : 0; }

    void columnsAdd(const Fields& fields) {
        if (!columnsAllocated)
            columns.clear();
        columnsAllocated = true;
        if (rowsCount() >= 1)
            for (Row& row : rows)
                row.cells.push_back(newCell(u""));
        Column column = blankColumn();
        for (const auto& [name, value] : fields)
            column.fields[name] = value;
        column.fields[u"ColumnAdjustItemIcons"] = true;
        column.fields[u"ColumnItemIconH"] = iconH;
        column.fields[u"ColumnItemIconW"] = iconW;
        if (!columns.empty()) {
            const Fields& left = columns.back().fields;
            column.fields[u"ColumnLeft"] =
                static_cast<Single>(left.at(u"ColumnLeft").toDouble() + left.at(u"ColumnWidth").toDouble());
        }
        columns.push_back(column);
    }

    Reports rowsAdd(Variant& place, const std::vector<String>& texts) {
        if (columnsCount() == 0)
            return {};
        Reports reports;
        if (!rowsAllocated)
            rows.clear();
        rowsAllocated = true;
        Row row = blankRow();
        for (std::size_t column = 0; column < columns.size(); ++column)
            row.cells.push_back(newCell(column < texts.size() ? texts[column] : String()));
        row.fields[u"RowEnabled"] = true;
        row.fields[u"TextPosition"] = static_cast<Long>(textPosition);
        const auto last = static_cast<Double>(rows.size());
        Double at = last;
        try {
            const Double wanted = place.toDouble();
            if (wanted >= 0 && wanted <= last)
                at = wanted;
            else
                place = static_cast<Long>(last);
        } catch (const RuntimeError& error) {
            reports.push_back(error.number());
            place = static_cast<Long>(last);
        }
        newIndex = static_cast<Long>(std::nearbyint(at));
        rows.insert(rows.begin() + newIndex, row);
        return reports;
    }

    Reports rowsRemove(Variant& place) {
        if (!rowsAllocated)
            return {};
        Double wanted = 0;
        try {
            wanted = place.toDouble();
        } catch (const RuntimeError& error) {
            return {error.number()};
        }
        if (wanted < 1 || wanted > static_cast<Double>(rows.size()))
            return {};
        const auto row = static_cast<std::size_t>(std::nearbyint(wanted)) - 1;
        place = static_cast<Long>(row) + 1;
        for (std::size_t column = 0; column < columns.size(); ++column)
            if (rows[row].cells[column].at(u"ItemChecked").toBoolean())
                --columns[column].itemsChecked;
        rows.erase(rows.begin() + static_cast<std::ptrdiff_t>(row));
        if (rows.empty())
            rowsClear();
        return {};
    }

    Reports rowsSelectedRemove() {
        if (rows.empty())
            return {numberOf(ErrorNumber::subscriptOutOfRange)};
        std::size_t row = 0;
        while (rowsAllocated && row < rows.size()) {
            Variant place = static_cast<Long>(row) + 1;
            if (rows[row].fields.at(u"RowSelected").toBoolean())
                rowsRemove(place);
            else
                ++row;
        }
        return {};
    }

    void rowsClear() {
        rows.assign(1, blankRow());
        rowsAllocated = false;
        if (columnsCount() >= 1)
            for (Column& column : columns)
                column.itemsChecked = 0;
    }

    void columnsClear() {
        columns.assign(1, blankColumn());
        columnsAllocated = false;
    }

    Reports letColumn(const String& name, const Variant& index, const Variant& value) {
        try {
            columns[positionIn(columns, index)].fields[name] = value;
        } catch (const RuntimeError& error) {
            return {error.number()};
        }
        return {};
    }

    Reports letRow(const String& name, const Variant& index, const Variant& value) {
        Reports reports;
        if (name == u"RowSelected" && !multiSelect) {
            if (rows.empty())
                reports.push_back(numberOf(ErrorNumber::subscriptOutOfRange));
            for (Row& row : rows)
                row.fields[u"RowSelected"] = false;
        }
        try {
            rows[positionIn(rows, index)].fields[name] = value;
        } catch (const RuntimeError& error) {
            reports.push_back(error.number());
        }
        if (name == u"RowSelected" && value.toBoolean())
            for (const Long failure : scrollingTo(index))
                reports.push_back(failure);
        if (name == u"RowEnabled")
            for (Long column = 1; column <= columnsCount(); ++column)
                for (const Long failure : letCell(u"ItemEnabled", index, column, value))
                    reports.push_back(failure);
        return reports;
    }

    Reports letCell(const String& name, const Variant& row, const Variant& column, const Variant& value) {
        try {
            Fields& cell = cellAt(row, column);
            if (name == u"ItemForeColorDis" || name == u"ItemBackColorDis") {
                cell[name] = static_cast<Long>(value.toColor());
                return {};
            }
            if (name == u"ItemChecked" && cell[name] == value)
                return {};
            cell[name] = value;
        } catch (const RuntimeError& error) {
            return {error.number()};
        }
        if (name == u"ItemChecked") {
            try {
                columns[positionIn(columns, column)].itemsChecked += value.toBoolean() ? 1 : -1;
            } catch (const RuntimeError& error) {
                return {error.number()};
            }
        }
        return {};
    }

    /// `refused` says whether the host was told so.
    Reports letListIndex(Long index, bool& refused) {
        refused = false;
        if (index == -1) {
            deselectAll();
            listIndex = -1;
            return {};
        }
        if (rows.empty()) {
            refused = true;
            return index < 0 ? Reports{} : Reports{numberOf(ErrorNumber::subscriptOutOfRange)};
        }
        if (index < 0 || static_cast<std::size_t>(index) >= rows.size() ||
            !rows[static_cast<std::size_t>(index)].fields.at(u"RowEnabled").toBoolean()) {
            refused = true;
            return {};
        }
        listIndex = index;
        deselectAll();
        rows[static_cast<std::size_t>(index)].fields[u"RowSelected"] = true;
        return {};
    }

    Reports letRowIndex(Long index, bool& refused) {
        if (index == std::numeric_limits<Long>::min()) {
            refused = false;
            return Reports(2, numberOf(ErrorNumber::overflow)); // the index, and the row to scroll to
        }
        return letListIndex(index - 1, refused);
    }

    Long checkedCount(Long column) const {
        if (column >= 1 && column <= columnsCount())
            return columns[static_cast<std::size_t>(column) - 1].itemsChecked;
        Long sum = 0;
        for (const Column& each : columns)
            sum += each.itemsChecked;
        return sum;
    }

    Long selectedCount() const {
        Long count = 0;
        for (const Row& row : rows)
            count += row.fields.at(u"RowSelected").toBoolean() ? 1 : 0;
        return count;
    }

  private:
    static Row blankRow() {
        return {{{u"RowEnabled", false},
                 {u"RowSelected", false},
                 {u"RowChecked", false},
                 {u"TextPosition", Long{0}}},
                {}};
    }

    static Column blankColumn() {
        Column column;
        for (const char16_t* name : {u"ColumnText", u"ColumnTag", u"ColumnKey"})
            column.fields[name] = u"";
        for (const char16_t* name : {u"ColumnIcon", u"ColumnIconHover", u"ColumnIconDown"})
            column.fields[name] = PictureRef{};
        for (const char16_t* name : {u"ColumnLeft", u"ColumnWidth"})
            column.fields[name] = 0.0F;
        for (const char16_t* name : {u"ColumnAlignment",
                                     u"ColumnIconAlignment",
                                     u"ColumnForeColor",
                                     u"ColumnForeColorHover",
                                     u"ColumnForeColorDown"})
            column.fields[name] = Long{0};
        for (const char16_t* name : {u"ColumnAllowSorting",
                                     u"ColumnCheckBoxes",
                                     u"ColumnAdjustItemIcons",
                                     u"ColumnItemIconH",
                                     u"ColumnItemIconW"})
            column.fields[name] = false;
        return column;
    }

    Fields newCell(const String& text) const {
        return {
            {u"ItemText", text},
            {u"ItemIcon", PictureRef{}},
            {u"ItemIconSelected", PictureRef{}},
            {u"ItemAlignment", Long{cItemLeft}},
            {u"ItemIconAlignment", Long{cItemLeft}},
            {u"ItemForeColor", static_cast<Long>(itemColor)},
            {u"ItemBackColor", u"def"},
            {u"ItemForeColorSelect", u"def"},
            {u"ItemBackColorSelect", u"def"},
            {u"ItemForeColorDis", static_cast<Long>(0x80000011U)},
            {u"ItemBackColorDis", static_cast<Long>(0x8000000FU)},
            {u"ItemAllowEdit", false},
            {u"ItemEnabled", true},
            {u"ItemFontBold", itemFont.Bold},
            {u"ItemFontItalic", itemFont.Italic},
            {u"ItemFontUnderline", itemFont.Underline},
            {u"ItemFontStrikethrough", itemFont.Strikethrough},
            {u"ItemFontSize", itemFont.Size},
            {u"ItemFontName", itemFont.Name},
            {u"ItemChecked", false},
            {u"ItemTag", Variant{}},
            {u"ItemToolTip", u""},
        };
    }

    /// The element that an index counted from 1 names.
    template <class Array>
    static std::size_t positionIn(const Array& array, const Variant& index) {
        const Double position = std::nearbyint(index.toDouble() - 1);
        const bool tooBig =
            std::fabs(position) > std::numeric_limits<Long>::max() + (position < 0 ? 1.0 : 0.0);
        if (tooBig)
            throw RuntimeError(ErrorNumber::overflow);
        if (position < 0 || position >= static_cast<Double>(array.size()))
            throw RuntimeError(ErrorNumber::subscriptOutOfRange);
        return static_cast<std::size_t>(position);
    }

    Fields& cellAt(const Variant& row, const Variant& column) {
        Row& record = rows[positionIn(rows, row)];
        if (column.isString())
            throw RuntimeError(ErrorNumber::invalidProcedureCall);
        const Long position = column.toLong();
        if (position < 1 || static_cast<std::size_t>(position) > record.cells.size())
            throw RuntimeError(ErrorNumber::subscriptOutOfRange);
        return record.cells[static_cast<std::size_t>(position) - 1];
    }

    /// What fails where a selected row is compared with the view, and then scrolled to.
    static Reports scrollingTo(const Variant& index) {
        Reports reports;
        try {
            index.toDouble();
        } catch (const RuntimeError& error) {
            return {error.number()};
        }
        try {
            static_cast<void>(zeroBased(index));
        } catch (const RuntimeError& error) {
            reports.push_back(error.number());
        }
        return reports;
    }

    /// A cleared list keeps what its blank element says.
    void deselectAll() {
        if (rowsCount() == 0)
            return;
        for (Row& row : rows)
            row.fields[u"RowSelected"] = false;
    }
};

} // namespace lumtex::testing
