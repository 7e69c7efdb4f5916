/// \file
/// The records of a content file.
#pragma once

#include "content/content_writer.h"
#include "model/list_view_core.h"
#include "persistence/kept_texts.h"

namespace lumtex {

/// Writes a record for each cell of all rows and columns that there are, column after column, and counts with
/// `saveColumn` and `saveRow` of the list. What fails is reported as a statement of `p`.
void saveRecords(ListViewCore& core,
                 Procedure& p,
                 content::ContentWriter& file,
                 bool withProperties,
                 const KeptTexts::Limits& limits = {});

} // namespace lumtex
