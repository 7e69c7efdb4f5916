/// Opening the in-place editor over a cell.
#include "interaction/cell_editor.h"
#include "model/list_view.h"
#include "render/painting.h"
#include "scroll/scroller.h"
#include "values/rounding.h"

namespace lumtex {

void CellEditor::SetEdit(const Variant& Row, const Variant& Column) {
    Procedure p = procedure(u"SetEdit");
    edit_.editActive = true;
    p.step([&] { edit_.lastClickRow = zeroBased(Row); });
    p.step([&] { edit_.lastClickColumn = zeroBased(Column); });
    editedRowIntoView(Row, p);
    dressEditor(Row, Column, p);

    // The scrolling above is not painted yet, so this is where the row was painted last.
    p.step([&] { letTop(records_.rowAt(Row).Top); });
    p.step([&] {
        area_.height = records_.rowAt(Row).Height;
        txtEdit_->letHeight(area_.height);
    });
    p.step([&] {
        area_.width = core_.painting->columnWidthInPixels(zeroBased(Column)) - 1;
        txtEdit_->letWidth(area_.width);
    });
    p.step([&] {
        const Single left =
            scaleX(window_.surface(), records_.columnAt(zeroBased(Column)).Left, Unit::twips, Unit::pixels);
        area_.left =
            static_cast<Single>(static_cast<Double>(left) - core_.scroller->horizontal().Value() + 1);
        txtEdit_->letLeft(area_.left);
    });

    if (core_.hasEnded())
        return;
    p.step([&] { txtEdit_->letVisible(true); });
    p.step([&] { txtEdit_->letTabStop(txtEdit_->Visible()); });
    p.step([&] { txtEdit_->setFocus(); });
    p.step([&] { txtEdit_->letSelStart(0); });
    p.step([&] { txtEdit_->letSelLength(static_cast<Long>(txtEdit_->Text().size())); });
}

// Wanted: a number counted from 1 against a top row counted from 0, and the way down goes past the row.
void CellEditor::editedRowIntoView(const Variant& Row, Procedure& p) {
    Double row = 0;
    if (!p.step([&] { row = Row.toDouble(); }))
        return;
    if (row < list_.TopIndex())
        p.step([&] { list_.letTopIndex(roundToLong(row)); });
    else if (row > static_cast<Double>(list_.TopIndex()) + core_.scroller->VisibleItems())
        p.step([&] { list_.letTopIndex(roundToLong(row + core_.scroller->VisibleItems())); });
}

// Wanted: the background is not copied.
void CellEditor::dressEditor(const Variant& Row, const Variant& Column, Procedure& p) {
    const auto dress = [&](auto change) {
        p.step([&] {
            FontSpec font = txtEdit_->font();
            change(font);
            txtEdit_->setFont(font);
        });
    };
    dress([&](FontSpec& font) { font.Bold = list_.ItemFontBold(Row, Column); });
    dress([&](FontSpec& font) { font.Italic = list_.ItemFontItalic(Row, Column); });
    dress([&](FontSpec& font) { font.Underline = list_.ItemFontUnderline(Row, Column); });
    dress([&](FontSpec& font) { font.Name = list_.ItemFontName(Row, Column); });
    dress([&](FontSpec& font) { font.Size = list_.ItemFontSize(Row, Column); });
    dress([&](FontSpec& font) { font.Strikethrough = list_.ItemFontStrikethrough(Row, Column); });
    p.step([&] { txtEdit_->letForeColor(list_.ItemForeColor(Row, Column)); });
    p.step([&] { txtEdit_->letText(list_.ItemText(Row, Column)); });
}

} // namespace lumtex
