/// \file
/// The rows that all benchmarks work on.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace lumtex::bench {

/// What the rows are like.
enum class SampleData : unsigned char {
    usual, ///< a running number, a name of 8 to 20 letters, one of 200 cities, a decimal number, an ISO date
    longTexts,  ///< names and cities of 40 to 200 letters
    fewValues,  ///< one of 20 names, 5 cities, 20 numbers and 12 dates
    sorted,     ///< each column in ascending order
    reversed,   ///< each column but the running number in descending order
    organPipe,  ///< each column but the running number ascends to the middle and descends from there
    tenColumns, ///< the usual five, twice
};

constexpr int sampleDataKinds = 7;

/// How programs call it: "usual", "long", "few", "sorted", "reversed", "organ" or "ten".
const char* nameOf(SampleData data);
/// Throws std::invalid_argument for any other name.
SampleData sampleDataNamed(std::string_view name);
int columnsIn(SampleData data);

/// Rows of one seed, "|" between the texts, ASCII alone.
std::vector<std::string> sampleRows(int count, SampleData data = SampleData::usual);

} // namespace lumtex::bench
