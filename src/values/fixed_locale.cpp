#include "values/fixed_locale.h"

namespace lumtex {

namespace {

String decimalDigits(std::uint64_t value) {
    return textFromDecimal(
        {{static_cast<std::uint32_t>(value), static_cast<std::uint32_t>(value >> 32U), 0}, 0, false}, u'.');
}

} // namespace

NumberFromText FixedLocale::readNumber(StringView text) const {
    return lumtex::readNumber(text, marks_);
}

std::optional<Date> FixedLocale::readDate(StringView text) const {
    return dateFromText(text, order_);
}

String FixedLocale::textOf(LongLong value) const {
    const auto bits = static_cast<std::uint64_t>(value.value);
    return value.value < 0 ? u"-" + decimalDigits(std::uint64_t{0} - bits) : decimalDigits(bits);
}

String FixedLocale::textOf(UnsignedLongLong value) const {
    return decimalDigits(value.value);
}

String FixedLocale::textOf(Single value) const {
    return textFromNumber(value, marks_.decimal);
}

String FixedLocale::textOf(Double value) const {
    return textFromNumber(value, marks_.decimal);
}

String FixedLocale::textOf(Currency value) const {
    return textFromDecimal(toDecimal(value), marks_.decimal);
}

String FixedLocale::textOf(const Decimal& value) const {
    return textFromDecimal(value, marks_.decimal);
}

String FixedLocale::textOf(Date value) const {
    return textFromDate(value, order_);
}

String FixedLocale::dateText(Date date) const {
    return dayTextFromDate(date, order_);
}

String FixedLocale::timeText(Date date) const {
    return timeTextFromDate(date);
}

const Locale& invariantLocale() {
    static const FixedLocale locale({u'.', noGroupMark}, DateOrder::yearFirst);
    return locale;
}

const Locale& germanLocale() {
    static const FixedLocale locale({u',', u'.'}, DateOrder::dayFirst);
    return locale;
}

} // namespace lumtex
