#include "list_on_desktop.h"

#include "values/text.h"

#include <map>

namespace lumtex::bench {

const std::vector<String>& rowsOf(std::int64_t count) {
    static std::map<std::int64_t, std::vector<String>> known;
    auto& rows = known[count];
    if (rows.empty())
        for (const std::string& row : sampleRows(static_cast<int>(count)))
            rows.push_back(fromUtf8(row));
    return rows;
}

} // namespace lumtex::bench
