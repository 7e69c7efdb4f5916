#include "values/side_by_side.h"

#include <exception>
#include <optional>
#include <system_error>
#include <thread>

namespace lumtex {

Hands handsFor(std::size_t rows) {
    // Below, starting a thread takes longer than it saves.
    constexpr std::size_t leastRows = 20000;
    static const bool hasTwoProcessors = std::thread::hardware_concurrency() > 1;
    return rows >= leastRows && hasTwoProcessors ? Hands::two : Hands::one;
}

void sideBySide(const std::function<void()>& here, const std::function<void()>& there) {
    std::exception_ptr failure;
    const auto otherHalf = [&] {
        try {
            there();
        } catch (...) {
            failure = std::current_exception();
        }
    };
    std::optional<std::jthread> other;
    try {
        other.emplace(otherHalf);
    } catch (const std::system_error&) {
        other.reset();
    }
    here();
    if (other)
        other->join();
    else
        otherHalf();
    if (failure)
        std::rethrow_exception(failure);
}

} // namespace lumtex
