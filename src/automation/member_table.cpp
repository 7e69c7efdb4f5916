/// The groups of the interface in one row.
#include "automation/member_table.h"

#include <vector>

namespace lumtex::automation {

std::span<const Member> memberTable() {
    static const std::vector<Member> all = [] {
        std::vector<Member> members;
        for (const auto& group :
             {listMembers(), propertyMembers(), columnMembers(), rowMembers(), itemMembers()})
            members.insert(members.end(), group.begin(), group.end());
        return members;
    }();
    return all;
}

} // namespace lumtex::automation
