#include "automation/event_table.h"
#include "values/text.h"

#include <gtest/gtest.h>

namespace lumtex::testing {

namespace {

/// "Name(A: Long, B: Integer ref)"
std::string signatureOf(const automation::EventDescription& event) {
    std::string text = toUtf8(event.name) + "(";
    for (const automation::EventArgument& argument : event.arguments()) {
        if (text.back() != '(')
            text += ", ";
        text +=
            toUtf8(argument.name) + ": " + toUtf8(argument.type.name) + (argument.byReference ? " ref" : "");
    }
    return text + ")";
}

constexpr const char* mouse = "(Button: Integer ref, Shift: Integer ref, X: Single ref, Y: Single ref)";
constexpr const char* cell = "(Row: Long, Column: Long)";

} // namespace

TEST(Events, AreTwentySevenInTheirOrderWithTheirArguments) {
    const std::vector<std::string> expected = {
        "Click()",
        "DblClick()",
        "ItemCheck(Row: Long, Column: Long, NewValue: Boolean, Cancel: Boolean ref)",
        "ItemChecked(Row: Long, Column: Long, NewValue: Boolean)",
        std::string("MouseUp") + mouse,
        std::string("MouseMove") + mouse,
        std::string("MouseDown") + mouse,
        "ColumnClick(Column: Long ref)",
        "Scroll()",
        "KeyDown(KeyCode: Integer ref, Shift: Integer ref)",
        "KeyPress(KeyAscii: Integer ref)",
        "KeyUp(KeyCode: Integer ref, Shift: Integer ref)",
        "OLECompleteDrag(Effect: Long ref)",
        "OLEDragDrop(Data: Object ref, Effect: Long ref, Button: Integer ref, Shift: Integer ref, X: Single "
        "ref, "
        "Y: Single ref)",
        "OLEDragOver(Data: Object ref, Effect: Long ref, Button: Integer ref, Shift: Integer ref, X: Single "
        "ref, "
        "Y: Single ref, State: Integer ref)",
        "OLEGiveFeedback(Effect: Long ref, DefaultCursors: Boolean ref)",
        "OLESetData(Data: Object ref, DataFormat: Integer ref)",
        "OLEStartDrag(Data: Object ref, AllowedEffects: Long ref)",
        "ErrorWrongIndex(Index: Variant ref)",
        "SortDone()",
        "ListViewError(eSub: String, eNumber: Long, eDescription: String)",
        std::string("ItemClick") + cell,
        std::string("ItemDblClick") + cell,
        std::string("ItemDown") + cell,
        std::string("ItemUp") + cell,
        "ItemChanged(Row: Long, Column: Long, NewValue: String)",
        "ItemOver(Row: Long, Column: Long, bOverItem: Boolean)",
    };
    std::vector<std::string> actual;
    for (const automation::EventDescription& event : automation::eventTable)
        actual.push_back(signatureOf(event));
    EXPECT_EQ(actual, expected);
}

} // namespace lumtex::testing
