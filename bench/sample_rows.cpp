#include "sample_rows.h"

#include <algorithm>
#include <array>
#include <random>
#include <stdexcept>

namespace lumtex::bench {

namespace {

constexpr std::array<const char*, sampleDataKinds> names = {
    "usual", "long", "few", "sorted", "reversed", "organ", "ten"};

/// The columns behind the running number: name, city, amount, date.
using Columns = std::array<std::vector<std::string>, 4>;

class Sampler {
  public:
    explicit Sampler(SampleData data) : isLong_(data == SampleData::longTexts) {
        for (int i = 0; i < 200; ++i)
            cities_.push_back(isLong_ ? word(between(40, 200)) : word(between(4, 14)));
    }

    void addRow(Columns& columns) {
        const std::string amount = std::to_string(between(0, 99999)) + "." + twoDigits(between(0, 99));
        const std::string date = std::to_string(between(1990, 2026)) + "-" + twoDigits(between(1, 12)) + "-" +
                                 twoDigits(between(1, 28));
        columns[1].push_back(cities_[static_cast<std::size_t>(between(0, 199))]);
        columns[0].push_back(isLong_ ? word(between(40, 200)) : word(between(8, 20)));
        columns[2].push_back(amount);
        columns[3].push_back(date);
    }
    int between(int low, int high) {
        return low + static_cast<int>(random_() % static_cast<unsigned>(high - low + 1));
    }

  private:
    std::string word(int length) {
        std::string text;
        for (int i = 0; i < length; ++i)
            text += static_cast<char>('a' + between(0, 25));
        return text;
    }
    static std::string twoDigits(int value) { return std::to_string(100 + value).substr(1); }

    std::mt19937 random_{20261121};
    std::vector<std::string> cities_;
    bool isLong_;
};

void leaveFewValues(Columns& columns, Sampler& sampler) {
    constexpr std::array<int, 4> kept = {20, 5, 20, 12};
    for (std::size_t c = 0; c < columns.size(); ++c) {
        std::vector<std::string>& texts = columns[c];
        const int count = std::min(kept[c], static_cast<int>(texts.size()));
        const std::vector<std::string> values(texts.begin(), texts.begin() + count);
        for (std::string& text : texts)
            text = values[static_cast<std::size_t>(sampler.between(0, count - 1))];
    }
}

void sortColumns(Columns& columns, SampleData data) {
    for (std::size_t c = 0; c < columns.size(); ++c) {
        std::vector<std::string>& texts = columns[c];
        const bool byNumber = c == 2;
        std::sort(texts.begin(), texts.end(), [&](const std::string& a, const std::string& b) {
            return byNumber ? std::stod(a) < std::stod(b) : a < b;
        });
        if (data == SampleData::reversed) {
            std::reverse(texts.begin(), texts.end());
        } else if (data == SampleData::organPipe) {
            std::vector<std::string> pipes(texts.size());
            for (std::size_t i = 0; i < texts.size(); ++i)
                pipes[i % 2 == 0 ? i / 2 : texts.size() - 1 - i / 2] = std::move(texts[i]);
            texts = std::move(pipes);
        }
    }
}

} // namespace

const char* nameOf(SampleData data) {
    return names[static_cast<std::size_t>(data)];
}

SampleData sampleDataNamed(std::string_view name) {
    const auto found = std::find(names.begin(), names.end(), name);
    if (found == names.end())
        throw std::invalid_argument("no such data: " + std::string(name));
    return static_cast<SampleData>(found - names.begin());
}

int columnsIn(SampleData data) {
    return data == SampleData::tenColumns ? 10 : 5;
}

std::vector<std::string> sampleRows(int count, SampleData data) {
    Sampler sampler(data);
    Columns columns;
    for (int i = 0; i < count; ++i)
        sampler.addRow(columns);
    if (data == SampleData::fewValues)
        leaveFewValues(columns, sampler);
    if (data == SampleData::sorted || data == SampleData::reversed || data == SampleData::organPipe)
        sortColumns(columns, data);
    std::vector<std::string> rows;
    rows.reserve(static_cast<std::size_t>(count));
    for (std::size_t i = 0; i < static_cast<std::size_t>(count); ++i) {
        std::string row = std::to_string(i + 1);
        for (const std::vector<std::string>& texts : columns)
            row += "|" + texts[i];
        rows.push_back(data == SampleData::tenColumns ? row + "|" + row : row);
    }
    return rows;
}

} // namespace lumtex::bench
