/// \file
/// Saving a record with its properties at once, out of the cell as it lies.
#pragma once

#include "content/content_writer.h"
#include "persistence/content_cells.h"
#include "persistence/text_encoder.h"

#include <vector>

namespace lumtex {

/// Writes what the accessors would give, for cells whose values all have a form in the file.
class SaveAtOnce {
  public:
    SaveAtOnce(ListViewCore& core, const SystemLocale& locale, content::ContentWriter& file)
        : cells_(core), locale_(locale), file_(file), encoder_(locale) {}

    /// False, with nothing written, for a cell that has to be written value by value: one that is missing,
    /// one with a picture or a value that could fail, and where the file has to be written or would fail.
    bool write(Long row, Long column);

  private:
    /// The fields before and behind the tag, which all cells of one style have in common.
    struct Look {
        std::optional<StyleLease> style; ///< keeps the handle from being given to another style
        bool hasForm = false;
        std::vector<Byte> beforeTag;
        std::vector<Byte> behindTag;
    };

    const Look& lookOf(StyleHandle style);
    void encode(const CellStyle& style);
    void appendValue(std::vector<Byte>& bytes, bool value);
    void appendValue(std::vector<Byte>& bytes, Single value);
    void appendValue(std::vector<Byte>& bytes, const String& value);
    void appendValue(std::vector<Byte>& bytes, cItemAlign value);
    void appendColor(std::vector<Byte>& bytes, const Variant& color);

    ContentCells cells_;
    const SystemLocale& locale_;
    content::ContentWriter& file_;
    TextEncoder encoder_;
    Look look_; ///< of the last cell
};

} // namespace lumtex
