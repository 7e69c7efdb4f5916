#include "ordering/number_rows.h"

#include "guards/failure_of.h"
#include "ordering/sort_keys.h"
#include "values/date_text.h"
#include "values/locale.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>
#include <optional>
#include <span>

namespace lumtex::ordering {

namespace {

/// Up to these, a number of that many digits and a power of ten are exact as Doubles, and so one division
/// rounds as correctly as reading the text does.
constexpr std::size_t mostExactDigits = 15;
constexpr Double smallestInexact = 1e15;
constexpr std::array<Double, mostExactDigits + 1> powersOfTen = {
    1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};

struct PlainDecimal {
    Double value;
    std::size_t places; ///< digits behind the mark
};

/// A number of digits alone, with a minus before it and a decimal mark inside. None for any other text, which
/// may be a number still.
std::optional<PlainDecimal> plainDecimal(std::span<const unsigned char> text, unsigned char decimalMark) {
    const bool negative = !text.empty() && text[0] == '-';
    if (negative)
        text = text.subspan(1);
    if (text.empty() || text.size() > mostExactDigits)
        return std::nullopt;
    std::int64_t digits = 0;
    std::size_t point = text.size() - 1;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] >= '0' && text[i] <= '9')
            digits = digits * 10 + (text[i] - '0');
        else if (text[i] == decimalMark && i > 0 && i + 1 < text.size() && point == text.size() - 1)
            point = i;
        else
            return std::nullopt;
    }
    const std::size_t places = text.size() - 1 - point;
    const Double value = static_cast<Double>(digits) / powersOfTen[places];
    return PlainDecimal{negative && digits != 0 ? -value : value, places};
}

/// A number of at most 15 digits, as many as these of them behind the point, goes through 15 digits
/// unchanged.
constexpr std::size_t mostShortPlaces = 6;

bool isShortDecimal(Double value) {
    for (std::size_t places = 0; places <= mostShortPlaces; places += 2) {
        const Double scaled = value * powersOfTen[places];
        if (std::fabs(scaled) >= smallestInexact)
            return false;
        if (std::trunc(scaled) == scaled && scaled / powersOfTen[places] == value)
            return true;
    }
    return false;
}

/// The mark between the digits of 1.5, as far as it is a point or a comma.
unsigned char decimalMark(const Locale& locale) {
    for (const unsigned char mark : {'.', ','}) {
        const NumberFromText number = locale.readNumber(String{u'1', mark, u'5'});
        if (number.outcome == NumberFromText::number && number.value == 1.5)
            return mark;
    }
    return 0;
}

/// Whether a locale writes dates so that nothing is lost: some users have it leave out the century or the
/// seconds.
bool datesKeepTheirTexts(const Locale& locale) {
    static constexpr Double probes[] = {
        -36522.0, 2.25, 10958.999988, 36585.000012, 47483.5, 73050.75, 401768.0};
    static constexpr Double halfSecond = 0.5 / (24 * 60 * 60);
    return std::ranges::all_of(probes, [&](Double days) {
        const auto first = locale.readDate(locale.textOf(Date{days}));
        return first && std::fabs(first->days - days) <= halfSecond &&
               locale.readDate(locale.textOf(*first)) == first;
    });
}

} // namespace

NumberReader::NumberReader(cSortType type, std::size_t rows, const Locale& locale)
    : bitsOfPlace_(std::clamp(static_cast<unsigned>(std::bit_width(rows)), 1U, mostBitsOfPlace)), type_(type),
      locale_(locale) {
    if (type == cSortNumeric) {
        decimalMark_ = decimalMark(locale);
        return;
    }
    knownDates_.resize(std::size_t{1} << bitsOfPlace_);
    readsBack_ = false;
    ignoringErrors([&] { readsBack_ = datesKeepTheirTexts(locale); });
}

/// The same text is the same date as long as the locale stays, which it does for a sort.
Double NumberReader::readKnownDate(const CompactText& text) {
    const unsigned char* const bytes = text.insideBytes();
    if (bytes == nullptr || text.empty())
        return readText(text);
    std::array<unsigned char, 16> whole{};
    std::copy_n(bytes, text.size(), whole.begin());
    whole.back() = static_cast<unsigned char>(text.size());
    std::uint64_t low = 0;
    std::uint64_t high = 0;
    std::memcpy(&low, whole.data(), sizeof low);
    std::memcpy(&high, whole.data() + sizeof low, sizeof high);
    const std::uint64_t mixed = (low ^ (high * 0x9E3779B97F4A7C15U)) * 0xC2B2AE3D27D4EB4FU;
    Place& place = knownDates_[mixed >> (64U - bitsOfPlace_)];
    for (const KnownDate& known : place)
        if (known.low == low && known.high == high)
            return known.key;
    const Double key = readText(text);
    std::ranges::move_backward(place.begin(), place.end() - 1, place.end());
    place.front() = {low, high, key};
    return key;
}

/// A date that was read has whole seconds; a number of days need not.
Double NumberReader::readDate() {
    if (const auto date = locale_.readDate(buffer_))
        return date->days;
    readsBack_ = false;
    const Double days = readNumber();
    return isDateInRange(days) ? days : unreadable;
}

Double NumberReader::readNumber() {
    const NumberFromText result = locale_.readNumber(buffer_);
    return result.outcome == NumberFromText::number ? result.value : unreadable;
}

Double NumberReader::read(const CompactText& text) {
    if (type_ == cSortNumeric && !text.isWide()) {
        const auto plain = text.visit([&]<class Units>(Units units) -> std::optional<PlainDecimal> {
            if constexpr (std::is_same_v<Units, StringView>)
                return std::nullopt;
            else
                return plainDecimal(units, decimalMark_);
        });
        if (plain) {
            readsBack_ = readsBack_ && plain->places <= mostShortPlaces;
            return plain->value;
        }
    }
    return type_ == cSortDate ? readKnownDate(text) : readText(text);
}

Double NumberReader::readText(const CompactText& text) {
    text.copyTo(buffer_);
    Double key = unreadable;
    ignoringErrors([&] { key = type_ == cSortDate ? readDate() : readNumber(); });
    if (type_ == cSortNumeric)
        readsBack_ = readsBack_ && (key != key || isShortDecimal(key));
    return key;
}

Double throughPivotText(Double key, cSortType type) {
    if (key != key)
        return key;
    if (type == cSortNumeric && isShortDecimal(key))
        return key;
    Double pivot = unreadable;
    // All locales write the same fifteen digits, and the system's own ones take long for it.
    if (type == cSortNumeric)
        pivot = numberFromText(textFromNumber(key)).value_or(unreadable);
    else
        ignoringErrors([&] { pivot = numberKey(pivotText(key, type), type); });
    return pivot;
}

NumberKeys::NumberKeys(std::size_t rows)
    : count_(rows), keys_(std::make_unique_for_overwrite<Key[]>(rows + 2)) {
    keys_[0] = {unreadable, 0};
    keys_[rows + 1] = {unreadable, 0};
}

std::vector<std::uint32_t> NumberKeys::order() const {
    std::vector<std::uint32_t> order(count_);
    std::transform(front(), front() + count_, order.begin(), [](const Key& key) { return key.row; });
    return order;
}

} // namespace lumtex::ordering
