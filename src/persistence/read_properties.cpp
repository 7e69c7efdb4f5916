/// Bringing saved settings back.
#include "interaction/cell_editor.h"
#include "interaction/mouse.h"
#include "interaction/row_drag.h"
#include "interaction/selection.h"
#include "persistence/property_values.h"
#include "render/painting.h"
#include "scroll/scroller.h"
#include "sortfind/sorter.h"

namespace lumtex {

void lmListView::UserControl_ReadProperties(const PropertyBag& bag) {
    Procedure p = procedure(u"UserControl_ReadProperties");
    takeContainersFont();
    recogniseProgram();
    p.step([&] { painting->hold(); });
    // A value that cannot be used is reported, and reading goes on with the next key.
    forEachProperty<readingOrder>(
        [&](const auto& row) { p.step([&] { assign(row, bag.ReadProperty(row.name, startOf(row))); }); });
    p.step([&] { painting->release(); });

    RowsClear();
    ColumnsClear();
    letListIndex(-1);
    selection->forgetAnchor();
    headerGesture->forgetColumns();
    sorter->forgetSort();
    selection->endPress();
    editor->letLastClickColumn(-1);
    rowDrag->forgetTarget();
    mouse->stopTimers(p);
    if (!designMode())
        scroller->listen(p);
    Redraw();
}

} // namespace lumtex
