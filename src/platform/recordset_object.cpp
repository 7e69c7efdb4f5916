#include "platform/recordset_object.h"

#include "values/runtime_error.h"
#include "values/text.h"

#include <utility>

namespace lumtex {

namespace {

void demandArguments(std::span<Variant> arguments, std::size_t count) {
    if (arguments.size() != count)
        throw RuntimeError(ErrorNumber::wrongNumberOfArguments);
}

/// An object whose members are only ever read.
class ReadOnlyObject : public Object {
  public:
    void put(StringView /*name*/, const Variant& /*value*/) override {
        throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
    }
    Variant call(StringView /*name*/, std::span<Variant> /*arguments*/) override {
        throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
    }
};

class Field final : public ReadOnlyObject {
  public:
    Field(std::shared_ptr<RecordsetObject> recordset, Long index)
        : recordset_(std::move(recordset)), index_(index) {}

    Variant get(StringView name, std::span<Variant> arguments) override {
        demandArguments(arguments, 0);
        if (name.empty() || sameName(name, u"Value"))
            return recordset_->fieldValue(index_);
        if (sameName(name, u"Name"))
            return recordset_->fieldName(index_);
        throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
    }

  private:
    std::shared_ptr<RecordsetObject> recordset_;
    Long index_;
};

class Fields final : public ReadOnlyObject {
  public:
    explicit Fields(std::shared_ptr<RecordsetObject> recordset) : recordset_(std::move(recordset)) {}

    Variant get(StringView name, std::span<Variant> arguments) override {
        if (sameName(name, u"Count")) {
            demandArguments(arguments, 0);
            return recordset_->fieldCount();
        }
        if (!name.empty())
            throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
        demandArguments(arguments, 1);
        const Long index = arguments[0].toLong();
        static_cast<void>(recordset_->fieldName(index)); // a number that no field has fails here
        return ObjectRef(std::make_shared<Field>(recordset_, index));
    }

  private:
    std::shared_ptr<RecordsetObject> recordset_;
};

} // namespace

Variant RecordsetObject::get(StringView name, std::span<Variant> arguments) {
    demandArguments(arguments, 0);
    if (sameName(name, u"RecordCount"))
        return recordCount();
    if (sameName(name, u"fields"))
        return ObjectRef(std::make_shared<Fields>(shared_from_this()));
    if (sameName(name, u"EOF"))
        return atEnd();
    throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
}

void RecordsetObject::put(StringView /*name*/, const Variant& /*value*/) {
    throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
}

Variant RecordsetObject::call(StringView name, std::span<Variant> arguments) {
    demandArguments(arguments, 0);
    if (sameName(name, u"MoveFirst"))
        moveFirst();
    else if (sameName(name, u"MoveNext"))
        moveNext();
    else
        throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
    return {};
}

} // namespace lumtex
