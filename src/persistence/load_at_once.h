/// \file
/// Loading a record at once, into the cell as it lies.
#pragma once

#include "content/content_reader.h"
#include "persistence/content_cells.h"

#include <array>
#include <vector>

namespace lumtex {

/// Which properties of a record stand in the file, and what becomes of them.
enum class RecordForm : Byte { textAlone, dropProperties, readProperties };

/// Assigns what the accessors would, for records in which nothing can fail, or fails unheard: where reports
/// are silenced, a record behind the file's end is all zeros, and one for a missing cell is read over.
class LoadAtOnce {
  public:
    LoadAtOnce(ListViewCore& core, const SystemLocale& locale, content::ContentReader& file, RecordForm form)
        : cells_(core), locale_(locale), file_(file), form_(form) {}

    /// False, with nothing read, for a record that has to be read value by value: one that is cut off or
    /// damaged, one with a picture to load, one longer than the reader's buffer, one for a cell that is shown
    /// at once, and while failures are heard of, one for a cell that is missing.
    bool read(Long row, Long column);
    /// Host code may have run since the last record.
    void forget() { look_.style.reset(); }

  private:
    /// A record in the reader's buffer.
    struct Record {
        std::span<const Byte> text;
        std::span<const Byte> beforeTag;
        std::span<const Byte> tag;
        std::span<const Byte> behindTag;
        std::size_t size = 0;
    };
    /// The style of the last record, with the bytes that it was made from.
    struct Look {
        std::optional<StyleLease> style;
        std::vector<Byte> beforeTag;
        std::vector<Byte> behindTag;
    };

    std::optional<Record> split(std::span<const Byte> bytes) const;
    bool plainLook();
    bool lookOf(const Record& record);
    const String& textOf(std::span<const Byte> bytes);

    ContentCells cells_;
    const SystemLocale& locale_;
    content::ContentReader& file_;
    RecordForm form_;
    Look look_;
    String scratch_;
};

} // namespace lumtex
