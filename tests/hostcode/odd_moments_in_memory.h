/// \file
/// Odd moments whose test looks at the desktop and the host as well.
#pragma once

#include "hostcode/headless_home.h"
#include "hostcode/odd_moments.h"

namespace lumtex::testing {

class OddMomentsInMemory : public OddMoments {
  protected:
    OddMomentsInMemory() : OddMoments(std::make_unique<HeadlessHome>()) {}

    HeadlessHome& memory = static_cast<HeadlessHome&>(home);
    headless::Desktop& desktop = memory.desktop;
    TestHost& host = memory.host;
};

} // namespace lumtex::testing
