/// Controls of the host that live in cells.
#include "model/item_access.h"
#include "model/list_view.h"
#include "platform/runtime_error.h"
#include "platform/window_handle.h"

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
    // This procedure tells the host of a failure instead of reporting it, and ends there.
    const std::optional<RuntimeError> failure = failureOf([&] {
        if (object) {
            Long handle = 0;
            const bool hasWindow = ignoringErrors([&] { handle = windowHandleOf(object->get(u"hwnd")); });
            if (hasWindow) {
                window_->adopt(handle);
                std::array<Variant, 1> position{zOrderToBack};
                object->call(u"ZOrder", position);
            }
        }
        const Cell cell = cellAt(Row, Column);
        cell.items.needExtras(cell.index).setObject(std::move(object));
    });
    if (failure) {
        events_.ListViewError(u"ItemObject", failure->number(), failure->description());
        return;
    }
    CheckForRedraw();
}

} // namespace lumtex
