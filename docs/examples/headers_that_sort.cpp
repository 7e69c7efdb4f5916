/// A click on a header sorts as text; the program can sort again as numbers.
/// Prints: first: Bergen
#include "program.h"

namespace lumtex::examples {
namespace {

// [shown
class SortsNumbers : public lmListViewEvents {
  public:
    lmListView* list = nullptr;

  private:
    void ColumnClick(Long& Column) override {
        if (Column != 3)
            return;
        ascending_ = !ascending_;
        list->Sort(Column, ascending_ ? cAscending : cDescending, cSortNumeric);
        list->Redraw();
    }

    bool ascending_ = false;
};
// shown]

void run(Program& program) {
    lmListView& list = program.list;
    program.addCities();
    // [shown
    list.letColumnAllowSorting(1, true);
    static_cast<SortsNumbers&>(*program.events).list = &list;
    // shown]
    program.clickAt(340, 8);
    program.out << "first: " << toUtf8(list.ItemText(1, 1)) << '\n';
}

const bool isKnown = known<SortsNumbers>(__FILE__, run);

} // namespace
} // namespace lumtex::examples
