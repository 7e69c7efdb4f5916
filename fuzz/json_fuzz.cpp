/// JSON settings: no text may crash the reader, a list takes what it can, and what was taken is written so
/// that it says the same again.
#include "adapters/json/json_property_bag.h"
#include "fuzz_input.h"
#include "guards/error.h"
#include "model/list_view.h"
#include "worlds/headless/desktop.h"

using namespace lumtex;

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    static headless::Desktop desktop;
    static Host host;
    static lmListViewEvents events;
    Error().letSilentError(true);
    json::JsonPropertyBag bag(desktop.runtime());
    try {
        bag.parse({reinterpret_cast<const char*>(data), size});
    } catch (const RuntimeError& error) {
        fuzz::require(error.number() == ErrorNumber::invalidFileFormat);
        fuzz::require(bag.text() == "{}\n");
        return 0;
    }
    fuzz::require(bag.text() == "{}\n"); // nobody has asked for anything yet
    lmListView list(desktop, host, events);
    list.window().place(0, 0, 4, 4);
    list.UserControl_ReadProperties(bag);
    const std::string once = bag.text();
    json::JsonPropertyBag again(desktop.runtime());
    again.parse(once);
    list.UserControl_ReadProperties(again);
    fuzz::require(again.text() == once);
    json::JsonPropertyBag written(desktop.runtime());
    list.UserControl_WriteProperties(written);
    json::JsonPropertyBag back(desktop.runtime());
    back.parse(written.text());
    return 0;
}
