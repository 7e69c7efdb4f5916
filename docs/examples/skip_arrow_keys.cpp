/// A key that the list does not get.
/// Prints: row: 2
#include "program.h"

namespace lumtex::examples {
namespace {

// [shown
class NoArrowDown : public lmListViewEvents {
    void KeyDown(Integer& KeyCode, Integer& /*Shift*/) override {
        if (KeyCode == 40)
            KeyCode = 0; // the list takes no key instead
    }
};
// shown]

void run(Program& program) {
    lmListView& list = program.list;
    program.addCities();
    // [shown
    list.letRowIndex(1);
    // shown]
    program.clickOn(2, 1);
    program.desktop.key(40);
    program.out << "row: " << list.RowIndex() << '\n';
}

const bool isKnown = known<NoArrowDown>(__FILE__, run);

} // namespace
} // namespace lumtex::examples
