/// \file
/// Marks what scripts/count-instructions counts.
#pragma once

#include <functional>

namespace lumtex::bench {

/// Runs `work`, whose instructions count. In a file of its own, lest a caller take it in.
void countedPath(const std::function<void()>& work);

} // namespace lumtex::bench
