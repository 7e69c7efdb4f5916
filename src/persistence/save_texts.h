/// \file
/// Saving texts without properties at once, out of the cells as they lie.
#pragma once

#include "content/content_writer.h"
#include "persistence/content_cells.h"
#include "persistence/kept_texts.h"
#include "persistence/text_encoder.h"

namespace lumtex {

/// Writes what the accessor would give. A file holds column after column, but each row lies in one place, so
/// a walk down one column keeps what the next ones get from the same rows.
///
/// Only reports run host code here: of a missing cell, of memory, and of the file. What was kept until then
/// may be no longer true, and is given up.
class SaveTexts {
  public:
    /// Columns count from 1; they and the rows are those that the header of the file tells of. All but the
    /// limits must outlive this.
    SaveTexts(ListViewCore& core,
              Procedure& procedure,
              content::ContentWriter& file,
              Long rows,
              Long columns,
              const KeptTexts::Limits& limits);

    /// Says how many records went to the file, from that one on down the column. None for a cell that is
    /// missing, or where memory is: that one has to be written value by value.
    Long write(Long row, Long column);

  private:
    Long writeKept(Long column, const KeptTexts::Stretch& stretch);
    /// As many of these as the file need not be written for.
    KeptTexts::Stretch partAtHand(const KeptTexts::Stretch& stretch);
    void writeText(const CompactText& text);
    /// For a record at the border of the file's buffer: whether none failed, so that no host code ran.
    bool writeByStatements(std::span<const Byte> text);
    /// Whether any record of the row was kept.
    bool keep(const Items& cells, Long row, Long firstColumn);

    ContentCells cells_;
    Procedure& p_;
    content::ContentWriter& file_;
    Long columns_;
    KeptTexts kept_;
    Long idleColumn_ = 0; ///< whose walk keeps nothing any more
    TextEncoder encoder_;
    std::vector<Byte> scratch_;
};

} // namespace lumtex
