/// \file
/// The members of a class by number and by name.
#pragma once

#include "automation/member.h"

#include <unordered_map>
#include <vector>

namespace lumtex::automation {

/// Looks members up without a walk over the table, and without memory: scripts look each name up at each
/// call. The members must outlive this.
class MemberIndex {
  public:
    explicit MemberIndex(std::span<const Member> members);

    /// By dispatch number; null if there is none.
    const Member* find(Long number) const;
    /// Whatever the case of A to Z, of which all names are made; null if there is none.
    const Member* find(StringView name) const;

  private:
    struct NameHash {
        std::size_t operator()(StringView name) const;
    };
    struct SameName {
        bool operator()(StringView left, StringView right) const;
    };

    std::vector<const Member*> usual_; ///< by number, from 0
    std::unordered_map<Long, const Member*> others_;
    std::unordered_map<StringView, const Member*, NameHash, SameName> named_;
};

} // namespace lumtex::automation
