/// Opening the in-place editor over a cell.
#include "model/list_view.h"
#include "values/rounding.h"

namespace lumtex {

void lmListView::SetEdit(const Variant& Row, const Variant& Column) {
    Procedure p = procedure(u"SetEdit");
    edit_.editActive = true;
    p.step([&] { edit_.lastClickRow = zeroBased(Row); });
    p.step([&] { edit_.lastClickColumn = zeroBased(Column); });
    editedRowIntoView(Row, p);
    dressEditor(Row, Column, p);

    // The scrolling above is not painted yet, so this is where the row was painted last.
    p.step([&] { txtEdit->letTop(rowAt(Row).Top); });
    p.step([&] { txtEdit->letHeight(rowAt(Row).Height); });
    p.step([&] { txtEdit->letWidth(columnWidthInPixels(zeroBased(Column)) - 1); });
    p.step([&] {
        const Single left = scaleX(window_->surface(), columnAt(zeroBased(Column)).Left, twips, pixels);
        txtEdit->letLeft(static_cast<Single>(static_cast<Double>(left) - HS->Value() + 1));
    });

    if (life_.hasEnded())
        return;
    p.step([&] { txtEdit->letVisible(true); });
    p.step([&] { txtEdit->letTabStop(txtEdit->Visible()); });
    p.step([&] { txtEdit->setFocus(); });
    p.step([&] { txtEdit->letSelStart(0); });
    p.step([&] { txtEdit->letSelLength(static_cast<Long>(txtEdit->Text().size())); });
}

// Wanted: a number counted from 1 against a top row counted from 0, and the way down goes past the row.
void lmListView::editedRowIntoView(const Variant& Row, Procedure& p) {
    Double row = 0;
    if (!p.step([&] { row = Row.toDouble(); }))
        return;
    if (row < TopIndex())
        p.step([&] { letTopIndex(roundToLong(row)); });
    else if (row > static_cast<Double>(TopIndex()) + VisibleItems())
        p.step([&] { letTopIndex(roundToLong(row + VisibleItems())); });
}

// Wanted: the background is not copied.
void lmListView::dressEditor(const Variant& Row, const Variant& Column, Procedure& p) {
    const auto dress = [&](auto change) {
        p.step([&] {
            FontSpec font = txtEdit->font();
            change(font);
            txtEdit->setFont(font);
        });
    };
    dress([&](FontSpec& font) { font.Bold = ItemFontBold(Row, Column); });
    dress([&](FontSpec& font) { font.Italic = ItemFontItalic(Row, Column); });
    dress([&](FontSpec& font) { font.Underline = ItemFontUnderline(Row, Column); });
    dress([&](FontSpec& font) { font.Name = ItemFontName(Row, Column); });
    dress([&](FontSpec& font) { font.Size = ItemFontSize(Row, Column); });
    dress([&](FontSpec& font) { font.Strikethrough = ItemFontStrikethrough(Row, Column); });
    p.step([&] { txtEdit->letForeColor(ItemForeColor(Row, Column)); });
    p.step([&] { txtEdit->letText(ItemText(Row, Column)); });
}

} // namespace lumtex
