/// \file
/// Timers of Windows on a clock that only moves by hand.
#pragma once

#include "worlds/win32/tick_source.h"

#include <algorithm>
#include <chrono>
#include <functional>
#include <optional>
#include <tuple>
#include <vector>

namespace lumtex::testing {

/// Posts the ticks as the messages that they are. Keeps a timer's rhythm from the moment it was started.
class ManualTicks final : public win32::TickSource {
  public:
    using Span = std::chrono::milliseconds;

    bool start(HWND window, UINT_PTR run, Long milliseconds) override {
        const Span interval(milliseconds);
        runs_.push_back({window, run, interval, now_ + interval, ++arrivals_});
        return true;
    }
    void stop(HWND window, UINT_PTR run) override {
        std::erase_if(runs_, [&](const Run& known) { return known.window == window && known.number == run; });
    }

    bool mayBeLate() const override { return false; }

    /// Lets time pass. `deliver` lets all messages through; it is called once before, and at each moment at
    /// which ticks were due.
    void advance(Span span, const std::function<void()>& deliver) {
        const Span end = now_ + span;
        deliver();
        for (auto due = nextDue(); due && *due <= end; due = nextDue()) {
            now_ = *due;
            postTicks();
            deliver();
        }
        now_ = end;
    }

  private:
    struct Run {
        HWND window;
        UINT_PTR number;
        Span interval;
        Span due;
        std::uint64_t arrival; ///< orders those that are due at the same moment
    };

    std::vector<Run>::iterator next() {
        return std::min_element(runs_.begin(), runs_.end(), [](const Run& a, const Run& b) {
            return std::tie(a.due, a.arrival) < std::tie(b.due, b.arrival);
        });
    }
    std::optional<Span> nextDue() {
        const auto first = next();
        return first != runs_.end() ? std::optional(first->due) : std::nullopt;
    }
    void postTicks() {
        for (auto due = next(); due != runs_.end() && due->due <= now_; due = next()) {
            due->due += due->interval;
            due->arrival = ++arrivals_;
            PostMessageW(due->window, WM_TIMER, due->number, 0);
        }
    }

    Span now_{0};
    std::uint64_t arrivals_ = 0;
    std::vector<Run> runs_;
};

} // namespace lumtex::testing
