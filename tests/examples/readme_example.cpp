/// \file
/// The example of the README, as a program of its own.
// [readme
#include "adapters/pictures/image_file.h"
#include "model/list_view.h"
#include "worlds/headless/desktop.h"
using namespace lumtex;

int main() {
    headless::Desktop desktop; // a screen in memory, with a pointer and a clock
    Host host;
    lmListViewEvents events; // derive from this to hear of clicks
    lmListView list(desktop, host, events);
    list.UserControl_InitProperties();
    list.window().place(0, 0, 320, 120);
    list.ColumnsAdd(u"City", nullptr, nullptr, nullptr, cColumnLeft, 2400); // twips: 15 a pixel
    list.ColumnsAdd(u"Country", nullptr, nullptr, nullptr, cColumnLeft, 2400);
    for (const char16_t* row : {u"Lisbon,Portugal", u"Oslo,Norway", u"Quito,Ecuador"})
        list.RowsAdd(-1, u",", row);
    pictures::savePng(desktop.screenshot(list.window()), "cities.png");
}
// readme]
