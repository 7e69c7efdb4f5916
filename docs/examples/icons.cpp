/// A picture beside a text.
#include "program.h"
#include "values/references/picture.h"

namespace lumtex::examples {
namespace {

void run(Program& program) {
    lmListView& list = program.list;
    program.addCities();
    // [shown
    const auto flag = std::make_shared<BitmapPicture>(Bitmap(16, 16, 0xFF2060A0)); // 0xAARRGGBB
    list.setItemIcon(2, 2, flag);
    list.setItemIcon(4, 2, flag);
    list.letDistPicText(6); // pixels
    list.Redraw();
    // shown]
}

const bool isKnown = known(__FILE__, run);

} // namespace
} // namespace lumtex::examples
