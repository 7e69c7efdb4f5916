#include "interaction/cell_editor.h"

#include "model/list_view.h"
#include "platform/keys.h"
#include "values/rounding.h"

namespace lumtex {

CellEditor::CellEditor(ListViewCore& core)
    : ListPart(core), txtEdit_(core.world().createTextBox(*core.listWindow, *this)) {}

void CellEditor::acceptIfOpen() {
    if (!isOpen())
        return;
    Integer key = keys::enter;
    textBoxKeyPress(key);
}

void CellEditor::type(StringView text) {
    Procedure p = procedure(u"txtEdit_Change");
    if (isOpen())
        p.step([&] { txtEdit_->letText(text); });
}

void CellEditor::StopEdit() {
    Procedure p = procedure(u"StopEdit");
    edit_.editActive = false;
    p.step([&] { txtEdit_->letVisible(false); });
    p.step([&] { txtEdit_->letTabStop(txtEdit_->Visible()); });
}

void CellEditor::textBoxKeyPress(Integer& KeyAscii) {
    if (KeyAscii != keys::enter)
        return;
    Procedure p = procedure(u"txtEdit_KeyPress");
    p.step([&] {
        const Long row = sumOf(edit_.lastClickRow, 1);
        list_.letItemText(row, sumOf(edit_.lastClickColumn, 1), txtEdit_->Text());
    });
    KeyAscii = 0;
    edit_.editActive = false;
    p.step([&] { txtEdit_->letVisible(false); });
    p.step([&] { txtEdit_->letTabStop(txtEdit_->Visible()); });
    // Wanted: raised for an unchanged text too.
    p.raise([&] {
        const Long row = sumOf(edit_.lastClickRow, 1);
        core_.events().ItemChanged(row, sumOf(edit_.lastClickColumn, 1), txtEdit_->Text());
    });
    p.step([&] { txtEdit_->letText({}); });
}

// Wanted: a loss of focus throws the typing away.
void CellEditor::textBoxLostFocus() {
    StopEdit();
}

} // namespace lumtex
