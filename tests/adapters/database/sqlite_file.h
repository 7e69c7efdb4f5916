/// \file
/// A database file that a test fills.
#pragma once

#include "scratch_folder.h"

#include <memory>
#include <stdexcept>
#include <string>

#include <sqlite3.h>

namespace lumtex::testing {

/// Empty at first; gone with the object. Statements come from a connection of their own.
class SqliteFile {
  public:
    SqliteFile() {
        sqlite3* opened = nullptr;
        const int outcome = sqlite3_open(path.c_str(), &opened);
        database_.reset(opened);
        if (outcome != SQLITE_OK)
            throw std::runtime_error("no database at " + path);
    }

    /// Throws what the database says against it.
    void run(const std::string& statements) {
        char* message = nullptr;
        if (sqlite3_exec(database_.get(), statements.c_str(), nullptr, nullptr, &message) == SQLITE_OK)
            return;
        const std::string said = message;
        sqlite3_free(message);
        throw std::runtime_error(said);
    }

    const ScratchFolder folder;
    const std::string path = (folder.path / "test.sqlite").string();

  private:
    struct Closer {
        void operator()(sqlite3* database) const { sqlite3_close(database); }
    };
    std::unique_ptr<sqlite3, Closer> database_;
};

/// The numbers from 1 to `last`, as a statement that makes them while it runs.
inline std::string numbersTo(int last, const std::string& columns) {
    return "with recursive numbers(x) as (select 1 union all select x + 1 from numbers where x < " +
           std::to_string(last) + ") select " + columns + " from numbers";
}

} // namespace lumtex::testing
