/// Plain C++ that does only the essential, as the floor of each measure: texts in one block, a sort of eight
/// bytes at a time, `memmem`, one fill and as many blended glyphs.
#include "peer.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>
#include <cstring>
#include <deque>
#include <numeric>
#include <stdexcept>

#include <sqlite3.h>

namespace lumtex::bench {
namespace {

std::uint64_t prefixOf(std::string_view text) {
    std::array<unsigned char, 8> first{};
    std::memcpy(first.data(), text.data(), std::min<std::size_t>(text.size(), first.size()));
    std::uint64_t prefix = 0;
    for (const unsigned char unit : first)
        prefix = prefix << 8U | unit;
    return prefix;
}

double numberOf(std::string_view text) {
    double value = 0;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

/// Year, month and day in order.
int dayOf(std::string_view text) {
    int day = 0;
    for (const char unit : text)
        day = unit == '-' ? day : day * 10 + (unit - '0');
    return day;
}

/// As large a screen, and as many glyphs as a page of the list has letters.
class Screen {
  public:
    void paint(std::uint32_t seed) {
        std::fill(pixels_.begin(), pixels_.end(), 0xFFFFFFFFU);
        for (int row = 0; row < 39; ++row) {
            for (int letter = 0; letter < 50; ++letter)
                blend(row * 20 + 4, letter * 13 + static_cast<int>(seed % 3));
        }
    }
    bool hasInk() const {
        return std::any_of(pixels_.begin(), pixels_.end(), [](auto pixel) { return pixel != 0xFFFFFFFFU; });
    }

  private:
    void blend(int top, int left) {
        for (int y = 0; y < 11; ++y) {
            std::uint32_t* line = &pixels_[static_cast<std::size_t>((top + y) * screenWidth + left)];
            for (int x = 0; x < 8; ++x) {
                const auto cover = static_cast<std::uint32_t>((x * 37 + y * 53) & 255);
                const std::uint32_t shade = 255 - (255 * cover + 127) / 255;
                line[x] = 0xFF000000U | shade << 16U | shade << 8U | shade;
            }
        }
    }
    std::vector<std::uint32_t> pixels_ =
        std::vector<std::uint32_t>(static_cast<std::size_t>(screenWidth) * screenHeight);
};

class PlainPeer final : public Peer {
  public:
    void load(const Table& table) override {
        for (int row = 0; row < table.rows(); ++row)
            append(table, row);
        order_.resize(starts_.size() / tableColumns);
        std::iota(order_.begin(), order_.end(), 0U);
    }
    int count() override { return static_cast<int>(order_.size() + front_.size()); }
    std::string text(int row, int column) override {
        const auto place = static_cast<std::size_t>(row);
        if (place < front_.size())
            return front_[place][static_cast<std::size_t>(column)];
        return std::string(cell(order_[place - front_.size()], column));
    }
    bool sort(TableColumn column) override {
        if (column == nameColumn)
            sortBy(column, prefixOf);
        else if (column == dateColumn)
            sortBy(column, dayOf);
        else
            sortBy(column, numberOf);
        return true;
    }
    std::optional<int> find(const std::string& part, bool anyCase) override {
        return anyCase ? findAnyCase(part) : findIn(texts_.data(), texts_.size(), part);
    }
    bool insertFirst(const Table& table, int row) override {
        auto& cells = front_.emplace_front();
        for (int column = 0; column < tableColumns; ++column)
            cells[static_cast<std::size_t>(column)] = table.cell(row, column);
        return true;
    }
    bool removeFirst() override {
        front_.pop_front();
        return true;
    }
    bool show() override { return true; }
    void scrollTo(int row) override {
        top_ = row;
        screen_.paint(static_cast<std::uint32_t>(row));
    }
    int firstSeen() override { return top_; }
    bool hasInk() override { return screen_.hasInk(); }
    void appendPainted(const Table& table, int row) override {
        append(table, row);
        order_.push_back(static_cast<std::uint32_t>(row));
        screen_.paint(static_cast<std::uint32_t>(row));
    }
    bool save(const std::string& path) override {
        std::FILE* file = std::fopen(path.c_str(), "wb");
        const bool written =
            file != nullptr && std::fwrite(texts_.data(), 1, texts_.size(), file) == texts_.size();
        return file != nullptr && std::fclose(file) == 0 && written;
    }
    bool loadSaved(const std::string& path) override {
        std::FILE* file = std::fopen(path.c_str(), "rb");
        if (file == nullptr)
            return false;
        std::fseek(file, 0, SEEK_END);
        texts_.resize(static_cast<std::size_t>(std::ftell(file)));
        std::rewind(file);
        const bool read = std::fread(texts_.data(), 1, texts_.size(), file) == texts_.size();
        std::fclose(file);
        for (std::size_t at = 0; at < texts_.size(); at = texts_.find('\0', at) + 1)
            starts_.push_back(static_cast<std::uint32_t>(at));
        order_.resize(starts_.size() / tableColumns);
        std::iota(order_.begin(), order_.end(), 0U);
        return read;
    }
    bool import(const std::string& path) override {
        sqlite3* database = nullptr;
        sqlite3_stmt* statement = nullptr;
        if (sqlite3_open_v2(path.c_str(), &database, SQLITE_OPEN_READONLY, nullptr) != SQLITE_OK ||
            sqlite3_prepare_v2(database, "select * from records", -1, &statement, nullptr) != SQLITE_OK)
            throw std::runtime_error("the file cannot be read");
        while (sqlite3_step(statement) == SQLITE_ROW) {
            for (int column = 0; column < tableColumns; ++column)
                add(reinterpret_cast<const char*>(sqlite3_column_text(statement, column)));
            order_.push_back(static_cast<std::uint32_t>(order_.size()));
        }
        sqlite3_finalize(statement);
        sqlite3_close(database);
        return true;
    }

  private:
    void add(std::string_view text) {
        starts_.push_back(static_cast<std::uint32_t>(texts_.size()));
        texts_ += text;
        texts_ += '\0';
    }
    void append(const Table& table, int row) {
        for (int column = 0; column < tableColumns; ++column)
            add(table.cell(row, column));
    }
    std::string_view cell(std::uint32_t row, int column) const {
        return texts_.data() + starts_[std::size_t{row} * tableColumns + static_cast<std::size_t>(column)];
    }
    template <class KeyOf>
    void sortBy(int column, KeyOf keyOf) {
        using Key = decltype(keyOf(std::string_view()));
        std::vector<std::pair<Key, std::uint32_t>> keys;
        keys.reserve(order_.size());
        for (const std::uint32_t row : order_)
            keys.emplace_back(keyOf(cell(row, column)), row);
        std::sort(keys.begin(), keys.end(), [&](const auto& a, const auto& b) {
            if (a.first != b.first || column != nameColumn)
                return a.first < b.first;
            return cell(a.second, column) < cell(b.second, column);
        });
        std::transform(keys.begin(), keys.end(), order_.begin(), [](const auto& key) { return key.second; });
    }
    int findIn(const char* texts, std::size_t size, const std::string& part) const {
        const void* found = memmem(texts, size, part.data(), part.size());
        if (found == nullptr)
            return -1;
        const auto place = static_cast<std::uint32_t>(static_cast<const char*>(found) - texts);
        const auto next = std::upper_bound(starts_.begin(), starts_.end(), place);
        return static_cast<int>((next - starts_.begin() - 1) / tableColumns);
    }
    /// Lower-cased by pieces that stay in the cache; the letters of the rows are all ASCII.
    int findAnyCase(std::string part) const {
        const auto lower = [](char unit) {
            return static_cast<char>(unit >= 'A' && unit <= 'Z' ? unit + 32 : unit);
        };
        std::transform(part.begin(), part.end(), part.begin(), lower);
        std::array<char, 16384> piece{};
        for (std::size_t at = 0; at < texts_.size(); at += piece.size() - part.size()) {
            const std::size_t size = std::min(piece.size(), texts_.size() - at);
            std::transform(texts_.data() + at, texts_.data() + at + size, piece.begin(), lower);
            if (memmem(piece.data(), size, part.data(), part.size()) != nullptr)
                return 0;
        }
        return -1;
    }

    std::string texts_; ///< a zero behind each
    std::vector<std::uint32_t> starts_;
    std::vector<std::uint32_t> order_;
    std::deque<std::array<std::string, tableColumns>> front_;
    Screen screen_;
    int top_ = 0;
};

void must(int status, sqlite3* database) {
    if (status != SQLITE_OK && status != SQLITE_DONE)
        throw std::runtime_error(sqlite3_errmsg(database));
}

/// The file that `import` reads.
void writeRecords(const std::string& path, int rows, SampleData data) {
    const Table table(rows, data);
    sqlite3* database = nullptr;
    must(sqlite3_open(path.c_str(), &database), database);
    must(sqlite3_exec(database,
                      "create table records (number integer, name text, city text, amount text, day text);"
                      "begin",
                      nullptr,
                      nullptr,
                      nullptr),
         database);
    sqlite3_stmt* insert = nullptr;
    must(sqlite3_prepare_v2(database, "insert into records values (?, ?, ?, ?, ?)", -1, &insert, nullptr),
         database);
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < tableColumns; ++column) {
            const std::string_view text = table.cell(row, column);
            sqlite3_bind_text(insert, column + 1, text.data(), static_cast<int>(text.size()), SQLITE_STATIC);
        }
        must(sqlite3_step(insert), database);
        sqlite3_reset(insert);
    }
    sqlite3_finalize(insert);
    must(sqlite3_exec(database, "commit", nullptr, nullptr, nullptr), database);
    sqlite3_close(database);
}

} // namespace
} // namespace lumtex::bench

int main(int count, char** arguments) {
    using namespace lumtex::bench;
    if (count == 5 && std::string(arguments[1]) == "--records") {
        writeRecords(arguments[2], std::stoi(arguments[3]), sampleDataNamed(arguments[4]));
        return 0;
    }
    return runMeasures(count, arguments, {{"plain C++", []() -> std::unique_ptr<Peer> {
                                               return std::make_unique<PlainPeer>();
                                           }}});
}
