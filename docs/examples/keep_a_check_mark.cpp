/// A host that refuses a change.
/// Prints: first: 1, second: 0
#include "program.h"

namespace lumtex::examples {
namespace {

// [shown
class FirstStaysChecked : public lmListViewEvents {
    void ItemCheck(Long Row, Long /*Column*/, bool /*NewValue*/, bool& Cancel) override { Cancel = Row == 1; }
};
// shown]

void run(Program& program) {
    lmListView& list = program.list;
    program.addCities();
    // [shown
    list.letStyle(cCheckBoxes);
    list.letColumnCheckBoxes(1, true);
    list.letItemChecked(1, 1, true);
    list.letItemChecked(2, 1, true);
    // shown]
    program.clickAt(8, 30);
    program.clickAt(8, 46);
    program.out << "first: " << list.ItemChecked(1, 1) << ", second: " << list.ItemChecked(2, 1) << '\n';
}

const bool isKnown = known<FirstStaysChecked>(__FILE__, run);

} // namespace
} // namespace lumtex::examples
