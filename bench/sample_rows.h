/// \file
/// The rows that all benchmarks work on.
#pragma once

#include <string>
#include <vector>

namespace lumtex::bench {

/// Rows of a running number, a name of 8 to 20 letters, one of 200 cities, a decimal number and an ISO date,
/// of one seed; "|" between the texts, ASCII alone.
std::vector<std::string> sampleRows(int count);

} // namespace lumtex::bench
