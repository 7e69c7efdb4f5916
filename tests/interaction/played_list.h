/// \file
/// A list that tests play on with mouse and keyboard.
#pragma once

#include "guards/error.h"
#include "list_fixture.h"

#include <chrono>

namespace lumtex::testing {

/// 300 x 200 pixels in its full idle state, without a border, rows of 20 pixels, columns from 0 on.
class PlayedList : public ListFixture {
  protected:
    static constexpr Single rowHeight = 20;

    /// A place on the list's surface.
    struct At {
        Single x = 0;
        Single y = 0;
    };

    PlayedList() {
        list.UserControl_ReadProperties(MemoryPropertyBag{});
        list.letBorderVisible(false);
        list.letRowsDynamic(false);
        list.letRowHeight(rowHeight * 15);
    }
    ~PlayedList() override { Error().letSilentError(false); }

    /// Rows of two columns of 60 pixels, or of those given; the cells read "1a", "1b", "2a" ...
    void fill(int rows, std::initializer_list<int> widths = {60, 60}) {
        addColumns(widths);
        for (int row = 1; row <= rows; ++row) {
            String texts;
            for (std::size_t column = 0; column < widths.size(); ++column) {
                texts += column == 0 ? u"" : u",";
                for (const char digit : std::to_string(row))
                    texts += static_cast<char16_t>(digit);
                texts += static_cast<char16_t>(u'a' + column);
            }
            list.RowsAdd(Long{-1}, u",", texts);
        }
        events.log.clear();
    }

    Single headerHeight() { return static_cast<Single>(inside.ColumnHeight()); }
    Single columnLeft(Long column) {
        Single left = inside.firstColumnX();
        for (Long c = 1; c < column; ++c)
            left += list.ColumnWidth(c) / 15;
        return left;
    }
    Single columnWidth(Long column) { return list.ColumnWidth(column) / 15; }
    Single rowTop(Long row) {
        return headerHeight() + rowHeight * static_cast<Single>(row - 1 - list.TopIndex());
    }
    /// The middle of a cell, right of where a check box would lie.
    At cell(Long row, Long column) {
        return {columnLeft(column) + columnWidth(column) / 2, rowTop(row) + rowHeight / 2};
    }
    At header(Long column) { return {columnLeft(column) + columnWidth(column) / 2, headerHeight() / 2}; }
    /// Inside the grip at a column's right edge.
    At divider(Long column) { return {columnLeft(column) + columnWidth(column) - 2, headerHeight() / 2}; }

    void move(At at) { desktop.move(list.window(), at.x, at.y); }
    /// Moves there, lets the list notice that the mouse is inside, and stirs it once more.
    void hover(At at) {
        move(at);
        desktop.advance(std::chrono::milliseconds(1));
        move(at);
        events.log.clear();
    }
    void press(At at, MouseButton button = leftButton) {
        hover(at);
        desktop.press(button);
    }
    void click(At at, MouseButton button = leftButton) {
        press(at, button);
        desktop.release(button);
    }

    /// The log so far, moves left out; starts a new one.
    std::vector<std::string> taken() {
        std::vector<std::string> log = std::exchange(events.log, {});
        std::erase_if(log,
                      [](const std::string& line) { return line.find("MouseMove") != std::string::npos; });
        return log;
    }
    /// The names alone.
    std::vector<std::string> takenNames() {
        std::vector<std::string> names = taken();
        for (std::string& line : names)
            line = line.substr(0, line.find(' ', line.find_first_not_of(' ')));
        return names;
    }

    /// "index=2 selected=1,3": both counted from 1.
    std::string selection() {
        std::string text = "index=" + std::to_string(inside.properties().ListIndex + 1) + " selected=";
        std::string separator;
        for (std::size_t row = 0; row < inside.rows().size(); ++row) {
            if (inside.rows()[row].Selected) {
                text += separator + std::to_string(row + 1);
                separator = ",";
            }
        }
        return text;
    }
    std::string text(Long row, Long column) { return toUtf8(list.ItemText(row, column)); }
    /// The texts of one column, separated by blanks.
    std::string columnTexts(Long column) {
        std::string texts;
        for (Long row = 1; row <= list.RowsCount(); ++row)
            texts += (row == 1 ? "" : " ") + text(row, column);
        return texts;
    }

    /// How many times the list yields during `action`.
    int yieldsOf(const std::function<void()>& action) {
        int yields = 0;
        constexpr int many = 1000;
        desktop.onYield([&yields] { ++yields; }, many);
        action();
        const int counted = yields;
        // Uses up what is left, so that nothing counts later.
        while (yields < many)
            desktop.runtime().DoEvents();
        return counted;
    }
};

using Lines = std::vector<std::string>;

} // namespace lumtex::testing
