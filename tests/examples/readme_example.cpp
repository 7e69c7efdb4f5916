/// \file
/// The example of the README, as a program of its own.
// [readme
#include "adapters/pictures/image_file.h"
#include "model/list_view.h"
#include "worlds/headless/person.h"

#include <iostream>
using namespace lumtex;

struct Clicks : lmListViewEvents {
    void ItemClick(Long Row, Long Column) override { std::cout << Row << ", " << Column << '\n'; }
};

int main() {
    headless::Desktop desktop;              // a screen in memory, with a pointer and a clock
    desktop.runtime().boxesTo = &std::cerr; // failures show a box, which nobody sees here
    Host host;
    Clicks events;
    lmListView list(desktop, host, events);
    list.UserControl_ReadProperties(MemoryPropertyBag{}); // no saved settings
    list.window().place(0, 0, 320, 120);
    list.ColumnsAdd(u"City", nullptr, nullptr, nullptr, cColumnLeft, 2400); // twips: 15 a pixel
    list.ColumnsAdd(u"Country", nullptr, nullptr, nullptr, cColumnLeft, 2400);
    for (const char16_t* row : {u"Lisbon,Portugal", u"Oslo,Norway", u"Quito,Ecuador"})
        list.RowsAdd(-1, u",", row);
    headless::Person(desktop).click(list.window(), 40, 50); // "2, 1"
    pictures::savePng(desktop.screenshot(list.window()), "cities.png");
}
// readme]
