/// The setters that do no more than the property table says.
#include "model/property_table.h"
#include "render/painting.h"
#include "scroll/scroller.h"

namespace lumtex {

namespace {

/// What the table says of the property in a field.
struct Stored {
    StringView name;
    After after;
};

template <class Field>
Stored storedIn(Field Properties::*field) {
    Stored stored{};
    const auto take = [&](const auto& row) {
        if constexpr (std::is_same_v<decltype(row.field), Field Properties::*>) {
            if (row.field == field)
                stored = {row.name, row.after};
        }
    };
    std::apply([&](const auto&... row) { (take(row), ...); }, property_table::rows);
    return stored;
}

} // namespace

template <class Field>
void ListViewProperties::store(Field Properties::*field, ValueOf<Field> value) {
    const auto [name, after] = storedIn(field);
    Procedure p = procedure(name);
    p.step([&] { properties.*field = std::move(value); });
    p.step([&, name = name] { host().PropertyChanged(name); });
    if (after == After::toScrollBars)
        scroller->CheckProperty();
    else if (checksForRedraw(after))
        CheckForRedraw();
    else if (repaints(after))
        painting->Redraw();
}

template void ListViewProperties::store(bool Properties::*field, bool value);
template void ListViewProperties::store(Long Properties::*field, Long value);
template void ListViewProperties::store(Single Properties::*field, Single value);
template void ListViewProperties::store(OLE_COLOR Properties::*field, OLE_COLOR value);
template void ListViewProperties::store(cListViewStyle Properties::*field, cListViewStyle value);
template void ListViewProperties::store(cWheelFunction Properties::*field, cWheelFunction value);
template void ListViewProperties::store(Held<PictureRef> Properties::*field, PictureRef value);

} // namespace lumtex
