/// Cells that the user writes into.
/// Prints: 1, 1: Lisbon (old)
#include "program.h"

namespace lumtex::examples {
namespace {

// [shown
class HearsOfEdits : public lmListViewEvents {
  public:
    std::ostream* out = nullptr;

  private:
    void ItemChanged(Long Row, Long Column, const String& NewValue) override {
        *out << Row << ", " << Column << ": " << toUtf8(NewValue) << '\n';
    }
};
// shown]

void run(Program& program) {
    lmListView& list = program.list;
    program.addCities();
    // [shown
    list.letAllowEdit(true); // a second press on a cell opens the editor
    for (Long row = 1; row <= list.RowsCount(); ++row)
        list.letItemAllowEdit(row, 1, true);
    static_cast<HearsOfEdits&>(*program.events).out = &program.out;
    // shown]
    program.clickOn(1, 1);
    program.clickOn(1, 1);
    program.person.key(keys::end); // the whole text is selected at first
    program.person.type(u" (old)");
    program.person.key(keys::enter);
}

const bool isKnown = known<HearsOfEdits>(__FILE__, run);

} // namespace
} // namespace lumtex::examples
