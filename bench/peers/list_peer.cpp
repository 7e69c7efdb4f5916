/// The list itself, on the desktop in memory.
#include "adapters/database/database_recordset.h"
#include "list_on_desktop.h"
#include "peer.h"
#include "values/text.h"

#include <algorithm>

namespace lumtex::bench {
namespace {

cSortType sortTypeOf(TableColumn column) {
    return column == amountColumn || column == numberColumn ? cSortNumeric
           : column == dateColumn                           ? cSortDate
                                                            : cSortText;
}

class ListPeer final : public Peer {
  public:
    void load(const Table& table) override {
        for (int row = 0; row < table.rows(); ++row)
            list().RowsAdd(Long{-1}, separator, table.wideRow(row));
    }
    int count() override { return list().RowsCount(); }
    std::string text(int row, int column) override { return toUtf8(list().ItemText(row + 1, column + 1)); }
    bool sort(TableColumn column) override {
        list().Sort(column + 1, cAscending, sortTypeOf(column));
        return true;
    }
    std::optional<int> find(const std::string& part, bool anyCase) override {
        const FindResults found =
            list().FindItem(u"*" + fromUtf8(part) + u"*", cFindStart, anyCase ? cFindText : cFindBinary);
        return found.FindSuccessful ? found.FindRow - 1 : -1;
    }
    bool insertFirst(const Table& table, int row) override {
        list().RowsAdd(Long{0}, separator, table.wideRow(row));
        return true;
    }
    bool removeFirst() override {
        list().RowsRemove(1);
        return true;
    }
    bool show() override {
        list().letAutoRedraw(true);
        list().letAutoCheckScroll(true);
        list().Redraw();
        return true;
    }
    void scrollTo(int row) override { list().letTopIndex(row); }
    int firstSeen() override { return list().TopIndex(); }
    bool hasInk() override {
        const auto picture = fixture_.desktop.screenshot(list().window());
        return std::any_of(picture.pixels.begin(), picture.pixels.end(), [&](std::uint32_t pixel) {
            return pixel != picture.pixels.back();
        });
    }
    void appendPainted(const Table& table, int row) override {
        list().RowsAdd(Long{-1}, separator, table.wideRow(row));
    }
    bool save(const std::string& path) override {
        list().ContentSave(fromUtf8(path), false);
        return true;
    }
    bool loadSaved(const std::string& path) override {
        list().ContentInput(fromUtf8(path), false);
        return true;
    }
    bool import(const std::string& path) override {
        list().setRecordset(database::openRecordset(path, "select * from records"));
        return true;
    }

  private:
    lmListView& list() { return fixture_.list; }

    ListOnDesktop fixture_;
};

} // namespace
} // namespace lumtex::bench

int main(int count, char** arguments) {
    using namespace lumtex::bench;
    return runMeasures(count, arguments, {{"the list", []() -> std::unique_ptr<Peer> {
                                               return std::make_unique<ListPeer>();
                                           }}});
}
