/// \file
/// Room for the arguments of a call.
#pragma once

#include "automation/member.h"
#include "values/variant.h"

#include <memory_resource>
#include <vector>

namespace lumtex::automation {

/// The arguments of one call, for as long as it runs. As many as a member has parameters, and the value of an
/// assignment, lie in the object itself; only a list of any length may need memory.
class ArgumentList {
  public:
    ArgumentList() { values_.reserve(most); }
    ArgumentList(const ArgumentList&) = delete;
    ArgumentList& operator=(const ArgumentList&) = delete;
    ~ArgumentList() = default;

    std::pmr::vector<Variant>& values() { return values_; }

  private:
    static constexpr std::size_t most = Member::mostParameters + 1;

    alignas(Variant) std::byte room_[most * sizeof(Variant)];
    std::pmr::monotonic_buffer_resource beyond_{room_, sizeof(room_)};
    std::pmr::vector<Variant> values_ = std::pmr::vector<Variant>(&beyond_);
};

} // namespace lumtex::automation
