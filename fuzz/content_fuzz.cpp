/// Content files: no bytes may crash or hang the reader, and what was read comes back from a file of its own.
#include "content/content_bytes.h"
#include "fuzz_input.h"
#include "guards/error.h"
#include "model/list_view.h"
#include "values/text.h"
#include "worlds/headless/desktop.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

#include <unistd.h>

namespace {

using namespace lumtex;
using fuzz::require;

constexpr std::size_t headerSize = 12;
/// Cells that one input may ask for; as many as the reader itself admits take seconds.
constexpr std::int64_t mostCells = 4000;
constexpr Long mostColumns = 3;

struct Target {
    headless::Desktop desktop;
    Host host;
    lmListViewEvents events;
    lmListView list{desktop, host, events};
    const std::filesystem::path file =
        std::filesystem::temp_directory_path() / ("lumtex_fuzz_" + std::to_string(getpid()) + ".dat");
    const String path = fromUtf8(file.string());

    Target() {
        Error().letSilentError(true);
        list.UserControl_ReadProperties(MemoryPropertyBag());
        list.letAutoRedraw(false);
        list.window().place(0, 0, 4, 4); // shows no row: fonts of any name are not what is tested here
    }
    Target(const Target&) = delete;
    Target& operator=(const Target&) = delete;
    ~Target() {
        std::error_code failure;
        std::filesystem::remove(file, failure);
    }

    void write(std::string_view bytes) const { std::ofstream(file, std::ios::binary) << bytes; }
    std::string save() {
        require(list.ContentSave(path, true));
        std::ifstream stream(file, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }
};

bool asksForTooMuch(std::string_view bytes) {
    std::string whole(bytes.substr(0, headerSize));
    whole.resize(headerSize); // what is missing reads as zeros
    const auto* const header = reinterpret_cast<const Byte*>(whole.data());
    const std::int64_t rows = content::loadNumber<Long>(header + 2);
    return rows * std::max(content::loadNumber<Long>(header + 6), mostColumns) > mostCells;
}

} // namespace

/// The first byte says how many columns the list has and whether properties are wanted; the rest is the file.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    static Target target;
    if (size == 0)
        return 0;
    const std::string_view bytes(reinterpret_cast<const char*>(data) + 1, size - 1);
    if (asksForTooMuch(bytes))
        return 0;
    lmListView& list = target.list;
    list.RowsClear();
    list.ColumnsClear();
    for (int column = data[0] / 2 % (mostColumns + 1); column > 0; --column)
        list.ColumnsAdd(u"");
    target.write(bytes);
    require(list.ContentInput(target.path, data[0] % 2 != 0));
    const std::string once = target.save();
    require(list.ContentInput(target.path, true));
    require(target.save() == once);
    return 0;
}
