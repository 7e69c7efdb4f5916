/// Adding a column.
#include "model/list_view.h"

namespace lumtex {

void lmListView::ColumnsAdd(const Variant& aText,
                            PictureRef aIcon,
                            PictureRef aIconHover,
                            PictureRef aIconDown,
                            cColumnHeaderAlign aAlignment,
                            Single aWidth,
                            bool aAllowSorting,
                            OLE_COLOR aForeColor,
                            StringView aKey,
                            StringView aTag,
                            OLE_COLOR aForeColorHover,
                            OLE_COLOR aForeColorDown) {
    Procedure p = procedure(u"ColumnsAdd");
    const bool grown = p.step([&] {
        if (columnsAllocated_) {
            columns_.emplace_back();
        } else {
            columns_.clear();
            columns_.emplace_back();
            columnsAllocated_ = true;
        }
        newColumnSlot_ = static_cast<Long>(columns_.size()) - 1;
    });
    // The statements below would go to the column before.
    if (!grown)
        return;

    if (RowsCount() >= 1) {
        p.step([&] {
            std::optional<StyleLease> style;
            // The control's own counter, not a local one, as in every walk over the rows.
            for (paint_.scanIndex = 0; paint_.scanIndex < RowsCount(); ++paint_.scanIndex) {
                freshenItemStyle(style);
                appendCell(recordAt(paint_.scanIndex).items, {}, style->handle());
            }
        });
    }

    const Long slot = newColumnSlot_;
    p.step([&] { columnAt(slot).Text = aText.toText(); });
    p.step([&] {
        ColumnHeader& column = columnAt(slot);
        column.Icon = std::move(aIcon);
        column.IconHover = std::move(aIconHover);
        column.IconDown = std::move(aIconDown);
        column.Alignment = aAlignment;
        column.ForeColor = aForeColor;
        column.ForeColorHover = aForeColorHover;
        column.ForeColorDown = aForeColorDown;
        column.Key = aKey;
        column.Tag = aTag;
        column.AllowSorting = aAllowSorting;
        column.Width = aWidth;
    });
    p.step([&] {
        if (slot == 0) {
            columnAt(slot).Left = 0;
        } else {
            const ColumnHeader& left = columnAt(slot - 1);
            columnAt(slot).Left = static_cast<Single>(static_cast<Double>(left.Left) + left.Width);
        }
    });
    p.step([&] {
        ColumnHeader& column = columnAt(slot);
        column.CheckBoxes = false;
        column.ItemsChecked = 0;
        column.AdjustItemIcons = true;
        column.ItemIconH = properties_.IconH;
        column.ItemIconW = properties_.IconW;
    });

    if (properties_.AutoCheckScroll)
        CheckScroll();
    CheckForRedraw();
}

} // namespace lumtex
