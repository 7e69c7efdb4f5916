/// Queries on files of SQLite.
#include "adapters/database/query.h"
#include "adapters/database/sqlite_opening.h"
#include "values/text.h"

#include <cmath>
#include <limits>
#include <optional>
#include <vector>

namespace lumtex::database {

namespace {

using Statement = std::unique_ptr<sqlite3_stmt, SqliteCloser>;

/// The first statement of `sql`, which then holds the rest; none where there is none.
Statement prepareFirst(sqlite3* database, std::string_view& sql) {
    if (sql.size() > static_cast<std::size_t>(std::numeric_limits<int>::max()))
        throw RuntimeError(ErrorNumber::outOfMemory);
    sqlite3_stmt* prepared = nullptr;
    const char* rest = nullptr;
    if (sqlite3_prepare_v2(database, sql.data(), static_cast<int>(sql.size()), &prepared, &rest) != SQLITE_OK)
        throw sqliteFailure(database);
    sql.remove_prefix(static_cast<std::size_t>(rest - sql.data()));
    return Statement(prepared);
}

/// Reading within it sees one state of the data, whatever others write.
class Snapshot {
  public:
    explicit Snapshot(sqlite3* database) : database_(database) {
        if (sqlite3_exec(database_, "BEGIN", nullptr, nullptr, nullptr) != SQLITE_OK)
            throw sqliteFailure(database_);
    }
    Snapshot(const Snapshot&) = delete;
    Snapshot& operator=(const Snapshot&) = delete;
    ~Snapshot() { sqlite3_exec(database_, "COMMIT", nullptr, nullptr, nullptr); }

  private:
    sqlite3* database_;
};

class SqliteQuery final : public Query {
  public:
    SqliteQuery(const std::string& file, const std::string& sql)
        : database_(openSqliteForReading(file)), sql_(sql) {
        std::string_view rest = sql_;
        statement_ = prepareFirst(database_.get(), rest);
        if (!statement_)
            throw failureWith("There is no statement");
        const std::size_t used = sql_.size() - rest.size();
        while (!rest.empty()) {
            if (prepareFirst(database_.get(), rest))
                throw failureWith("There is more than one statement");
        }
        sql_.resize(used);
        for (int i = 0; i < sqlite3_column_count(statement_.get()); ++i) {
            const char* const name = sqlite3_column_name(statement_.get(), i);
            if (name == nullptr)
                throw RuntimeError(ErrorNumber::outOfMemory);
            names_.push_back(fromUtf8(name));
        }
        if (names_.empty())
            throw failureWith("The statement yields no records");
    }
    ~SqliteQuery() override { end(); }

    Long columnCount() const override { return static_cast<Long>(names_.size()); }
    String columnName(Long column) const override { return names_[static_cast<std::size_t>(column)]; }

    std::int64_t count() override {
        if (snapshot_)
            return counted();
        snapshot_.emplace(database_.get());
        try {
            const std::int64_t records = counted();
            if (ran_)
                snapshot_.reset();
            return records;
        } catch (const RuntimeError&) {
            snapshot_.reset();
            throw;
        }
    }

    void start() override {
        sqlite3_reset(statement_.get());
        if (!snapshot_)
            snapshot_.emplace(database_.get());
        ran_ = false;
    }

    bool fetch() override {
        const int outcome = sqlite3_step(statement_.get());
        if (outcome == SQLITE_ROW)
            return true;
        // Before the end, which may have something else to say.
        const auto failure =
            outcome == SQLITE_DONE ? std::nullopt : std::optional(sqliteFailure(database_.get()));
        end();
        if (failure)
            throw RuntimeError(*failure);
        return false;
    }

    Variant value(Long column) const override {
        switch (sqlite3_column_type(statement_.get(), column)) {
        case SQLITE_NULL:
            return Null{};
        case SQLITE_INTEGER: {
            const sqlite3_int64 number = sqlite3_column_int64(statement_.get(), column);
            if (isLong(number))
                return static_cast<Long>(number);
            break;
        }
        case SQLITE_FLOAT: {
            const Double number = sqlite3_column_double(statement_.get(), column);
            if (std::isfinite(number))
                return number;
            break;
        }
        default:
            break;
        }
        String text;
        appendText(column, text);
        return text;
    }

    void appendText(Long column, String& text) const override {
        switch (sqlite3_column_type(statement_.get(), column)) {
        case SQLITE_NULL:
            return;
        case SQLITE_FLOAT: {
            const Double number = sqlite3_column_double(statement_.get(), column);
            if (std::isfinite(number)) {
                text += Variant(number).toText();
                return;
            }
            break;
        }
        case SQLITE_BLOB:
            appendBytes(column, text);
            return;
        default:
            break;
        }
        const auto* const bytes =
            reinterpret_cast<const char*>(sqlite3_column_text(statement_.get(), column));
        if (bytes == nullptr)
            throw RuntimeError(ErrorNumber::outOfMemory);
        appendFromUtf8(text,
                       {bytes, static_cast<std::size_t>(sqlite3_column_bytes(statement_.get(), column))});
    }

  private:
    static bool isLong(sqlite3_int64 number) {
        return number >= std::numeric_limits<Long>::min() && number <= std::numeric_limits<Long>::max();
    }

    void appendBytes(Long column, String& text) const {
        constexpr StringView digits = u"0123456789abcdef";
        const auto* const bytes =
            static_cast<const unsigned char*>(sqlite3_column_blob(statement_.get(), column));
        const auto size = static_cast<std::size_t>(sqlite3_column_bytes(statement_.get(), column));
        String written = u"\\x";
        written.reserve(2 * size + 2);
        for (std::size_t i = 0; i < size; ++i) {
            written += digits[bytes[i] >> 4U];
            written += digits[bytes[i] & 0xFU];
        }
        text += written;
    }

    std::int64_t counted() {
        const std::string counting = countingStatement(sql_);
        std::string_view rest = counting;
        Statement statement;
        try {
            statement = prepareFirst(database_.get(), rest);
        } catch (const RuntimeError&) {
            return countedByWalking();
        }
        if (!statement || !withoutEnd(rest).empty())
            return countedByWalking();
        if (sqlite3_step(statement.get()) != SQLITE_ROW)
            throw sqliteFailure(database_.get());
        return sqlite3_column_int64(statement.get(), 0);
    }

    std::int64_t countedByWalking() {
        std::string_view rest = sql_;
        const Statement statement = prepareFirst(database_.get(), rest);
        std::int64_t records = 0;
        int outcome = SQLITE_DONE;
        while ((outcome = sqlite3_step(statement.get())) == SQLITE_ROW)
            ++records;
        if (outcome != SQLITE_DONE)
            throw sqliteFailure(database_.get());
        return records;
    }

    void end() {
        sqlite3_reset(statement_.get());
        snapshot_.reset();
        ran_ = true;
    }

    SqliteConnection database_;
    std::string sql_;
    Statement statement_;
    std::vector<String> names_;
    std::optional<Snapshot> snapshot_; ///< from the first count or start to the end of the run
    bool ran_ = false;                 ///< a run has come to its end, and none has begun since
};

} // namespace

std::unique_ptr<Query> openSqliteQuery(const std::string& file, const std::string& sql) {
    return std::make_unique<SqliteQuery>(file, sql);
}

} // namespace lumtex::database
