/// \file
/// A list on the desktop in memory, and what it says of itself in words.
#pragma once

#include "accessibility/accessible_list.h"
#include "list_fixture.h"

#include <array>
#include <string>
#include <utility>
#include <vector>

namespace lumtex::testing {

/// "row 2", "cell 2,1", "header 3", "vertical bar".
inline std::string named(const accessibility::Element& element) {
    using accessibility::Kind;
    const std::string bar = element.horizontal ? "horizontal " : "vertical ";
    switch (element.kind) {
    case Kind::nothing:
        return "nothing";
    case Kind::list:
        return "list";
    case Kind::row:
        return "row " + std::to_string(element.row);
    case Kind::cell:
        return "cell " + std::to_string(element.row) + "," + std::to_string(element.column);
    case Kind::checkBox:
        return "box " + std::to_string(element.row) + "," + std::to_string(element.column);
    case Kind::headers:
        return "headers";
    case Kind::header:
        return "header " + std::to_string(element.column);
    case Kind::verticalBar:
    case Kind::horizontalBar:
        return bar + "bar";
    case Kind::lowArrow:
        return bar + "low arrow";
    case Kind::thumb:
        return bar + "thumb";
    case Kind::highArrow:
        return bar + "high arrow";
    case Kind::editor:
        return "editor";
    }
    return "?";
}

/// "focusable selected", in the order of the bits.
inline std::string inWords(accessibility::States states) {
    using namespace accessibility;
    static const std::vector<std::pair<State, std::string>> words{{gone, "gone"},
                                                                  {unavailable, "unavailable"},
                                                                  {invisible, "invisible"},
                                                                  {offscreen, "offscreen"},
                                                                  {focusable, "focusable"},
                                                                  {focused, "focused"},
                                                                  {selectable, "selectable"},
                                                                  {multiSelectable, "multiSelectable"},
                                                                  {selected, "selected"},
                                                                  {checkable, "checkable"},
                                                                  {checked, "checked"},
                                                                  {editable, "editable"},
                                                                  {sortedUp, "sortedUp"},
                                                                  {sortedDown, "sortedDown"},
                                                                  {hot, "hot"},
                                                                  {pressed, "pressed"}};
    std::string text;
    for (const auto& [state, word] : words)
        if ((states & state) != 0)
            text += (text.empty() ? "" : " ") + word;
    return text;
}

/// "focus row 2", "rowsAdded list 3".
inline std::string inWords(const accessibility::Change& change) {
    static constexpr std::array words{"focus",
                                      "selected",
                                      "selectionAdded",
                                      "selectionRemoved",
                                      "selectionChanged",
                                      "name",
                                      "value",
                                      "state",
                                      "rowsAdded",
                                      "rowsRemoved",
                                      "columnsChanged",
                                      "contents",
                                      "sorted",
                                      "scrolled",
                                      "shown",
                                      "hidden"};
    std::string text = words.at(static_cast<std::size_t>(change.kind));
    text += " " + named(change.element);
    return change.count != 0 ? text + " " + std::to_string(change.count) : text;
}

inline std::string inWords(const std::optional<Rect>& place) {
    if (!place)
        return "none";
    return std::to_string(place->Left) + "," + std::to_string(place->Top) + " " +
           std::to_string(place->Right - place->Left) + "x" + std::to_string(place->Bottom - place->Top);
}

/// 300 x 200 pixels with three columns of 100, 60 and 120 pixels, rows of 20 pixels, no border.
class SpokenList : public ListFixture {
  protected:
    SpokenList() {
        list.letRowsDynamic(false);
        list.letRowHeight(300);
        list.letBorderVisible(false);
        list.letIconH(13);
    }

    void addCities() {
        list.ColumnsAdd(u"City", nullptr, nullptr, nullptr, cColumnLeft, 1500, true);
        list.ColumnsAdd(u"Since", nullptr, nullptr, nullptr, cColumnLeft, 900, true);
        list.ColumnsAdd(u"Country", nullptr, nullptr, nullptr, cColumnLeft, 1800);
        for (const char16_t* row : {u"Lisbon,1143,Portugal", u"Oslo,1048,Norway", u"Quito,1534,Ecuador"})
            list.RowsAdd(Long{-1}, u",", row);
        settle();
    }
    /// What a host does behind a change of columns and rows.
    void settle() {
        list.CheckScroll();
        list.Redraw();
        events.log.clear();
    }
    void listen() {
        spoken.listen([this](const accessibility::Change& change) { told.push_back(inWords(change)); });
    }
    /// What `body` makes the list tell.
    std::vector<std::string> toldOf(const std::function<void()>& body) {
        told.clear();
        body();
        return told;
    }
    std::string name(const accessibility::Element& element) { return toUtf8(spoken.name(element)); }
    std::string states(const accessibility::Element& element) { return inWords(spoken.states(element)); }
    std::string place(const accessibility::Element& element) { return inWords(spoken.place(element)); }

    accessibility::AccessibleList spoken{list};
    std::vector<std::string> told;
};

} // namespace lumtex::testing
