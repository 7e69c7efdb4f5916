/// Records are read at once where their object offers that, else by a call by name for each value. Both give
/// the same list and the same reports.
#include "list_fixture.h"
#include "test_recordset.h"

#include <random>

namespace lumtex::testing {
namespace {

using Records = std::vector<std::vector<Variant>>;

class RecordsetPair : public ListFixture {
  protected:
    std::uint32_t below(std::uint32_t limit) { return static_cast<std::uint32_t>(random_() % limit); }

    Variant value() {
        switch (below(7)) {
        case 0:
            return Null{};
        case 1:
            return static_cast<Long>(below(1000));
        case 2:
            return below(1000) / 8.0;
        case 3:
            return below(2) != 0;
        case 4:
            return Date{36526.0 + below(9000)};
        case 5:
            return u"a,b";
        default:
            return String(below(9), u'x');
        }
    }

    template <class Kind>
    std::string imported(const std::vector<String>& names, const Records& records) {
        desktop.runtime().boxes.clear();
        events.log.clear();
        list.setRecordset(std::make_shared<Kind>(names, records));
        std::string all;
        for (Long column = 1; column <= list.ColumnsCount(); ++column)
            all += toUtf8(list.ColumnText(column)) + "|";
        for (Long row = 1; row <= list.RowsCount(); ++row) {
            all += "\n";
            for (Long column = 1; column <= list.ColumnsCount(); ++column)
                all += toUtf8(list.ItemText(row, column)) + "|";
        }
        for (const auto& box : desktop.runtime().boxes)
            all += "\n" + toUtf8(box.text);
        for (const std::string& event : events.log)
            all += "\n" + event;
        return all + "\n" + std::to_string(list.NewIndex());
    }

  private:
    std::mt19937 random_{20261122};
};

TEST_F(RecordsetPair, AtOnceAndByNameTheSameIsImported) {
    list.letAutoRedraw(false);
    for (int round = 0; round < 60; ++round) {
        std::vector<String> names;
        for (std::uint32_t i = 1 + below(4); i > 0; --i)
            names.push_back(String(below(3), u'n'));
        Records records;
        for (std::uint32_t i = 1 + below(8); i > 0; --i) {
            records.emplace_back();
            for (std::size_t field = 0; field < names.size(); ++field)
                records.back().push_back(value());
        }
        ASSERT_EQ(imported<DirectTestRecordset>(names, records), imported<TestRecordset>(names, records))
            << "round " << round;
    }
}

} // namespace
} // namespace lumtex::testing
