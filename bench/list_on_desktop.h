/// \file
/// The list that benchmarks work on, and the rows that they fill it with.
#pragma once

#include "model/list_view.h"
#include "sample_rows.h"
#include "worlds/headless/desktop.h"
#include "worlds/headless/headless_window.h"

#include <vector>

namespace lumtex::bench {

constexpr int columns = 5;
constexpr StringView separator = u"|";

/// That many rows of one seed, made once. The reference lives as long as the program.
const std::vector<String>& rowsOf(std::int64_t count);

/// A list with five columns, or these several times, as large as the screen of the painting benchmarks.
struct ListOnDesktop {
    headless::Desktop desktop;
    Host host;
    lmListViewEvents events;
    lmListView list{desktop, host, events};

    explicit ListOnDesktop(int count = columns) {
        list.UserControl_ReadProperties(MemoryPropertyBag());
        list.letAutoRedraw(false);
        list.letAutoCheckScroll(false);
        constexpr Single widths[columns] = {70, 200, 160, 120, 110};
        for (int i = 0; i < count; ++i)
            list.ColumnsAdd(u"Column", nullptr, nullptr, nullptr, cColumnLeft, widths[i % columns] * 15);
        list.window().place(0, 0, 1280, 800);
    }
    void fill(const std::vector<String>& rows) {
        for (const String& row : rows)
            list.RowsAdd(Long{-1}, separator, row);
    }
};

} // namespace lumtex::bench
