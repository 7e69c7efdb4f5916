#include "values/locale.h"

#include "values/date_text.h"
#include "values/fixed_locale.h"
#include "values/runtime_error.h"
#include "values/thread_state.h"

#include <atomic>
#include <utility>

namespace lumtex {

namespace {

std::atomic<const Locale*> usersLocale = nullptr;

} // namespace

const Locale& currentLocale() {
    if (const UsingLocale* innermost = ThreadState::ofThread().innermostLocale)
        return innermost->locale();
    const Locale* const users = usersLocale.load(std::memory_order_acquire);
    return users != nullptr ? *users : invariantLocale();
}

void letUsersLocale(const Locale& locale) {
    usersLocale.store(&locale, std::memory_order_release);
}

UsingLocale::UsingLocale(const Locale& locale)
    : locale_(locale), outer_(std::exchange(ThreadState::ofThread().innermostLocale, this)) {}

UsingLocale::~UsingLocale() {
    UsingLocale** place = &ThreadState::ofThread().innermostLocale;
    while (*place != this)
        place = &(*place)->outer_;
    *place = outer_;
}

Double numberFrom(StringView text) {
    const NumberFromText result = currentLocale().readNumber(text);
    if (result.outcome == NumberFromText::notANumber)
        throw RuntimeError(ErrorNumber::typeMismatch);
    if (result.outcome == NumberFromText::tooLarge)
        throw RuntimeError(ErrorNumber::overflow);
    return result.value;
}

Date dateFrom(StringView text) {
    if (const auto date = currentLocale().readDate(text))
        return *date;
    const Double days = numberFrom(text);
    if (!isDateInRange(days))
        throw RuntimeError(ErrorNumber::overflow);
    return Date{days};
}

std::optional<Double> numberIn(StringView text) {
    const NumberFromText result = currentLocale().readNumber(text);
    if (result.outcome != NumberFromText::number)
        return std::nullopt;
    return result.value;
}

} // namespace lumtex
