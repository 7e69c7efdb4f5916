/// \file
/// The control: its public members as hosts know them. The properties, and the accessors of columns, rows and
/// cells, stand in its bases; what it does stands in its parts, which `ListViewCore` names.
#pragma once

#include "model/list_view_records.h"
#include "platform/property_bag.h"
#include "platform/user_control.h"
#include "sortfind/find_results.h"

#include <initializer_list>
#include <new>
#include <optional>
#include <span>

namespace lumtex::about {
class LumtexAbout;
} // namespace lumtex::about

namespace lumtex {

/// An owner-drawn list of rows and columns.
///
/// `Row`, `Column` and `Index` arguments count from 1; `ListIndex`, `NewIndex`, `TopIndex` and the `aIndex`
/// of `RowsAdd` count from 0, with -1 for none. Column widths, `RowHeight` and `EmptyColumnFieldWidth` are
/// twips, all other sizes pixels. No member throws: a failure is reported (see `reportError`), what was
/// stored before the failing statement stays, and a get that failed returns its type's zero.
///
/// The world must outlive the control and its last call, the host and the event receiver the control alone.
/// After construction the host calls exactly one of the two `UserControl_...Properties` entry points. A
/// control that host code may end from within its calls is made by `new`.
class lmListView final : public ListViewRecords, public UserControl {
  public:
    lmListView(World& world, Host& host, lmListViewEvents& events, Window* parent = nullptr);
    ~lmListView() override;
    /// Host code may `delete` a list while calls of it run. For the host it has ended then: it raises and
    /// reports nothing more, and lets go of all that it held. Its memory goes when the last of the calls
    /// returns.
    static void operator delete(lmListView* list, std::destroying_delete_t /*tag*/);
    /// Holds `world`, or what it is part of, until the memory of the list has gone: for a host that ends both
    /// at once, from within a call of the list.
    void outlivedBy(std::shared_ptr<const void> world) { goesLast_ = std::move(world); }

    // Lifecycle

    /// A new instance without saved state. Paints nothing; the first resize does.
    void UserControl_InitProperties();
    /// A saved instance, or a new one that starts in its full idle state: an empty bag gives the same values.
    /// The list is empty afterwards.
    void UserControl_ReadProperties(const PropertyBag& bag);
    /// Saves the settings that differ from their defaults; never the content.
    void UserControl_WriteProperties(PropertyBag& bag);

    // Filling the list

    /// Appends a column, and an empty cell to every row. `aWidth` is in twips. A colour of 0 means black.
    void ColumnsAdd(const Variant& aText,
                    PictureRef aIcon = nullptr,
                    PictureRef aIconHover = nullptr,
                    PictureRef aIconDown = nullptr,
                    cColumnHeaderAlign aAlignment = cColumnLeft,
                    Single aWidth = 1000,
                    bool aAllowSorting = false,
                    OLE_COLOR aForeColor = 0,
                    StringView aKey = {},
                    StringView aTag = {},
                    OLE_COLOR aForeColorHover = 0,
                    OLE_COLOR aForeColorDown = 0);
    /// Inserts a row before `aIndex`, or appends it where `aIndex` is out of range; the place it took is
    /// written back. The texts are split at `aSplit`; without them all cells are empty. A list without
    /// columns takes no rows.
    void
    RowsAdd(Variant& aIndex, StringView aSplit = u",", std::optional<StringView> aItemTexts = std::nullopt);
    void RowsAdd(Variant&& aIndex = Long{-1},
                 StringView aSplit = u",",
                 std::optional<StringView> aItemTexts = std::nullopt) {
        RowsAdd(aIndex, aSplit, aItemTexts);
    }

    /// Removes all rows, or all columns. The selection, `ListIndex` and `NewIndex` stay as they are.
    void RowsClear();
    void ColumnsClear();

    /// Removes one row; what the control keeps as the place is written back. A place out of range removes
    /// nothing and is not reported. Yields to the host after each row that moves up.
    void RowsRemove(Variant& Index);
    void RowsRemove(Variant&& Index) { RowsRemove(Index); }
    /// Removes all selected rows, painting once at the end.
    void RowsSelectedRemove();
    /// Repaints; the columns stay.
    void ColumnsRemove(const Variant& Index);
    /// True for whatever is no number, and for every index once there was a row, or a column.
    bool WrongIndex(const Variant& Index);
    bool WrongColumnIndex(const Variant& Index);

    /// The very object that was assigned, loaded or not.
    ObjectRef Recordset() const { return recordset_; }
    /// Takes an object's fields as columns and its records as rows, once; where its `RecordCount` is not
    /// above 0, nothing changes. Members are called by name (see `RecordsetMembers`), with paints and scroll
    /// checks off. A member that fails is reported and its step skipped: a field whose name fails gets no
    /// column, and a value that fails is left out together with its comma. The load ends where `EOF` is true
    /// or fails, or where `MoveNext` fails twice in a row.
    void setRecordset(ObjectRef recordset);

    // Counts

    /// The row last added by `RowsAdd`; not corrected when rows move or go.
    Long NewIndex() const { return properties.NewIndex; }
    /// The column under the last press or release, counted from 1; -1 for none.
    Long ColumnIndex() const;

    /// Makes columns as wide as the widest text that the last paint measured in them, or as their header, and
    /// 10 pixels more. Without an argument all of them; yields to the host before each.
    void AutoColumnSize(std::span<const Variant> lColumns);
    void AutoColumnSize(std::initializer_list<Variant> lColumns = {}) {
        AutoColumnSize(std::span<const Variant>(lColumns.begin(), lColumns.size()));
    }

    // Painting

    /// Paints the whole control, whatever `AutoRedraw` says.
    void Redraw();
    /// Clears the surface; the content stays and comes back with the next paint.
    void ClearListView();

    // Editing

    /// Opens the in-place editor over a cell, scrolls towards it, and selects the whole text. Asks for no
    /// permission, neither the list's nor the cell's.
    void SetEdit(const Variant& Row, const Variant& Column);
    /// Closes the in-place editor and drops what was typed.
    void StopEdit();

    // Sorting

    /// Orders the rows by the texts of a column, which counts from 1, and raises `SortDone`; does not
    /// repaint. Rows of equal keys change places. A mode that is left out, or unknown, sorts nothing, and
    /// neither does a column of blank texts, but the event comes. -1 takes the mark off the header, a column
    /// past the last does nothing, both without the event.
    void Sort(Long Column, cSortMode SortMode = {}, cSortType SortType = cSortText);
    /// The column of the last sort, from 1; -1 for none.
    Long SortColumnIndex() const;

    // Searching

    /// Looks for the first cell whose whole text matches a pattern (see `LikePattern`), row by row, and keeps
    /// the place behind it for a search that continues. A pattern behind "<itemtag>" goes for the tags.
    /// Columns and rows are named as "*", or in lists such as "1,3-5,7-*"; a single number needs a comma
    /// behind it.
    FindResults FindItem(StringView sFind,
                         cFindBegin cBegin = cFindContinue,
                         cFindCompare cCompare = cFindBinary,
                         StringView sColumns = u"*",
                         StringView sRows = u"*");
    /// As above. An empty `sColumns` or `sRows` is set to "*", which the caller sees.
    FindResults
    FindItem(StringView sFind, cFindBegin cBegin, cFindCompare cCompare, String& sColumns, String& sRows);

    // Content files (docs/content-file.md)

    /// Writes the texts of all cells, and with `bSaveItemProperties` their looks, tags and icons, to a file
    /// of its own format; columns, rows' flags and settings are not in it. A file of that name is deleted
    /// first. True in any case, since each failure has been reported.
    bool ContentSave(StringView sFilename, bool bSaveItemProperties = false);
    /// Clears the rows and fills the list from such a file; the columns stay. Without
    /// `bReadItemPropertiesIfExists`, or where the file has texts alone, all cells get one look. False, with
    /// nothing changed, where there is no such file; otherwise True, since each failure has been reported.
    /// Counts that the file cannot hold fill no rows and are the failure 7.
    bool ContentInput(StringView sFilename, bool bReadItemPropertiesIfExists = false);

    // Scrolling

    void CheckScroll();
    Long TopIndex() const;
    void letTopIndex(Long topIndex);

    // Rows and cells

    bool RowSelected(const Variant& Index);
    void letRowSelected(const Variant& Index, bool selected);
    /// The current row; yields to the host once.
    Long ListIndex();
    void letListIndex(Long index);
    /// The same counted from 1, with 0 for none. Assigning also scrolls the row into view.
    Long RowIndex();
    void letRowIndex(Long index);
    /// A control of the host that is shown over the cell. One with a window becomes a child of this control.
    ObjectRef ItemObject(const Variant& Row, const Variant& Column);
    void setItemObject(const Variant& Row, const Variant& Column, ObjectRef object);

    /// Shows the about box and returns once it was closed.
    void About();

    /// The window's number, and that of the in-place editor.
    WindowHandle hwnd() const { return ListViewCore::listWindow->hWnd(); }
    WindowHandle hwndEdit() const;

    /// Where the host places and shows the control.
    Window& window() { return *listWindow; }

    // Platform events

    void UserControl_Resize() override;
    /// Swallowed once saved settings were read in run mode; before that it is not for this control.
    bool UserControl_Wheel(Long Rotation, Integer Shift, Single X, Single Y) override;
    void UserControl_MouseDown(Integer Button, Integer Shift, Single X, Single Y) override;
    void UserControl_MouseMove(Integer Button, Integer Shift, Single X, Single Y) override;
    void UserControl_MouseUp(Integer Button, Integer Shift, Single X, Single Y) override;
    void UserControl_Click() override;
    void UserControl_DblClick() override;
    void UserControl_KeyDown(Integer KeyCode, Integer Shift) override;
    void UserControl_KeyPress(Integer KeyAscii) override;
    void UserControl_KeyUp(Integer KeyCode, Integer Shift) override;
    void UserControl_OLECompleteDrag(Long& Effect) override;
    void UserControl_OLEDragDrop(
        const DragData& Data, Long& Effect, Integer& Button, Integer& Shift, Single& X, Single& Y) override;
    void UserControl_OLEDragOver(const DragData& Data,
                                 Long& Effect,
                                 Integer& Button,
                                 Integer& Shift,
                                 Single& X,
                                 Single& Y,
                                 Integer& State) override;
    void UserControl_OLEGiveFeedback(Long& Effect, bool& DefaultCursors) override;
    void UserControl_OLESetData(const DragData& Data, Integer& DataFormat) override;
    void UserControl_OLEStartDrag(const DragData& Data, Long& AllowedEffects) override;

  private:
    friend class ListViewInspector; ///< how tests look inside
    friend class SettingsByKey;

    void takeContainersFont();
    void recogniseProgram();
    template <class Row>
    Variant startOf(const Row& row) const;
    template <class Row>
    void assign(const Row& row, const Variant& value);
    void UserControl_Terminate();
    void end();
    bool holdsAnything() const;
    void dropContent();
    static void destroy(void* list);
    void addEmptyRows(Long count);
    void emptyItemStyle(std::optional<StyleLease>& style);
    void freshenItemStyle(std::optional<StyleLease>& style);
    Long placeOfNewRow(Variant& aIndex, Procedure& p);
    void removeRow(Long Index, Procedure& p);
    Long sweepSelected(Long row, bool& sweeps);

    Held<ObjectRef> recordset_; ///< as it was assigned; the list has taken its records already
    std::shared_ptr<about::LumtexAbout> about_; ///< the form of the world, from the first `About` on
};

} // namespace lumtex
