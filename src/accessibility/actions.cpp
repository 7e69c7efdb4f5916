/// What a user could do to an element, done without eyes and mouse. Each act keeps the list in memory while
/// it runs, and looks again at what is there wherever host code may have run.
#include "accessibility/accessible_list.h"
#include "accessibility/list_reader.h"
#include "guards/failure_of.h"
#include "interaction/cell_editor.h"
#include "interaction/header_gesture.h"
#include "interaction/mouse.h"
#include "interaction/selection.h"
#include "render/painting.h"
#include "scroll/scroller.h"
#include "values/rounding.h"

#include <algorithm>

namespace lumtex::accessibility {

namespace {

/// Pixels from the left edge of the first column, scrolled or not.
Single leftOf(const ListReader& reader, Long column) {
    Single left = 0;
    for (Long each = 1; each < column; ++each)
        left += reader.core().painting->columnWidthInPixels(each - 1);
    return left;
}

void scrollToRow(const ListReader& reader, Long row) {
    ListViewCore& core = reader.core();
    const Long top = core.scroller->TopIndex();
    const Long visible = std::max(core.scroller->VisibleItems(), Long{1});
    if (row - 1 < top)
        core.list().letTopIndex(row - 1);
    else if (row > std::int64_t{top} + visible)
        core.list().letTopIndex(row - visible);
    else
        return;
    core.list().Redraw();
}

void scrollToColumn(const ListReader& reader, Long column) {
    ListViewCore& core = reader.core();
    bars::ScrollBar& bar = core.scroller->horizontal();
    if (!bar.Visible())
        return;
    const Long left = roundToLong(leftOf(reader, column));
    const Long right = roundToLong(leftOf(reader, column + 1));
    Single room = static_cast<Single>(core.listWindow->surface().scaleWidth());
    if (core.scroller->vertical().Visible())
        room -= core.scroller->vertical().Width();
    const Long shown = roundToLong(room);
    if (left < bar.Value() || right - left > shown)
        bar.drag(left);
    else if (right > bar.Value() + shown)
        bar.drag(right - shown);
}

bool canAct(const AccessibleList& list, const Element& element) {
    return (list.states(element) & (gone | unavailable | invisible)) == 0;
}

} // namespace

bool AccessibleList::scrollTo(const Element& element) {
    if (!exists(element))
        return false;
    ListViewCore& core = *core_;
    const Procedure p = core.procedure(u"ScrollTo");
    const ListReader reader(core);
    const bool inRows =
        element.kind == Kind::row || element.kind == Kind::cell || element.kind == Kind::checkBox;
    if (!inRows && element.kind != Kind::header)
        return false;
    if (inRows)
        scrollToRow(reader, element.row);
    if (element.column != 0 && !core.hasEnded() && reader.exists(element))
        scrollToColumn(reader, element.column);
    return true;
}

bool AccessibleList::selectOnly(const Element& element) {
    if (element.kind != Kind::row || !canAct(*this, element))
        return false;
    ListViewCore& core = *core_;
    const Procedure p = core.procedure(u"SelectOnly");
    const ListReader reader(core);
    core.selection->beginPress();
    core.selection->letListIndex(element.row - 1);
    if (!core.hasEnded() && reader.exists(element)) {
        core.selection->NoSelected(element.row - 1);
        scrollToRow(reader, element.row);
    }
    core.selection->endPress();
    core.list().Redraw();
    return true;
}

bool AccessibleList::select(const Element& element, bool selected) {
    if (element.kind != Kind::row || !canAct(*this, element))
        return false;
    if (selected && !core_->properties.MultiSelect)
        return selectOnly(element);
    ListViewCore& core = *core_;
    const Procedure p = core.procedure(u"Select");
    core.list().letRowSelected(element.row, selected);
    core.list().Redraw();
    return true;
}

bool AccessibleList::takeFocus(const Element& element) {
    if (!canAct(*this, element))
        return false;
    ListViewCore& core = *core_;
    Procedure p = core.procedure(u"TakeFocus");
    switch (element.kind) {
    case Kind::list:
        break;
    case Kind::row:
        if (!selectOnly(element) || core.hasEnded())
            return false;
        break;
    case Kind::cell:
        return takeFocus(rowElement(element.row));
    default:
        return false;
    }
    return p.step([&] { core.listWindow->setFocus(); });
}

bool AccessibleList::edit(const Element& element) {
    if (element.kind != Kind::cell || !canAct(*this, element) || (states(element) & editable) == 0)
        return false;
    ListViewCore& core = *core_;
    const Procedure p = core.procedure(u"Edit");
    const ListReader reader(core);
    scrollTo(element);
    if (!core.hasEnded() && reader.exists(element))
        core.mouse->activate(element.row - 1, element.column - 1, Mouse::Aim::body);
    const bool sameCell = core.editor->isLastClick(element.row - 1, element.column - 1);
    if (!core.hasEnded() && reader.exists(element) && sameCell && !core.editor->isOpen())
        core.mouse->doubleClick();
    return !core.hasEnded() && core.editor->isOpen() &&
           core.editor->isLastClick(element.row - 1, element.column - 1);
}

bool AccessibleList::setValue(const Element& element, StringView value) {
    if (!canAct(*this, element))
        return false;
    ListViewCore& core = *core_;
    const Procedure p = core.procedure(u"SetValue");
    switch (element.kind) {
    case Kind::cell:
        if (!edit(element))
            return false;
        core.editor->type(value);
        core.editor->acceptIfOpen();
        return true;
    case Kind::editor:
        core.editor->type(value);
        return true;
    case Kind::verticalBar:
    case Kind::horizontalBar: {
        Long place = 0;
        return ignoringErrors([&] { place = Variant(value).toLong(); }) && setRange(element, place);
    }
    default:
        return false;
    }
}

bool AccessibleList::setRange(const Element& element, Long value) {
    if (!range(element) || !canAct(*this, element))
        return false;
    ListViewCore& core = *core_;
    const Procedure p = core.procedure(u"SetRange");
    ListReader(core).bar(element).drag(value);
    return true;
}

bool AccessibleList::act(const Element& element) {
    if (action(element).empty() || !canAct(*this, element))
        return false;
    ListViewCore& core = *core_;
    const Procedure p = core.procedure(u"Act");
    const ListReader reader(core);
    switch (element.kind) {
    case Kind::row:
        return selectOnly(element);
    case Kind::header:
        core.headerGesture->activate(element.column - 1);
        return true;
    case Kind::cell:
        if ((states(element) & editable) != 0)
            return edit(element);
        [[fallthrough]];
    case Kind::checkBox: {
        const auto aim = element.kind == Kind::checkBox ? Mouse::Aim::checkBox : Mouse::Aim::body;
        scrollTo(element);
        if (core.hasEnded() || !reader.exists(element))
            return false;
        core.mouse->activate(element.row - 1, element.column - 1, aim);
        return true;
    }
    case Kind::lowArrow:
        reader.bar(element).pressLow();
        return true;
    case Kind::highArrow:
        reader.bar(element).pressHigh();
        return true;
    default:
        return false;
    }
}

} // namespace lumtex::accessibility
