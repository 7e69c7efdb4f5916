/// \file
/// The result of a database query as an object that lists take.
#pragma once

#include "values/references/object.h"

#include <string>

namespace lumtex::database {

/// Opens a query and returns it as a `RecordsetObject`:
///
/// - `RecordCount`: how many records the database counts, when first asked for and after each new run.
///   Counting runs the query a second time, and both see the same data, unless the query itself says
///   something else each time. On PostgreSQL -1 if it is first asked for between two records.
/// - `fields`: an object with `Count`, and for an index from 0 an element with `Name` and the default member
///   `Value`: Null, a Boolean, a Long or a Double if the database says so and they hold the value in full,
///   else text. Bytes read as "\x" and hexadecimal digits, dates as the database writes them.
/// - `MoveFirst`: runs the query anew; `MoveNext`, `EOF`. The cursor begins at the first record.
///
/// Records come from the database one by one; only the current one is kept. Once a move has failed, `EOF` is
/// true until the next `MoveFirst`.
///
/// `database` is a file of SQLite, which must exist, or an address "postgresql://..." or "postgres://...";
/// both texts are UTF-8. The database is only ever read. Throws RuntimeError `databaseFailure` with the
/// database's message, here and in the members.
ObjectRef openRecordset(const std::string& database, const std::string& sql);

} // namespace lumtex::database
