/// The values of a new instance.
#include "guards/failure_of.h"
#include "model/list_view.h"
#include "persistence/property_values.h"
#include "render/painting.h"

namespace lumtex {

namespace {

/// One program, recognised by its name, gets larger jumps and a lower text.
bool runsInKnownProgram(const ComponentInfo& component) {
    constexpr StringView known = u"qrdmph";
    const String& name = component.exeName;
    return name.size() == known.size() &&
           std::equal(name.begin(), name.end(), known.begin(), [](char16_t a, char16_t b) {
               return (a >= u'A' && a <= u'Z' ? a + (u'a' - u'A') : a) == b;
           });
}

/// The settings of a new list come in the order in which saved ones are read, but for one.
constexpr auto firstOrder = propertyOrder(readingMovesAnd({u"EmptyColumnFieldColor", u"GridLineColor"}));

} // namespace

/// A container without a font leaves that of the design.
void lmListView::takeContainersFont() {
    ignoringErrors([&] {
        if (const FontRef font = host().parentFont())
            lblFont->spec = font->spec;
    });
}

void lmListView::recogniseProgram() {
    knownProgram = runsInKnownProgram(runtime().program().component());
}

void lmListView::UserControl_InitProperties() {
    Procedure p = procedure(u"UserControl_InitProperties");
    takeContainersFont();
    recogniseProgram();

    p.step([&] { painting->hold(); });
    forEachProperty<firstOrder>([&](const auto& row) {
        // The current row is no setting, and has no row of the table; it begins between two that are.
        if (row.name == u"ScrollColorStyle")
            letListIndex(-1);
        if (row.start.inNewList)
            p.step([&] { assign(row, startOf(row)); });
    });
    p.step([&] { painting->release(); });
}

} // namespace lumtex
