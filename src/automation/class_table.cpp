/// The public classes in one row.
#include "automation/class_table.h"

namespace lumtex::automation {

std::span<const ClassDescription> classTable() {
    static const auto all = std::to_array<ClassDescription>({
        {u"lmListView", words::phrase(u"class", u"lmListView"), memberTable(), MemberIndex(memberTable())},
        {u"SpEv", words::phrase(u"class", u"SpEv"), spEvMembers(), MemberIndex(spEvMembers())},
        {u"Error", words::phrase(u"class", u"Error"), errorMembers(), MemberIndex(errorMembers())},
    });
    return all;
}

const ClassDescription& listViewClass() {
    return classTable()[0];
}

const ClassDescription& spEvClass() {
    return classTable()[1];
}

const ClassDescription& errorClass() {
    return classTable()[2];
}

} // namespace lumtex::automation
