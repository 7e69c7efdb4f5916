/// One property as it is in a new list.
#include "persistence/property_values.h"

namespace lumtex {

void lmListView::resetProperty(Long number) {
    Procedure p = procedure(u"ResetProperty");
    forEachProperty<readingOrder>([&](const auto& row) {
        if (row.number == number && row.number != 0)
            p.step([&] { assign(row, startOf(row)); });
    });
}

} // namespace lumtex
