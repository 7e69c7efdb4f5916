/// \file
/// The list's records, and the accessors of their fields: columns, rows, cells.
#pragma once

#include "model/list_view_properties.h"
#include "records/enumerations.h"

#include <type_traits>

namespace lumtex {

/// Reads and writes one field at a time. `Row`, `Column` and `Index` count from 1. A record that is not there
/// is reported, and a get returns its type's zero.
class ListViewRecords : public ListViewProperties {
  public:
    // Counts

    Long RowSelectedCount();
    Long RowsCount() const { return records.RowsCount(); }
    Long ColumnsCount() const { return records.ColumnsCount(); }
    /// Checked cells of a column; of all columns where `Column` is out of range.
    Long ItemsCheckedCount(Long Column = 0);

    // Columns

    String ColumnText(const Variant& Index) { return columnGet(u"ColumnText", Index, &ColumnHeader::Text); }
    void letColumnText(const Variant& Index, StringView text) {
        columnLet(u"ColumnText", Index, &ColumnHeader::Text, text);
    }
    PictureRef ColumnIcon(const Variant& Index) {
        return columnGet(u"ColumnIcon", Index, &ColumnHeader::Icon);
    }
    void setColumnIcon(const Variant& Index, PictureRef icon) {
        columnLet(u"ColumnIcon", Index, &ColumnHeader::Icon, std::move(icon));
    }
    PictureRef ColumnIconHover(const Variant& Index) {
        return columnGet(u"ColumnIconHover", Index, &ColumnHeader::IconHover);
    }
    void setColumnIconHover(const Variant& Index, PictureRef icon) {
        columnLet(u"ColumnIconHover", Index, &ColumnHeader::IconHover, std::move(icon));
    }
    PictureRef ColumnIconDown(const Variant& Index) {
        return columnGet(u"ColumnIconDown", Index, &ColumnHeader::IconDown);
    }
    void setColumnIconDown(const Variant& Index, PictureRef icon) {
        columnLet(u"ColumnIconDown", Index, &ColumnHeader::IconDown, std::move(icon));
    }
    Single ColumnLeft(const Variant& Index) { return columnGet(u"ColumnLeft", Index, &ColumnHeader::Left); }
    Single ColumnWidth(const Variant& Index) {
        return columnGet(u"ColumnWidth", Index, &ColumnHeader::Width);
    }
    void letColumnWidth(const Variant& Index, Single width) {
        columnLet(u"ColumnWidth", Index, &ColumnHeader::Width, width);
    }
    String ColumnTag(const Variant& Index) { return columnGet(u"ColumnTag", Index, &ColumnHeader::Tag); }
    void letColumnTag(const Variant& Index, StringView tag) {
        columnLet(u"ColumnTag", Index, &ColumnHeader::Tag, tag);
    }
    String ColumnKey(const Variant& Index) { return columnGet(u"ColumnKey", Index, &ColumnHeader::Key); }
    void letColumnKey(const Variant& Index, StringView key) {
        columnLet(u"ColumnKey", Index, &ColumnHeader::Key, key);
    }
    cColumnHeaderAlign ColumnAlignment(const Variant& Index) {
        return columnGet(u"ColumnAlignment", Index, &ColumnHeader::Alignment);
    }
    void letColumnAlignment(const Variant& Index, cColumnHeaderAlign alignment) {
        columnLet(u"ColumnAlignment", Index, &ColumnHeader::Alignment, alignment);
    }
    cColumnHeaderAlign ColumnIconAlignment(const Variant& Index) {
        return columnGet(u"ColumnIconAlignment", Index, &ColumnHeader::IconAlignment);
    }
    void letColumnIconAlignment(const Variant& Index, cColumnHeaderAlign alignment) {
        columnLet(u"ColumnIconAlignment", Index, &ColumnHeader::IconAlignment, alignment);
    }
    OLE_COLOR ColumnForeColor(const Variant& Index) {
        return columnGet(u"ColumnForeColor", Index, &ColumnHeader::ForeColor);
    }
    void letColumnForeColor(const Variant& Index, OLE_COLOR color) {
        columnLet(u"ColumnForeColor", Index, &ColumnHeader::ForeColor, color);
    }
    OLE_COLOR ColumnForeColorHover(const Variant& Index) {
        return columnGet(u"ColumnForeColorHover", Index, &ColumnHeader::ForeColorHover);
    }
    void letColumnForeColorHover(const Variant& Index, OLE_COLOR color) {
        columnLet(u"ColumnForeColorHover", Index, &ColumnHeader::ForeColorHover, color);
    }
    OLE_COLOR ColumnForeColorDown(const Variant& Index) {
        return columnGet(u"ColumnForeColorDown", Index, &ColumnHeader::ForeColorDown);
    }
    void letColumnForeColorDown(const Variant& Index, OLE_COLOR color) {
        columnLet(u"ColumnForeColorDown", Index, &ColumnHeader::ForeColorDown, color);
    }
    bool ColumnAllowSorting(const Variant& Index) {
        return columnGet(u"ColumnAllowSorting", Index, &ColumnHeader::AllowSorting);
    }
    void letColumnAllowSorting(const Variant& Index, bool allow) {
        columnLet(u"ColumnAllowSorting", Index, &ColumnHeader::AllowSorting, allow);
    }
    bool ColumnCheckBoxes(const Variant& Index) {
        return columnGet(u"ColumnCheckBoxes", Index, &ColumnHeader::CheckBoxes);
    }
    void letColumnCheckBoxes(const Variant& Index, bool checkBoxes) {
        columnLet(u"ColumnCheckBoxes", Index, &ColumnHeader::CheckBoxes, checkBoxes);
    }
    bool ColumnAdjustItemIcons(const Variant& Index) {
        return columnGet(u"ColumnAdjustItemIcons", Index, &ColumnHeader::AdjustItemIcons);
    }
    void letColumnAdjustItemIcons(const Variant& Index, bool adjust) {
        columnLet(u"ColumnAdjustItemIcons", Index, &ColumnHeader::AdjustItemIcons, adjust);
    }
    /// True for any size but zero; assigning stores 0 or -1. The real sizes come from `ColumnsAdd`.
    bool ColumnItemIconH(const Variant& Index);
    void letColumnItemIconH(const Variant& Index, bool height);
    bool ColumnItemIconW(const Variant& Index);
    void letColumnItemIconW(const Variant& Index, bool width);

    // Rows

    bool RowEnabled(const Variant& Index);
    void letRowEnabled(const Variant& Index, bool enabled);
    bool RowChecked(const Variant& Index);
    void letRowChecked(const Variant& Index, bool checked);
    cTextPosition TextPosition(const Variant& Index);
    void letTextPosition(const Variant& Index, cTextPosition position);

    // Cells

    bool ItemFontBold(const Variant& Row, const Variant& Column) {
        return fontGet(u"ItemFontBold", Row, Column, &FontSpec::Bold);
    }
    void letItemFontBold(const Variant& Row, const Variant& Column, bool bold) {
        fontLet(u"ItemFontBold", Row, Column, &FontSpec::Bold, bold);
    }
    bool ItemFontItalic(const Variant& Row, const Variant& Column) {
        return fontGet(u"ItemFontItalic", Row, Column, &FontSpec::Italic);
    }
    void letItemFontItalic(const Variant& Row, const Variant& Column, bool italic) {
        fontLet(u"ItemFontItalic", Row, Column, &FontSpec::Italic, italic);
    }
    bool ItemFontUnderline(const Variant& Row, const Variant& Column) {
        return fontGet(u"ItemFontUnderline", Row, Column, &FontSpec::Underline);
    }
    void letItemFontUnderline(const Variant& Row, const Variant& Column, bool underline) {
        fontLet(u"ItemFontUnderline", Row, Column, &FontSpec::Underline, underline);
    }
    bool ItemFontStrikethrough(const Variant& Row, const Variant& Column) {
        return fontGet(u"ItemFontStrikethrough", Row, Column, &FontSpec::Strikethrough);
    }
    void letItemFontStrikethrough(const Variant& Row, const Variant& Column, bool strikethrough) {
        fontLet(u"ItemFontStrikethrough", Row, Column, &FontSpec::Strikethrough, strikethrough);
    }
    Single ItemFontSize(const Variant& Row, const Variant& Column) {
        return fontGet(u"ItemFontSize", Row, Column, &FontSpec::Size);
    }
    void letItemFontSize(const Variant& Row, const Variant& Column, Single points) {
        fontLet(u"ItemFontSize", Row, Column, &FontSpec::Size, points);
    }
    String ItemFontName(const Variant& Row, const Variant& Column) {
        return fontGet(u"ItemFontName", Row, Column, &FontSpec::Name);
    }
    void letItemFontName(const Variant& Row, const Variant& Column, StringView name) {
        fontLet(u"ItemFontName", Row, Column, &FontSpec::Name, name);
    }
    OLE_COLOR ItemForeColor(const Variant& Row, const Variant& Column) {
        return styleGet(u"ItemForeColor", Row, Column, &CellStyle::ForeColor);
    }
    void letItemForeColor(const Variant& Row, const Variant& Column, OLE_COLOR color) {
        styleLet(u"ItemForeColor", Row, Column, &CellStyle::ForeColor, color);
    }
    /// A colour, or "def" for the look that painting decides; stored as it comes.
    Variant ItemBackColor(const Variant& Row, const Variant& Column) {
        return styleGet(u"ItemBackColor", Row, Column, &CellStyle::BackColor);
    }
    void letItemBackColor(const Variant& Row, const Variant& Column, const Variant& color) {
        styleLet(u"ItemBackColor", Row, Column, &CellStyle::BackColor, color);
    }
    Variant ItemForeColorSelect(const Variant& Row, const Variant& Column) {
        return styleGet(u"ItemForeColorSelect", Row, Column, &CellStyle::ForeColorSelect);
    }
    void letItemForeColorSelect(const Variant& Row, const Variant& Column, const Variant& color) {
        styleLet(u"ItemForeColorSelect", Row, Column, &CellStyle::ForeColorSelect, color);
    }
    Variant ItemBackColorSelect(const Variant& Row, const Variant& Column) {
        return styleGet(u"ItemBackColorSelect", Row, Column, &CellStyle::BackColorSelect);
    }
    void letItemBackColorSelect(const Variant& Row, const Variant& Column, const Variant& color) {
        styleLet(u"ItemBackColorSelect", Row, Column, &CellStyle::BackColorSelect, color);
    }
    /// A colour; "def" is a type mismatch.
    Variant ItemForeColorDis(const Variant& Row, const Variant& Column);
    void letItemForeColorDis(const Variant& Row, const Variant& Column, const Variant& color);
    Variant ItemBackColorDis(const Variant& Row, const Variant& Column);
    void letItemBackColorDis(const Variant& Row, const Variant& Column, const Variant& color);
    /// Does not repaint.
    Variant ItemTag(const Variant& Row, const Variant& Column);
    void letItemTag(const Variant& Row, const Variant& Column, const Variant& tag);
    /// Does not repaint.
    bool ItemEnabled(const Variant& Row, const Variant& Column);
    void letItemEnabled(const Variant& Row, const Variant& Column, bool enabled);
    PictureRef ItemIcon(const Variant& Row, const Variant& Column);
    void setItemIcon(const Variant& Row, const Variant& Column, PictureRef icon);
    PictureRef ItemIconSelected(const Variant& Row, const Variant& Column);
    void setItemIconSelected(const Variant& Row, const Variant& Column, PictureRef icon);
    bool ItemAllowEdit(const Variant& Row, const Variant& Column) {
        return styleGet(u"ItemAllowEdit", Row, Column, &CellStyle::AllowEdit);
    }
    void letItemAllowEdit(const Variant& Row, const Variant& Column, bool allow) {
        styleLet(u"ItemAllowEdit", Row, Column, &CellStyle::AllowEdit, allow);
    }
    /// Keeps the column's count of checked cells true. Raises no event.
    bool ItemChecked(const Variant& Row, const Variant& Column);
    void letItemChecked(const Variant& Row, const Variant& Column, bool checked);
    cItemAlign ItemAlignment(const Variant& Row, const Variant& Column) {
        return styleGet(u"ItemAlignment", Row, Column, &CellStyle::Alignment);
    }
    void letItemAlignment(const Variant& Row, const Variant& Column, cItemAlign alignment) {
        styleLet(u"ItemAlignment", Row, Column, &CellStyle::Alignment, alignment);
    }
    cItemAlign ItemIconAlignment(const Variant& Row, const Variant& Column) {
        return styleGet(u"ItemIconAlignment", Row, Column, &CellStyle::IconAlignment);
    }
    void letItemIconAlignment(const Variant& Row, const Variant& Column, cItemAlign alignment) {
        styleLet(u"ItemIconAlignment", Row, Column, &CellStyle::IconAlignment, alignment);
    }
    String ItemText(const Variant& Row, const Variant& Column);
    void letItemText(const Variant& Row, const Variant& Column, StringView text);
    String ItemToolTip(const Variant& Row, const Variant& Column);
    void letItemToolTip(const Variant& Row, const Variant& Column, StringView toolTip);
    /// Pixels, as the last paint measured the text; 0 for a cell never painted.
    Single ItemTextWidth(const Variant& Row, const Variant& Column);

  protected:
    using ListViewProperties::ListViewProperties;
    using Cell = ListRecords::Cell;

    bool ArrDim(const Variant& which) const;

    /// How an accessor takes the value of a field.
    template <class T>
    using Passed = std::conditional_t<std::is_same_v<T, String>, StringView, ValueOf<T>>;

    // Each reads or assigns one field, under the name of the accessor.

    template <class T>
    ValueOf<T> columnGet(StringView name, const Variant& Index, T ColumnHeader::*field);
    template <class T>
    void columnLet(StringView name, const Variant& Index, T ColumnHeader::*field, Passed<T> value);
    template <class T>
    T rowGet(StringView name, const Variant& Index, T RowRecord::*field);
    template <class T>
    void rowLet(StringView name, const Variant& Index, T RowRecord::*field, T value);
    template <class T>
    ValueOf<T> styleGet(StringView name, const Variant& Row, const Variant& Column, T CellStyle::*field);
    template <class T>
    void styleLet(StringView name,
                  const Variant& Row,
                  const Variant& Column,
                  T CellStyle::*field,
                  const ValueOf<T>& value);
    template <class T>
    T fontGet(StringView name, const Variant& Row, const Variant& Column, T FontSpec::*field);
    template <class T>
    void
    fontLet(StringView name, const Variant& Row, const Variant& Column, T FontSpec::*field, Passed<T> value);
    template <class T>
    ValueOf<T> extraGet(StringView name, const Variant& Row, const Variant& Column, T CellExtras::*field);

    // The same for a cell as `read` and `write` see it.

    template <class T, class Read>
    T itemGet(StringView name, const Variant& Row, const Variant& Column, Read read);
    template <class Write>
    void itemLet(StringView name, const Variant& Row, const Variant& Column, Write write);
};

template <class T, class Read>
T ListViewRecords::itemGet(StringView name, const Variant& Row, const Variant& Column, Read read) {
    Procedure p = procedure(name);
    return p.value<T>([&]() -> T { return read(records.cellAt(Row, Column)); });
}

template <class Write>
void ListViewRecords::itemLet(StringView name, const Variant& Row, const Variant& Column, Write write) {
    Procedure p = procedure(name);
    p.step([&] { write(records.cellAt(Row, Column)); });
    CheckForRedraw();
}

} // namespace lumtex
