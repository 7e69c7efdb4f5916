#include "persistence/settings_by_key.h"

#include "persistence/property_values.h"

namespace lumtex {

namespace {

/// Calls `visit` with the row of that key.
template <class Visit>
void withRow(StringView key, Visit visit) {
    forEachProperty<readingOrder>([&](const auto& row) {
        if (row.name == key)
            visit(row);
    });
}

} // namespace

Variant SettingsByKey::value(StringView key) const {
    Variant value;
    withRow(key, [&](const auto& row) {
        using Value = ValueOf<std::remove_cvref_t<decltype(list_.properties.*row.field)>>;
        const Value kept = list_.properties.*row.field;
        value = toVariant(kept);
    });
    return value;
}

void SettingsByKey::let(StringView key, const Variant& value) {
    withRow(key, [&](const auto& row) { list_.assign(row, value); });
}

void SettingsByKey::reset(StringView key) {
    Procedure p = list_.procedure(u"ResetProperty");
    withRow(key, [&](const auto& row) { p.step([&] { list_.assign(row, list_.startOf(row)); }); });
}

} // namespace lumtex
