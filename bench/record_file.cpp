#include "record_file.h"

#include "list_on_desktop.h"
#include "values/text.h"

#include <filesystem>
#include <stdexcept>

#include <sqlite3.h>
#include <unistd.h>

namespace lumtex::bench {

namespace {

void run(sqlite3* database, const char* sql) {
    if (sqlite3_exec(database, sql, nullptr, nullptr, nullptr) != SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(database));
}

} // namespace

RecordFile::RecordFile(const std::vector<String>& rows)
    : path_((std::filesystem::temp_directory_path() /
             ("lumtex-bench-" + std::to_string(getpid()) + "-" + std::to_string(rows.size()) + ".sqlite"))
                .string()) {
    sqlite3* database = nullptr;
    if (sqlite3_open(path_.c_str(), &database) != SQLITE_OK)
        throw std::runtime_error("no file " + path_);
    run(database, "create table records (number integer, name text, city text, amount real, day text)");
    run(database, "begin");
    sqlite3_stmt* insert = nullptr;
    sqlite3_prepare_v2(database, "insert into records values (?, ?, ?, ?, ?)", -1, &insert, nullptr);
    for (const String& row : rows) {
        StringView rest = row;
        for (int i = 1; i <= columns; ++i) {
            const std::size_t end = rest.find(separator);
            const std::string field = toUtf8(rest.substr(0, end));
            sqlite3_bind_text(insert, i, field.data(), static_cast<int>(field.size()), SQLITE_TRANSIENT);
            rest.remove_prefix(end == StringView::npos ? rest.size() : end + 1);
        }
        sqlite3_step(insert);
        sqlite3_reset(insert);
    }
    sqlite3_finalize(insert);
    run(database, "commit");
    sqlite3_close(database);
}

RecordFile::~RecordFile() {
    std::error_code failure;
    std::filesystem::remove(path_, failure);
}

} // namespace lumtex::bench
