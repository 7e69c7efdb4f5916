/// The main paths through the list, each small enough to be run one instruction at a time. Without an
/// argument: their names; with one: goes that path, and fails where nothing came of it.
#include "adapters/database/database_recordset.h"
#include "counted_path.h"
#include "list_on_desktop.h"
#include "record_file.h"
#include "values/text.h"

#include <cstdio>
#include <filesystem>
#include <stdexcept>

#include <unistd.h>

namespace {

using namespace lumtex;
using namespace lumtex::bench;

constexpr Long rows = 10'000;
constexpr Long columnOfNumber = 1;
constexpr Long columnOfName = 2;
constexpr Long columnOfAmount = 4;
constexpr Long columnOfDate = 5;

void must(bool asExpected) {
    if (!asExpected)
        throw std::runtime_error("the path did not lead where it should");
}

void load() {
    ListOnDesktop fixture;
    const std::vector<String>& texts = rowsOf(rows);
    countedPath([&] { fixture.fill(texts); });
    must(fixture.list.RowsCount() == rows);
}

/// A list with all rows.
struct FilledList : ListOnDesktop {
    FilledList() { fill(rowsOf(rows)); }
};

void readTexts() {
    FilledList fixture;
    std::size_t units = 0;
    countedPath([&] {
        for (Long row = 1; row <= rows; ++row)
            units += fixture.list.ItemText(row, columnOfName).size();
    });
    must(units > std::size_t{8} * rows);
}

void writeTexts() {
    FilledList fixture;
    countedPath([&] {
        for (Long row = 1; row <= rows; ++row)
            fixture.list.letItemText(row, columnOfName, u"another name");
    });
    must(fixture.list.ItemText(rows, columnOfName) == u"another name");
}

void insertAtFront() {
    FilledList fixture;
    const std::vector<String>& texts = rowsOf(1000);
    countedPath([&] {
        for (const String& row : texts)
            fixture.list.RowsAdd(Long{0}, separator, row);
    });
    must(fixture.list.RowsCount() == rows + 1000);
}

void removeFromFront() {
    FilledList fixture;
    countedPath([&] {
        for (int i = 0; i < 1000; ++i)
            fixture.list.RowsRemove(1);
    });
    must(fixture.list.ItemText(1, columnOfNumber) == u"1001");
}

void sort(Long column, cSortType type) {
    FilledList fixture;
    countedPath([&] { fixture.list.Sort(column, cAscending, type); });
    must(fixture.list.ItemText(1, columnOfNumber) != u"1");
}

void find(cFindCompare compare) {
    FilledList fixture;
    bool found = true;
    countedPath([&] { found = fixture.list.FindItem(u"*Q7*", cFindStart, compare).FindSuccessful; });
    must(!found);
}

/// A list on the screen, with its fonts at hand.
struct ShownList : ListOnDesktop {
    explicit ShownList(Long count) {
        fill(rowsOf(count));
        list.letAutoRedraw(true);
        list.letAutoCheckScroll(true);
        list.CheckScroll();
        list.Redraw();
    }
};

void scrollByPages() {
    ShownList fixture(rows);
    countedPath([&] {
        for (Long page = 1; page <= 10; ++page)
            fixture.list.letTopIndex(page * 39);
    });
    must(fixture.list.TopIndex() == 390);
}

void appendPainted() {
    ShownList fixture(100);
    const String& row = rowsOf(100).front();
    countedPath([&] {
        for (int i = 0; i < 10; ++i)
            fixture.list.RowsAdd(Long{-1}, separator, row);
    });
    must(fixture.list.RowsCount() == 110);
}

/// The path of a file that goes with the object.
class TemporaryFile {
  public:
    TemporaryFile() = default;
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile() {
        std::error_code failure;
        std::filesystem::remove(path_, failure);
    }
    String path() const { return fromUtf8(path_.string()); }
    std::uintmax_t size() const { return std::filesystem::file_size(path_); }

  private:
    std::filesystem::path path_ =
        std::filesystem::temp_directory_path() / ("lumtex-paths-" + std::to_string(getpid()) + ".dat");
};

void save(bool withProperties) {
    FilledList fixture;
    const TemporaryFile file;
    countedPath([&] { fixture.list.ContentSave(file.path(), withProperties); });
    must(file.size() > std::uintmax_t{columns} * rows);
}

void loadSaved(bool withProperties) {
    FilledList source;
    const TemporaryFile file;
    source.list.ContentSave(file.path(), withProperties);
    ListOnDesktop fixture;
    // The first repaint looks for fonts, which is no part of loading.
    fixture.list.Redraw();
    countedPath([&] { fixture.list.ContentInput(file.path(), withProperties); });
    must(fixture.list.ItemText(rows, columnOfDate) == source.list.ItemText(rows, columnOfDate));
}

void import() {
    const RecordFile file(rowsOf(rows));
    ListOnDesktop fixture;
    fixture.list.Redraw();
    countedPath(
        [&] { fixture.list.setRecordset(database::openRecordset(file.path(), "select * from records")); });
    must(fixture.list.RowsCount() == rows);
}

struct Path {
    const char* name;
    void (*go)();
};

constexpr Path paths[] = {
    {"load", load},
    {"read-texts", readTexts},
    {"write-texts", writeTexts},
    {"insert-at-front", insertAtFront},
    {"remove-from-front", removeFromFront},
    {"sort-names", [] { sort(columnOfName, cSortText); }},
    {"sort-numbers", [] { sort(columnOfAmount, cSortNumeric); }},
    {"sort-dates", [] { sort(columnOfDate, cSortDate); }},
    {"find-exactly", [] { find(cFindBinary); }},
    {"find-any-case", [] { find(cFindText); }},
    {"scroll-by-pages", scrollByPages},
    {"append-painted", appendPainted},
    {"save-texts", [] { save(false); }},
    {"save-properties", [] { save(true); }},
    {"load-texts", [] { loadSaved(false); }},
    {"load-properties", [] { loadSaved(true); }},
    {"import", import},
};

} // namespace

int main(int count, char** arguments) {
    try {
        for (const Path& path : paths) {
            if (count < 2) {
                std::puts(path.name);
            } else if (std::string_view(arguments[1]) == path.name) {
                path.go();
                return 0;
            }
        }
        return count < 2 ? 0 : 2;
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s: %s\n", arguments[0], failure.what());
        return 1;
    }
}
