/// \file
/// Records read one after another, without a call by name for each value.
#pragma once

#include "values/types.h"

namespace lumtex {

/// What an object with records may offer beside its members, for readers that go through all of them. Each
/// function behaves and fails exactly like the members named above it, so that callers cannot tell which one
/// was used.
class RecordSource {
  public:
    RecordSource() = default;
    RecordSource(const RecordSource&) = delete;
    RecordSource& operator=(const RecordSource&) = delete;
    virtual ~RecordSource() = default;

    /// `fields.Count`
    virtual Long fieldCount() = 0;
    /// Appends the text of `fields(index)`, which counts from 0; Null appends nothing. A failing one leaves
    /// `text` as it was.
    virtual void appendField(Long index, String& text) = 0;
    /// `MoveNext`
    virtual void moveNext() = 0;
    /// `EOF`
    virtual bool atEnd() = 0;
};

} // namespace lumtex
