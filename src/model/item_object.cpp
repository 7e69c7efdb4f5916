/// Controls of the host that live in cells.
#include "guards/failure_of.h"
#include "model/list_view.h"
#include "model/list_view_records.h"
#include "platform/window_handle.h"
#include "values/runtime_error.h"

#include <array>

namespace lumtex {

namespace {

constexpr Integer zOrderToBack = 1;

} // namespace

ObjectRef lmListView::ItemObject(const Variant& Row, const Variant& Column) {
    return itemGet<ObjectRef>(u"ItemObject", Row, Column, [](const Cell& cell) {
        const CellExtras* extras = cell.items.extras(cell.index);
        return extras != nullptr ? extras->object() : nullptr;
    });
}

void lmListView::setItemObject(const Variant& Row, const Variant& Column, ObjectRef object) {
    Procedure p = procedure(u"ItemObject");
    // Wanted: the host hears of a failure by an event before it is reported, and the next statement runs.
    const auto statement = [&](auto body) {
        const std::optional<RuntimeError> failure = failureOf(body);
        if (!failure)
            return;
        p.raise([&] { events().ListViewError(u"ItemObject", failure->number(), failure->description()); });
        p.step([&] { throw *failure; });
    };
    if (object) {
        Long handle = 0;
        const bool hasWindow = ignoringErrors([&] { handle = windowHandleOf(object->get(u"hwnd")); });
        if (hasWindow) {
            statement([&] { listWindow->adopt(handle); });
            statement([&] {
                std::array<Variant, 1> position{zOrderToBack};
                object->call(u"ZOrder", position);
            });
        }
    }
    statement([&] {
        const Cell cell = records.cellAt(Row, Column);
        records.noteObject();
        cell.items.needExtras(cell.index).setObject(std::move(object));
    });
    CheckForRedraw();
}

} // namespace lumtex
