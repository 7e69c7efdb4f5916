/// Bringing saved settings back.
#include "interaction/cell_editor.h"
#include "interaction/mouse.h"
#include "interaction/row_drag.h"
#include "interaction/selection.h"
#include "persistence/property_keys.h"
#include "render/painting.h"
#include "scroll/scroller.h"
#include "sortfind/sorter.h"

namespace lumtex {

void lmListView::UserControl_ReadProperties(const PropertyBag& bag) {
    Procedure p = procedure(u"UserControl_ReadProperties");
    takeContainersFont();
    recogniseProgram();
    std::vector<PropertyKey> keys;
    p.step([&] { keys = propertyKeys(); });
    p.step([&] { painting->hold(); });
    // A value that cannot be used is reported, and reading goes on with the next key.
    for (const PropertyKey& key : keys)
        p.step([&] { key.let(*this, bag.ReadProperty(key.name, key.byDefault)); });
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
