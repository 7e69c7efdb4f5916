/// \file
/// Somebody's program: fills a list, looks into it, and leaves a picture of it. Its status says what failed.
#include "adapters/pictures/image_file.h"
#include "automation/call_by_name.h"
#include "model/list_view.h"
#include "values/references/picture.h"
#include "values/version.h"
#include "worlds/headless/desktop.h"

#include <cstdint>
#include <set>

using namespace lumtex;

int main(int count, char** arguments) {
    if (count != 2)
        return 1;
    headless::Desktop desktop;
    Host host;
    lmListViewEvents events;
    lmListView list(desktop, host, events);
    list.UserControl_InitProperties();
    list.window().place(0, 0, 320, 120);
    list.ColumnsAdd(u"City", nullptr, nullptr, nullptr, cColumnLeft, 2400);
    list.ColumnsAdd(u"Country", nullptr, nullptr, nullptr, cColumnLeft, 2400);
    for (const char16_t* row : {u"Quito,Ecuador", u"Lisbon,Portugal", u"Oslo,Norway"})
        list.RowsAdd(-1, u",", row);
    list.Sort(1, cAscending);
    if (list.RowsCount() != 3 || list.ItemText(1, 1) != u"Lisbon" || list.ItemText(3, 2) != u"Ecuador")
        return 2;

    pictures::savePng(desktop.screenshot(list.window()), arguments[1]);
    const Bitmap& pixels = pictures::loadPicture(arguments[1])->bitmap();
    if (pixels.width != 320 || pixels.height != 120)
        return 3;
    const std::set<std::uint32_t> colours(pixels.pixels.begin(), pixels.pixels.end());
    return colours.size() > 10 ? 0 : 4;
}
