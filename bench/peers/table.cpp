#include "table.h"

namespace lumtex::bench {

Table::Table(int rows, SampleData data) {
    for (const std::string& row : sampleRows(rows, data)) {
        std::size_t from = 0;
        for (int column = 0; column < tableColumns; ++column) {
            starts_.push_back(static_cast<std::uint32_t>(bytes_.size() + from));
            from = row.find('|', from) + 1;
        }
        // Without a bar behind the fifth text that is all.
        bytes_.append(row, 0, from - 1);
        bytes_ += '|';
    }
    units_.assign(bytes_.begin(), bytes_.end());
}

std::size_t Table::start(int row, int column) const {
    return starts_[static_cast<std::size_t>(row) * tableColumns + static_cast<std::size_t>(column)];
}

std::size_t Table::end(int row, int column) const {
    const std::size_t next =
        static_cast<std::size_t>(row) * tableColumns + static_cast<std::size_t>(column) + 1;
    return (next < starts_.size() ? starts_[next] : bytes_.size()) - 1;
}

std::string_view Table::cell(int row, int column) const {
    return {bytes_.data() + start(row, column), end(row, column) - start(row, column)};
}

std::u16string_view Table::wideCell(int row, int column) const {
    return {units_.data() + start(row, column), end(row, column) - start(row, column)};
}

std::u16string_view Table::wideRow(int row) const {
    return {units_.data() + start(row, 0), end(row, tableColumns - 1) - start(row, 0)};
}

} // namespace lumtex::bench
