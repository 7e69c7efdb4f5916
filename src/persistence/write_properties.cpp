/// Saving the settings.
#include "persistence/property_keys.h"

#include <algorithm>

namespace lumtex {

void lmListView::UserControl_WriteProperties(PropertyBag& bag) {
    Procedure p = procedure(u"UserControl_WriteProperties");
    std::vector<PropertyKey> keys;
    if (!p.step([&] { keys = propertyKeys(); }))
        return;
    const auto write = [&](const PropertyKey& key) {
        p.step([&] { bag.WriteProperty(key.name, key.get(*this), key.byDefault); });
    };
    const auto late = std::ranges::find(keys, StringView(u"AutoRedraw"), &PropertyKey::name);
    for (const PropertyKey& key : keys) {
        if (&key == &*late)
            continue;
        write(key);
        // Wanted: one key is written earlier than it is read.
        if (key.name == u"EmptyColumnFieldWidth")
            write(*late);
    }
}

} // namespace lumtex
