/// Bringing saved settings back.
#include "persistence/property_keys.h"

namespace lumtex {

void lmListView::UserControl_ReadProperties(const PropertyBag& bag) {
    Procedure p = procedure(u"UserControl_ReadProperties");
    takeContainersFont();
    recogniseProgram();
    std::vector<PropertyKey> keys;
    p.step([&] { keys = propertyKeys(); });
    p.step([&] { paint_.paintBusy = true; });
    // A value that cannot be used is reported, and reading goes on with the next key.
    for (const PropertyKey& key : keys)
        p.step([&] { key.let(*this, bag.ReadProperty(key.name, key.byDefault)); });
    p.step([&] { paint_.paintBusy = false; });

    RowsClear();
    ColumnsClear();
    letListIndex(-1);
    selection_.selectionAnchor = -1;
    headerPress_.pressedColumn = -1;
    headerPress_.hoverColumn = -1;
    sort_.sortColumn = -1;
    sort_.sortAscending = 1;
    selection_.selectOnIndexSet = true;
    edit_.lastClickColumn = -1;
    move_.moveTargetRow = -1;
    p.step([&] { tmrMouseIn->letEnabled(false); });
    p.step([&] { tmrMouseAction->letEnabled(false); });
    if (!designMode()) {
        p.step([&] { Wheel1->lethWndCapture(hwnd()); });
        p.step([&] { Wheel1->EnableWheel(); });
    }
    Redraw();
}

} // namespace lumtex
