/// Saving the settings.
#include "persistence/property_values.h"

namespace lumtex {

namespace {

/// Wanted: one key is written earlier than it is read.
constexpr auto writingOrder = propertyOrder(readingMovesAnd({u"AutoRedraw", u"EmptyColumnFieldWidth"}));

} // namespace

void lmListView::UserControl_WriteProperties(PropertyBag& bag) {
    Procedure p = procedure(u"UserControl_WriteProperties");
    forEachProperty<writingOrder>([&](const auto& row) {
        using Value = ValueOf<std::remove_cvref_t<decltype(properties.*row.field)>>;
        const Value value = properties.*row.field;
        p.step([&] { bag.WriteProperty(row.name, toVariant(value), startOf(row)); });
    });
}

} // namespace lumtex
