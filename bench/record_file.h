/// \file
/// Records to import.
#pragma once

#include "values/types.h"

#include <string>
#include <vector>

namespace lumtex::bench {

/// A file of SQLite with a table `records` of five columns, gone with the object. Throws std::runtime_error
/// where it cannot be written.
class RecordFile {
  public:
    /// Each row becomes a record, of texts with `separator` between them.
    explicit RecordFile(const std::vector<String>& rows);
    RecordFile(const RecordFile&) = delete;
    RecordFile& operator=(const RecordFile&) = delete;
    ~RecordFile();

    const std::string& path() const { return path_; }

  private:
    std::string path_;
};

} // namespace lumtex::bench
