#include "sample_rows.h"

#include <random>

namespace lumtex::bench {

std::vector<std::string> sampleRows(int count) {
    std::mt19937 random(20261121);
    const auto between = [&](int low, int high) {
        return low + static_cast<int>(random() % static_cast<unsigned>(high - low + 1));
    };
    const auto word = [&](int length) {
        std::string text;
        for (int i = 0; i < length; ++i)
            text += static_cast<char>('a' + between(0, 25));
        return text;
    };
    const auto twoDigits = [](int value) { return std::to_string(100 + value).substr(1); };
    std::vector<std::string> cities;
    for (int i = 0; i < 200; ++i)
        cities.push_back(word(between(4, 14)));
    std::vector<std::string> rows;
    for (int i = 1; i <= count; ++i) {
        const std::string amount = std::to_string(between(0, 99999)) + "." + twoDigits(between(0, 99));
        const std::string date = std::to_string(between(1990, 2026)) + "-" + twoDigits(between(1, 12)) + "-" +
                                 twoDigits(between(1, 28));
        rows.push_back(std::to_string(i) + "|" + word(between(8, 20)) + "|" +
                       cities[static_cast<std::size_t>(between(0, 199))] + "|" + amount + "|" + date);
    }
    return rows;
}

} // namespace lumtex::bench
