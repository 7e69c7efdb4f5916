/// \file
/// Opening a file of SQLite for reading alone.
#pragma once

#include "values/runtime_error.h"

#include <memory>
#include <string>

#include <sqlite3.h>

namespace lumtex::database {

struct SqliteCloser {
    void operator()(sqlite3* database) const { sqlite3_close_v2(database); }
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using SqliteConnection = std::unique_ptr<sqlite3, SqliteCloser>;

/// Opens a file, or ":memory:", so that nothing is written, neither into the file nor beside it, however its
/// last writer left it. Throws RuntimeError with the database's own message if that fails.
SqliteConnection openSqliteForReading(const std::string& file);

/// What the last call failed with.
RuntimeError sqliteFailure(sqlite3* database);

} // namespace lumtex::database
