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
    const bool grown = p.step([&] { counters.newColumn = records.growColumns(); });
    // The statements below would go to the column before.
    if (!grown)
        return;

    if (RowsCount() >= 1) {
        p.step([&] {
            std::optional<StyleLease> style;
            // The control's own counter, not a local one, as in every walk over the rows.
            for (counters.scanIndex = 0; counters.scanIndex < RowsCount(); ++counters.scanIndex) {
                freshenItemStyle(style);
                records.recordAt(counters.scanIndex).items.append({}, *style);
            }
        });
    }

    const Long slot = counters.newColumn;
    p.step([&] { records.columnAt(slot).Text = aText.toText(); });
    p.step([&] {
        ColumnHeader& column = records.columnAt(slot);
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
            records.columnAt(slot).Left = 0;
        } else {
            const ColumnHeader& left = records.columnAt(slot - 1);
            records.columnAt(slot).Left = static_cast<Single>(static_cast<Double>(left.Left) + left.Width);
        }
    });
    p.step([&] {
        ColumnHeader& column = records.columnAt(slot);
        column.CheckBoxes = false;
        column.ItemsChecked = 0;
        column.AdjustItemIcons = true;
        column.ItemIconH = properties.IconH;
        column.ItemIconW = properties.IconW;
    });

    if (properties.AutoCheckScroll)
        CheckScroll();
    CheckForRedraw();
}

} // namespace lumtex
