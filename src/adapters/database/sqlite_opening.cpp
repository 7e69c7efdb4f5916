#include "adapters/database/sqlite_opening.h"

#include "adapters/database/query.h"

#include <array>
#include <filesystem>
#include <fstream>

namespace lumtex::database {

namespace {

/// How long to wait for a writer of the same file, in milliseconds.
constexpr int patience = 5000;

/// How to open a file by what lies beside it. A database in write-ahead mode keeps what was committed last in
/// a second file, the log, until somebody copies it back; readers find their way in the log by a third one,
/// the index, and an ordinary reader makes both where they are missing, and leaves them behind.
enum class Manner : unsigned char {
    /// No write-ahead mode: readers never make files.
    plain,
    /// No log: everything is in the file itself. It is read as if nobody could write it. A writer that starts
    /// while a query runs begins a log, and the query goes on with what it saw; one that also copies its log
    /// back before the query ends changes the file under it, and the query may fail as one on a damaged file.
    settled,
    /// A log and its index: somebody has the database open, or died. Whoever has it open keeps both in order
    /// and
    /// sees by a lock of the index that we read. The index itself is only read; where its writer died, SQLite
    /// goes through the log by itself and keeps what it finds in memory.
    watched,
    /// A log without an index, as a copied or restored file may have it. The log is gone through, and what is
    /// found stays in memory. No lock is taken: the one writer that works without an index, a process with
    /// exclusive locking, is not waited for, and the query may see a part of what it writes.
    left,
};

bool isWriteAhead(const std::string& file) {
    constexpr std::size_t readVersionAt = 19;
    constexpr char writeAhead = 2;
    std::array<char, readVersionAt + 1> header{};
    std::ifstream stream(file, std::ios::binary);
    return stream.read(header.data(), header.size()) && header[readVersionAt] == writeAhead;
}

/// Whether there is such a file, and something in it.
bool hasContent(const std::string& file) {
    std::error_code failure;
    const std::uintmax_t size = std::filesystem::file_size(file, failure);
    return !failure && size > 0;
}

Manner mannerFor(const std::string& file) {
    if (!isWriteAhead(file))
        return Manner::plain;
    if (!hasContent(file + "-wal"))
        return Manner::settled;
    return hasContent(file + "-shm") ? Manner::watched : Manner::left;
}

/// The file as an address, whose own marks are spelled as numbers.
std::string addressOf(const std::string& file, const std::string& options) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string address = "file:";
    // Two slashes at the start would begin a server's name.
    if (file.starts_with('/'))
        address += "//";
    for (const char unit : file) {
        if (unit == '%' || unit == '?' || unit == '#') {
            const auto code = static_cast<unsigned char>(unit);
            address += {'%', digits[code >> 4U], digits[code & 0xFU]};
        } else {
            address += unit;
        }
    }
    return address + "?mode=ro&" + options;
}

SqliteConnection opened(const std::string& name, int flags) {
    sqlite3* made = nullptr;
    // A connection belongs to its recordset, and that to one thread at a time: locks would only cost time.
    const int outcome =
        sqlite3_open_v2(name.c_str(), &made, SQLITE_OPEN_READONLY | SQLITE_OPEN_NOMUTEX | flags, nullptr);
    SqliteConnection database(made);
    if (!database)
        throw RuntimeError(ErrorNumber::outOfMemory);
    if (outcome != SQLITE_OK)
        throw sqliteFailure(database.get());
    return database;
}

/// Keeps the index in memory, which the database allows to exclusive users alone: so the file is opened
/// without locks, and nobody is kept out of it. At the end the log would be copied back.
SqliteConnection openedWithLeftLog(const std::string& file) {
    SqliteConnection database = opened(addressOf(file, "vfs=unix-none"), SQLITE_OPEN_URI);
    sqlite3_db_config(database.get(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
    if (sqlite3_exec(database.get(), "PRAGMA locking_mode=EXCLUSIVE", nullptr, nullptr, nullptr) != SQLITE_OK)
        throw sqliteFailure(database.get());
    return database;
}

SqliteConnection openedIn(Manner manner, const std::string& file) {
    switch (manner) {
    case Manner::settled:
        return opened(addressOf(file, "immutable=1"), SQLITE_OPEN_URI);
    case Manner::watched:
        return opened(addressOf(file, "readonly_shm=1"), SQLITE_OPEN_URI);
    case Manner::left:
        return openedWithLeftLog(file);
    case Manner::plain:
        break;
    }
    return opened(file, 0);
}

} // namespace

RuntimeError sqliteFailure(sqlite3* database) {
    if (sqlite3_errcode(database) == SQLITE_NOMEM)
        return RuntimeError(ErrorNumber::outOfMemory);
    return failureWith(sqlite3_errmsg(database));
}

SqliteConnection openSqliteForReading(const std::string& file) {
    SqliteConnection database = openedIn(mannerFor(file), file);
    sqlite3_busy_timeout(database.get(), patience);
    return database;
}

} // namespace lumtex::database
