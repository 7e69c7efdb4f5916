/// Closing the in-place editor: with the text kept, or dropped.
#include "model/list_view.h"
#include "values/rounding.h"

namespace lumtex {

namespace {

constexpr Integer enterKey = 13;

} // namespace

void lmListView::StopEdit() {
    Procedure p = procedure(u"StopEdit");
    edit_.editActive = false;
    p.step([&] { txtEdit->letVisible(false); });
    p.step([&] { txtEdit->letTabStop(txtEdit->Visible()); });
}

void lmListView::textBoxKeyPress(Integer& KeyAscii) {
    if (KeyAscii != enterKey)
        return;
    Procedure p = procedure(u"txtEdit_KeyPress");
    p.step([&] {
        const Long row = sumOf(edit_.lastClickRow, 1);
        letItemText(row, sumOf(edit_.lastClickColumn, 1), txtEdit->Text());
    });
    KeyAscii = 0;
    edit_.editActive = false;
    p.step([&] { txtEdit->letVisible(false); });
    p.step([&] { txtEdit->letTabStop(txtEdit->Visible()); });
    // Wanted: raised for an unchanged text too.
    p.raise([&] {
        const Long row = sumOf(edit_.lastClickRow, 1);
        events_->ItemChanged(row, sumOf(edit_.lastClickColumn, 1), txtEdit->Text());
    });
    p.step([&] { txtEdit->letText({}); });
}

// Wanted: a loss of focus throws the typing away.
void lmListView::textBoxLostFocus() {
    StopEdit();
}

} // namespace lumtex
