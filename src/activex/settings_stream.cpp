/// Settings to bytes and back.
#include "activex/settings_stream.h"

#include "activex/settings_objects.h"
#include "worlds/win32/variant_bridge.h"

#include <set>

namespace lumtex::win32 {

namespace {

constexpr std::uint32_t mark = 0x564C4D4C; // "LMLV"
constexpr std::uint32_t version = 1;
/// More than any bag of ours has, and few enough to refuse a damaged stream early.
constexpr std::uint32_t mostValues = 1000;
constexpr std::uint32_t longestName = 255;
constexpr std::uint32_t longestText = 1U << 20U;

void savePlain(SettingsWriter& to, const VARIANT& value) {
    to.plain(std::uint32_t{V_VT(&value)});
    switch (V_VT(&value)) {
    case VT_BOOL:
    case VT_I2:
        return to.plain(V_I2(&value));
    case VT_I4:
    case VT_R4:
        return to.plain(V_I4(&value));
    case VT_R8:
        return to.plain(V_R8(&value));
    case VT_BSTR:
        return to.text(viewBSTR(V_BSTR(&value)));
    default:
        throw RuntimeError(ErrorNumber::typeMismatch);
    }
}

void save(SettingsWriter& to, const Variant& value) {
    if (!value.isObject())
        return savePlain(to, toVARIANT(value).get());
    to.plain(std::uint32_t{VT_DISPATCH});
    saveSettingsObject(to, value);
}

Variant loadPlain(SettingsReader& from, std::uint32_t type) {
    switch (type) {
    case VT_BOOL:
        return from.plain<SHORT>() != VARIANT_FALSE;
    case VT_I2:
        return Integer{from.plain<SHORT>()};
    case VT_I4:
        return static_cast<Long>(from.plain<LONG>());
    case VT_R4:
        return from.plain<Single>();
    case VT_R8:
        return from.plain<Double>();
    case VT_BSTR:
        return from.text(longestText);
    default:
        SettingsReader::refuse();
    }
}

} // namespace

void saveSettings(IStream& stream, const MemoryPropertyBag& bag) {
    std::vector<const MemoryPropertyBag::Entry*> saved;
    for (const MemoryPropertyBag::Entry& entry : bag.entries()) {
        if (!entry.value.isObject() || isSavedObject(entry.value))
            saved.push_back(&entry);
    }
    SettingsWriter to(stream);
    to.plain(mark);
    to.plain(version);
    to.plain(static_cast<std::uint32_t>(saved.size()));
    for (const MemoryPropertyBag::Entry* entry : saved) {
        to.text(entry->name);
        save(to, entry->value);
    }
}

void loadSettings(IStream& stream, MemoryPropertyBag& bag) {
    SettingsReader from(stream);
    if (from.number() != mark || from.number() != version)
        SettingsReader::refuse();
    const std::uint32_t count = from.number(mostValues);
    std::set<String> names;
    for (std::uint32_t i = 0; i < count; ++i) {
        const String name = from.text(longestName);
        if (!names.insert(name).second)
            SettingsReader::refuse();
        const std::uint32_t type = from.number();
        const Variant value =
            type == VT_DISPATCH ? loadSettingsObject(from, settingsKindOf(name)) : loadPlain(from, type);
        // An object that nobody knows the key of is read over.
        if (!value.isEmpty())
            bag.WriteProperty(name, value, Missing{});
    }
}

} // namespace lumtex::win32
