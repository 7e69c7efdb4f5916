/// \file
/// The list's records, and the accessors of their fields: columns, rows, cells.
#pragma once

#include "model/list_view_properties.h"
#include "records/enumerations.h"

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

    String ColumnText(const Variant& Index);
    void letColumnText(const Variant& Index, StringView text);
    PictureRef ColumnIcon(const Variant& Index);
    void setColumnIcon(const Variant& Index, PictureRef icon);
    PictureRef ColumnIconHover(const Variant& Index);
    void setColumnIconHover(const Variant& Index, PictureRef icon);
    PictureRef ColumnIconDown(const Variant& Index);
    void setColumnIconDown(const Variant& Index, PictureRef icon);
    Single ColumnLeft(const Variant& Index);
    Single ColumnWidth(const Variant& Index);
    void letColumnWidth(const Variant& Index, Single width);
    String ColumnTag(const Variant& Index);
    void letColumnTag(const Variant& Index, StringView tag);
    String ColumnKey(const Variant& Index);
    void letColumnKey(const Variant& Index, StringView key);
    cColumnHeaderAlign ColumnAlignment(const Variant& Index);
    void letColumnAlignment(const Variant& Index, cColumnHeaderAlign alignment);
    cColumnHeaderAlign ColumnIconAlignment(const Variant& Index);
    void letColumnIconAlignment(const Variant& Index, cColumnHeaderAlign alignment);
    OLE_COLOR ColumnForeColor(const Variant& Index);
    void letColumnForeColor(const Variant& Index, OLE_COLOR color);
    OLE_COLOR ColumnForeColorHover(const Variant& Index);
    void letColumnForeColorHover(const Variant& Index, OLE_COLOR color);
    OLE_COLOR ColumnForeColorDown(const Variant& Index);
    void letColumnForeColorDown(const Variant& Index, OLE_COLOR color);
    bool ColumnAllowSorting(const Variant& Index);
    void letColumnAllowSorting(const Variant& Index, bool allow);
    bool ColumnCheckBoxes(const Variant& Index);
    void letColumnCheckBoxes(const Variant& Index, bool checkBoxes);
    bool ColumnAdjustItemIcons(const Variant& Index);
    void letColumnAdjustItemIcons(const Variant& Index, bool adjust);
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

    bool ItemFontBold(const Variant& Row, const Variant& Column);
    void letItemFontBold(const Variant& Row, const Variant& Column, bool bold);
    bool ItemFontItalic(const Variant& Row, const Variant& Column);
    void letItemFontItalic(const Variant& Row, const Variant& Column, bool italic);
    bool ItemFontUnderline(const Variant& Row, const Variant& Column);
    void letItemFontUnderline(const Variant& Row, const Variant& Column, bool underline);
    bool ItemFontStrikethrough(const Variant& Row, const Variant& Column);
    void letItemFontStrikethrough(const Variant& Row, const Variant& Column, bool strikethrough);
    Single ItemFontSize(const Variant& Row, const Variant& Column);
    void letItemFontSize(const Variant& Row, const Variant& Column, Single points);
    String ItemFontName(const Variant& Row, const Variant& Column);
    void letItemFontName(const Variant& Row, const Variant& Column, StringView name);
    OLE_COLOR ItemForeColor(const Variant& Row, const Variant& Column);
    void letItemForeColor(const Variant& Row, const Variant& Column, OLE_COLOR color);
    /// A colour, or "def" for the look that painting decides; stored as it comes.
    Variant ItemBackColor(const Variant& Row, const Variant& Column);
    void letItemBackColor(const Variant& Row, const Variant& Column, const Variant& color);
    Variant ItemForeColorSelect(const Variant& Row, const Variant& Column);
    void letItemForeColorSelect(const Variant& Row, const Variant& Column, const Variant& color);
    Variant ItemBackColorSelect(const Variant& Row, const Variant& Column);
    void letItemBackColorSelect(const Variant& Row, const Variant& Column, const Variant& color);
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
    bool ItemAllowEdit(const Variant& Row, const Variant& Column);
    void letItemAllowEdit(const Variant& Row, const Variant& Column, bool allow);
    /// Keeps the column's count of checked cells true. Raises no event.
    bool ItemChecked(const Variant& Row, const Variant& Column);
    void letItemChecked(const Variant& Row, const Variant& Column, bool checked);
    cItemAlign ItemAlignment(const Variant& Row, const Variant& Column);
    void letItemAlignment(const Variant& Row, const Variant& Column, cItemAlign alignment);
    cItemAlign ItemIconAlignment(const Variant& Row, const Variant& Column);
    void letItemIconAlignment(const Variant& Row, const Variant& Column, cItemAlign alignment);
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

    template <class T>
    ValueOf<T> columnGet(StringView name, const Variant& Index, T ColumnHeader::*field);
    template <class T, class Value>
    void columnLet(StringView name, const Variant& Index, T ColumnHeader::*field, Value&& value);
    template <class T>
    T rowGet(StringView name, const Variant& Index, T RowRecord::*field);
    template <class T>
    void rowLet(StringView name, const Variant& Index, T RowRecord::*field, T value);
    template <class T, class Read>
    T itemGet(StringView name, const Variant& Row, const Variant& Column, Read read);
    template <class Write>
    void itemLet(StringView name, const Variant& Row, const Variant& Column, Write write);
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
    fontLet(StringView name, const Variant& Row, const Variant& Column, T FontSpec::*field, const T& value);
    template <class T>
    ValueOf<T> extraGet(StringView name, const Variant& Row, const Variant& Column, T CellExtras::*field);
};

} // namespace lumtex
