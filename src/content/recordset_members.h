/// \file
/// The members of a recordset that an import calls.
#pragma once

#include "platform/record_source.h"
#include "values/references/object.h"
#include "values/variant.h"

namespace lumtex::content {

/// Calls them by name on any object. Each failure is thrown: 91 if there is no object, what the object
/// reports, or what a conversion says. Nothing is kept between calls, so that each asks anew, as a statement
/// would.
class RecordsetMembers final : public RecordSource {
  public:
    explicit RecordsetMembers(ObjectRef recordset) : recordset_(std::move(recordset)) {}

    /// `RecordCount` above 0. Null, and -1 for a number that is not known, are not.
    bool hasRecords();
    /// `fields(index).Name`, from 0.
    Variant fieldName(Long index);
    /// `MoveFirst`
    void moveFirst();

    Long fieldCount() override;
    void appendField(Long index, String& text) override;
    void moveNext() override;
    bool atEnd() override;

    /// The quicker way through the records: the object's own if it has one, otherwise this.
    RecordSource& records();

  private:
    Object& recordset() const;
    ObjectRef fields();
    Variant field(Long index);

    ObjectRef recordset_;
};

} // namespace lumtex::content
