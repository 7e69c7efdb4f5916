/// \file
/// The in-place editor, and the cell that it belongs to.
#pragma once

#include "model/list_view_core.h"
#include "platform/text_box.h"

namespace lumtex {

/// Rows and columns of the last click count from 0, -1 for none.
class CellEditor : private ListPart, private TextBoxClient {
  public:
    explicit CellEditor(ListViewCore& core);

    /// See `lmListView`. `Row` and `Column` count from 1.
    void SetEdit(const Variant& Row, const Variant& Column);
    void StopEdit();
    /// Takes the text over, as Enter does, if the editor is open.
    void acceptIfOpen();

    bool isOpen() const { return txtEdit_->Visible(); }
    WindowHandle hWnd() const { return txtEdit_->hWnd(); }
    /// The open editor follows its row; pixels of the surface.
    void letTop(Single top) {
        txtEdit_->letTop(top);
        area_.top = top;
    }
    /// Where it was placed last; pixels of the surface.
    struct Area {
        Single left = 0;
        Single top = 0;
        Single width = 0;
        Single height = 0;
    };
    const Area& area() const { return area_; }
    String text() const { return txtEdit_->Text(); }
    /// As if typed into the open editor, whose old text goes.
    void type(StringView text);

    /// The cell of the last press or release on an item, or that of the editor.
    Long lastClickRow() const { return edit_.lastClickRow; }
    Long lastClickColumn() const { return edit_.lastClickColumn; }
    bool isLastClick(Long row, Long column) const {
        return edit_.lastClickColumn == column && edit_.lastClickRow == row;
    }
    void letLastClickRow(Long row) { edit_.lastClickRow = row; }
    void letLastClickColumn(Long column) { edit_.lastClickColumn = column; }

  private:
    friend class ListViewInspector; ///< how tests look inside

    struct State {
        bool editActive = false;
        Long lastClickColumn = 0;
        Long lastClickRow = 0;
    };

    void editedRowIntoView(const Variant& Row, Procedure& p);
    void dressEditor(const Variant& Row, const Variant& Column, Procedure& p);
    void textBoxKeyPress(Integer& KeyAscii) override;
    void textBoxLostFocus() override;

    State edit_;
    Area area_;
    std::unique_ptr<TextBox> txtEdit_;
};

} // namespace lumtex
