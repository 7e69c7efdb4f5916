/// \file
/// A widget with cities, as Qt's accessibility sees it.
#pragma once

#include "widget_fixture.h"

#include <QAccessible>
#include <string>
#include <vector>

namespace lumtex::testing {

/// Switches accessibility on for the program, as the platform does once somebody asks.
void switchAccessibility(bool on);

/// "Row Oslo", "CheckBox Since"; "nobody" for null.
std::string named(QAccessibleInterface* asked);
/// What is set of the state, in words: "focusable selected".
std::string inWords(const QAccessible::State& state);

/// Shown, 300 x 200 pixels large, with three columns of 100, 60 and 120 pixels, rows of 20 pixels, no border.
class SpokenWidget : public WidgetTest {
  protected:
    SpokenWidget();
    ~SpokenWidget() override;

    /// Three rows; the first two columns may be sorted by.
    void addCities();
    /// A check box in each cell of the second column.
    void addCheckBoxes();
    /// As many more rows, all alike.
    void addRows(int count);
    /// What a program does behind a change of columns and rows.
    void settle();

    QAccessibleInterface& table() { return *QAccessible::queryAccessibleInterface(widget.get()); }
    /// All count from 0.
    QAccessibleInterface& row(int number) { return *table().child(number); }
    QAccessibleInterface& cell(int row, int column) { return *table().tableInterface()->cellAt(row, column); }
    QAccessibleInterface& checkBox(int row) { return *cell(row, 1).child(0); }
    /// Of the list, behind its rows.
    QAccessibleInterface& headers() { return *table().child(table().tableInterface()->rowCount()); }
    QAccessibleInterface& bar() { return *table().child(table().tableInterface()->rowCount() + 1); }

    /// What Qt is told while `body` runs and events go through: "Focus Row Oslo".
    std::vector<std::string> toldOf(const std::function<void()>& body);
    /// The same lines of one kind.
    std::vector<std::string> toldOf(const std::string& kind, const std::function<void()>& body);
};

} // namespace lumtex::testing
