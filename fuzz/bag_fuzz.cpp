/// Property bags: any value of any kind may stand under any key. The list takes what it can and works, and
/// what it writes then is what it writes after reading that.
#include "fuzz_input.h"
#include "guards/error.h"
#include "model/list_view.h"
#include "platform/property_bag.h"
#include "worlds/headless/desktop.h"

using namespace lumtex;

namespace {

/// The names of all keys, as a list writes them.
class Keys final : public PropertyBag {
  public:
    std::vector<String> names;
    Variant ReadProperty(StringView /*name*/, const Variant& byDefault) const override { return byDefault; }
    void WriteProperty(StringView name, const Variant& /*value*/, const Variant& /*byDefault*/) override {
        names.emplace_back(name);
    }
};

std::vector<MemoryPropertyBag::Entry> written(lmListView& list) {
    MemoryPropertyBag bag;
    list.UserControl_WriteProperties(bag);
    return bag.entries();
}

/// Numbers that are none equal nothing, themselves included; fonts are cloned where they are assigned.
bool sameEntry(const MemoryPropertyBag::Entry& a, const MemoryPropertyBag::Entry& b) {
    if (a.name != b.name || a.value.isObject() != b.value.isObject())
        return false;
    return a.value.isObject() || a.value.toText() == b.value.toText();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    static headless::Desktop desktop;
    static Host host;
    static lmListViewEvents events;
    Error().letSilentError(true);
    lmListView list(desktop, host, events);
    list.UserControl_InitProperties();
    static Keys keys;
    if (keys.names.empty())
        list.UserControl_WriteProperties(keys);
    fuzz::Input input(data, size);
    MemoryPropertyBag bag;
    while (!input.atEnd()) {
        const String& name = keys.names[input.below(static_cast<unsigned>(keys.names.size()))];
        bag.WriteProperty(name, input.value(), Missing{});
    }
    list.window().place(0, 0, 120, 60);
    list.UserControl_ReadProperties(bag);
    list.ColumnsAdd(u"column");
    for (int row = 0; row < 9; ++row)
        list.RowsAdd(Long{-1}, u",", u"row");
    list.Redraw();
    fuzz::require(list.RowsCount() == 9 && list.ItemText(9, 1) == u"row");
    const auto once = written(list);
    MemoryPropertyBag second;
    for (const MemoryPropertyBag::Entry& entry : once)
        second.WriteProperty(entry.name, entry.value, Missing{});
    list.UserControl_ReadProperties(second);
    const auto twice = written(list);
    fuzz::require(std::equal(once.begin(), once.end(), twice.begin(), twice.end(), sameEntry));
    return 0;
}
