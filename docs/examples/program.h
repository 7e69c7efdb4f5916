/// \file
/// What stands around each example: a program with a list, on a desktop in memory.
#pragma once

#include "model/list_view.h"
#include "values/text.h"
#include "worlds/headless/person.h"

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <sstream>

namespace lumtex::examples {

/// A window of 420 x 150 pixels with nothing but the list in it.
class Program {
  public:
    Program(std::shared_ptr<raster::FontLibrary> fonts, std::unique_ptr<lmListViewEvents> heard)
        : desktop(std::move(fonts)), events(std::move(heard)) {
        list.UserControl_ReadProperties(MemoryPropertyBag{}); // no saved settings
        list.window().place(0, 0, 420, 150);
    }

    /// Three columns of 150, 150 and 90 pixels, and five cities.
    void addCities() {
        list.ColumnsAdd(u"City", nullptr, nullptr, nullptr, cColumnLeft, 2250);
        list.ColumnsAdd(u"Country", nullptr, nullptr, nullptr, cColumnLeft, 2250);
        list.ColumnsAdd(u"People", nullptr, nullptr, nullptr, cColumnLeft, 1350);
        for (const char16_t* city : {u"Lisbon,Portugal,545000",
                                     u"Oslo,Norway,709000",
                                     u"Quito,Ecuador,1763000",
                                     u"Bergen,Norway,291000",
                                     u"Cuenca,Ecuador,361000"})
            list.RowsAdd(-1, u",", city);
    }
    /// Pixels of the list.
    void clickAt(float x, float y) { person.click(list.window(), x, y); }
    /// Into the middle of a cell that is shown; rows and columns count from 1.
    void clickOn(Long row, Long column) {
        const float left = list.ColumnLeft(column) + list.ColumnWidth(column) / 2;
        clickAt(left / 15, 16.0F * static_cast<float>(row) + 14);
    }

    headless::Desktop desktop;
    headless::Person person{desktop};
    Host host;
    std::unique_ptr<lmListViewEvents> events;
    lmListView list{desktop, host, *events};
    std::filesystem::path folder; ///< exists, and is empty
    std::ostringstream out;       ///< what the example prints
};

/// An example by name. Each makes itself known as the program starts.
struct Example {
    std::function<void(Program&)> run;
    std::function<std::unique_ptr<lmListViewEvents>()> makeEvents;
};

/// All of them, by the names of their files.
std::map<std::string, Example>& examples();

/// Makes an example known that hears of events as `Events` do.
template <class Events = lmListViewEvents>
bool known(const char* file, void (*run)(Program&)) {
    examples()[std::filesystem::path(file).stem().string()] = {run,
                                                               [] { return std::make_unique<Events>(); }};
    return true;
}

} // namespace lumtex::examples
