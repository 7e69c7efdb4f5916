/// A control of the program over a cell.
/// Prints: shown at 151, 149 wide
#include "program.h"
#include "values/runtime_error.h"

namespace lumtex::examples {
namespace {

// [shown
/// What the list asks of a control: its height, to be shown or hidden, and to be moved. All lengths are
/// twips.
class Gauge : public Object {
  public:
    bool visible = false;
    float left = 0;
    float width = 0;

    Variant get(StringView name, std::span<Variant> /*arguments*/) override {
        if (name == u"Height")
            return 200.0F;
        throw RuntimeError(ErrorNumber::objectDoesNotSupportMember); // it has no window of its own, for one
    }
    void put(StringView name, const Variant& value) override {
        if (name == u"Visible")
            visible = value.toBoolean();
    }
    Variant call(StringView name, std::span<Variant> place) override {
        if (name == u"Move") {
            left = place[0].toSingle(); // then the top
            width = place[2].toSingle();
        }
        return {};
    }
};
// shown]

void run(Program& program) {
    lmListView& list = program.list;
    program.addCities();
    // [shown
    const auto gauge = std::make_shared<Gauge>();
    list.setItemObject(2, 2, gauge); // the next paint shows and moves it
    // shown]
    program.out << (gauge->visible ? "shown" : "hidden") << " at " << gauge->left / 15 << ", "
                << gauge->width / 15 << " wide\n";
}

const bool isKnown = known(__FILE__, run);

} // namespace
} // namespace lumtex::examples
