#include "content/recordset_members.h"

#include "values/runtime_error.h"

namespace lumtex::content {

namespace {

constexpr StringView defaultMember{};

} // namespace

Object& RecordsetMembers::recordset() const {
    if (!recordset_)
        throw RuntimeError(ErrorNumber::objectVariableNotSet);
    return *recordset_;
}

ObjectRef RecordsetMembers::fields() {
    return recordset().get(u"fields").toObject();
}

Variant RecordsetMembers::field(Long index) {
    Variant position = index;
    return fields()->get(defaultMember, {&position, 1});
}

bool RecordsetMembers::hasRecords() {
    const Variant count = recordset().get(u"RecordCount");
    return !count.isNull() && count.toDouble() > 0;
}

Variant RecordsetMembers::fieldName(Long index) {
    return field(index).toObject()->get(u"Name");
}

void RecordsetMembers::moveFirst() {
    recordset().call(u"MoveFirst");
}

Long RecordsetMembers::fieldCount() {
    return fields()->get(u"Count").toLong();
}

void RecordsetMembers::appendField(Long index, String& text) {
    Variant value = field(index);
    if (value.isObject())
        value = value.toObject()->get(defaultMember);
    if (!value.isNull())
        text += value.toText();
}

void RecordsetMembers::moveNext() {
    recordset().call(u"MoveNext");
}

bool RecordsetMembers::atEnd() {
    return recordset().get(u"EOF").toBoolean();
}

RecordSource& RecordsetMembers::records() {
    auto* const own = dynamic_cast<RecordSource*>(recordset_.get());
    return own != nullptr ? *own : *this;
}

} // namespace lumtex::content
