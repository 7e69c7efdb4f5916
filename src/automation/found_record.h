/// \file
/// What a search found, for callers who cannot read a record.
#pragma once

#include "sortfind/find_results.h"
#include "values/variant.h"

namespace lumtex::automation {

/// An object with the record's three fields as properties that can only be read.
ObjectRef makeFoundRecord(const FindResults& found);

} // namespace lumtex::automation
