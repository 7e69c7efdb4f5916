/// A handler that knows the list.
/// Prints: clicked: Ecuador
#include "program.h"

namespace lumtex::examples {
namespace {

// [shown
class ShowsWhatIsClicked : public lmListViewEvents {
  public:
    lmListView* list = nullptr;
    std::ostream* out = nullptr;

  private:
    void ItemClick(Long Row, Long Column) override {
        *out << "clicked: " << toUtf8(list->ItemText(Row, Column)) << '\n';
    }
};
// shown]

void run(Program& program) {
    lmListView& list = program.list;
    program.addCities();
    // [shown
    auto& clicks = static_cast<ShowsWhatIsClicked&>(*program.events);
    clicks.list = &list;
    clicks.out = &program.out;
    // shown]
    program.clickOn(3, 2);
}

const bool isKnown = known<ShowsWhatIsClicked>(__FILE__, run);

} // namespace
} // namespace lumtex::examples
