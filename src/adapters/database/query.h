/// \file
/// One statement on one database, run record by record.
#pragma once

#include "values/runtime_error.h"
#include "values/types.h"
#include "values/variant.h"

#include <memory>
#include <string>

namespace lumtex::database {

/// What each kind of database implements. Reads alone: a statement that would change something fails. Columns
/// count from 0, and those below `columnCount` are asked for alone. Failures are thrown as
/// RuntimeError `databaseFailure` with the database's own message.
///
/// Counting and the run that follows it see the same state of the data, as long as a transaction can hold it;
/// it is let go at the end of the run.
class Query {
  public:
    Query() = default;
    Query(const Query&) = delete;
    Query& operator=(const Query&) = delete;
    virtual ~Query() = default;

    virtual Long columnCount() const = 0;
    virtual String columnName(Long column) const = 0;

    /// How many records a run yields, by the database's own count; -1 if it cannot be had during a run.
    virtual std::int64_t count() = 0;
    /// Begins a run, and gives up one that is under way.
    virtual void start() = 0;
    /// Fetches the next record; false behind the last one. A failure ends the run.
    virtual bool fetch() = 0;

    // Of the record fetched last.

    /// Null, Boolean, Long or Double if the database says so and they hold the value in full; otherwise text:
    /// as the database writes it, or for bytes "\x" and two hexadecimal digits each.
    virtual Variant value(Long column) const = 0;
    /// Appends the text form of the same value; nothing for Null.
    virtual void appendText(Long column, String& text) const = 0;
};

/// What failures of a database are reported as: 0x80004005, the unspecified failure of automation objects.
constexpr Long databaseFailure = -2147467259;

/// The message in one line, however it is laid out.
RuntimeError failureWith(std::string_view message);

/// A statement without the semicolon and blanks at its end.
std::string_view withoutEnd(std::string_view sql);
/// The statement that counts another's records. Some, such as explanations, cannot be wrapped so.
std::string countingStatement(std::string_view sql);

/// A file of SQLite; it must exist. Throws if it cannot be opened or the statement is not one that yields
/// records.
std::unique_ptr<Query> openSqliteQuery(const std::string& file, const std::string& sql);
/// A server of PostgreSQL, by an address such as "postgresql://user@host/name". The same.
std::unique_ptr<Query> openPostgresQuery(const std::string& address, const std::string& sql);

} // namespace lumtex::database
