#include "adapters/database/query.h"

#include "values/text.h"

namespace lumtex::database {

namespace {

constexpr std::string_view blanks = " \t\r\n\f\v";

} // namespace

RuntimeError failureWith(std::string_view message) {
    std::string line;
    bool gap = false;
    for (const char byte : message) {
        if (blanks.find(byte) != std::string_view::npos) {
            gap = !line.empty();
            continue;
        }
        if (gap)
            line += ' ';
        gap = false;
        line += byte;
    }
    return RuntimeError(databaseFailure, line.empty() ? u"The database failed" : fromUtf8(line));
}

std::string_view withoutEnd(std::string_view sql) {
    const std::size_t last = sql.find_last_not_of(" \t\r\n\f\v;");
    return last == std::string_view::npos ? std::string_view() : sql.substr(0, last + 1);
}

std::string countingStatement(std::string_view sql) {
    // The line ends keep a comment at the end from swallowing the bracket.
    return "select count(*) from (\n" + std::string(withoutEnd(sql)) + "\n) as counted";
}

} // namespace lumtex::database
