/// \file
/// Records as an object whose members lists and hosts know.
#pragma once

#include "platform/record_source.h"
#include "values/references/object.h"
#include "values/variant.h"

namespace lumtex {

/// What recordsets report besides the failures of what they read, under the numbers that programs know from
/// other recordsets.
constexpr Long noCurrentRecord = 3021;
constexpr Long noSuchField = 3265;

/// Members, none of which can be assigned:
///
/// - `RecordCount`
/// - `fields`: an object with `Count`, and for an index from 0 an element with `Name` and the default member
///   `Value`.
/// - `MoveFirst`, `MoveNext`, `EOF`. The cursor begins at the first record.
///
/// Held by a std::shared_ptr: its fields keep it alive.
class RecordsetObject : public Object,
                        public RecordSource,
                        public std::enable_shared_from_this<RecordsetObject> {
  public:
    using Object::call;
    using Object::get;
    Variant get(StringView name, std::span<Variant> arguments) final;
    void put(StringView name, const Variant& value) final;
    Variant call(StringView name, std::span<Variant> arguments) final;

    virtual Variant recordCount() = 0;
    virtual void moveFirst() = 0;
    /// Fails with `noSuchField` for an index outside.
    virtual String fieldName(Long index) = 0;
    /// Of the current record; fails with `noCurrentRecord` where there is none.
    virtual Variant fieldValue(Long index) = 0;
};

} // namespace lumtex
