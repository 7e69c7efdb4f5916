#include "platform/headless/headless_widgets.h"

#include <algorithm>

namespace lumtex {

namespace {

constexpr Integer backspace = 8;
constexpr Integer firstPrintable = 32;

/// Orders timers that were started for the same moment.
std::uint64_t nextArrival = 0;

} // namespace

HeadlessTextBox::HeadlessTextBox(Desktop& desktop,
                                 HeadlessWindow& parent,
                                 TextBoxClient& client,
                                 WindowHandle handle)
    : desktop_(desktop), parent_(parent), client_(client), handle_(handle) {
    desktop_.textBoxes_.push_back(this);
}

HeadlessTextBox::~HeadlessTextBox() {
    std::erase(desktop_.textBoxes_, this);
    desktop_.forget(handle_);
}

void HeadlessTextBox::letVisible(bool visible) {
    visible_ = visible;
    if (!visible && desktop_.focus_ == handle_)
        desktop_.setFocus(parent_.hWnd());
}

void HeadlessTextBox::letText(StringView text) {
    text_ = text;
    selStart_ = 0;
    selLength_ = 0;
}

void HeadlessTextBox::letSelStart(Long start) {
    selStart_ = std::clamp(start, Long{0}, static_cast<Long>(text_.size()));
    selLength_ = 0;
}

void HeadlessTextBox::letSelLength(Long length) {
    selLength_ = std::clamp(length, Long{0}, static_cast<Long>(text_.size()) - selStart_);
}

void HeadlessTextBox::setFocus() {
    desktop_.setFocus(handle_);
}

void HeadlessTextBox::enter(Integer character) {
    client_.textBoxKeyPress(character);
    const auto start = static_cast<std::size_t>(selStart_);
    const auto length = static_cast<std::size_t>(selLength_);
    if (character == backspace) {
        const bool nothingSelected = length == 0;
        const std::size_t from = nothingSelected && start > 0 ? start - 1 : start;
        text_.erase(from, nothingSelected ? start - from : length);
        selStart_ = static_cast<Long>(from);
    } else if (character >= firstPrintable || character < 0) {
        text_.replace(start, length, 1, static_cast<char16_t>(character));
        ++selStart_;
    } else {
        return;
    }
    selLength_ = 0;
}

HeadlessTimer::HeadlessTimer(Desktop& desktop, std::function<void()> onTimer)
    : desktop_(desktop), onTimer_(std::move(onTimer)) {
    desktop_.timers_.push_back(this);
}

HeadlessTimer::~HeadlessTimer() {
    std::erase(desktop_.timers_, this);
}

void HeadlessTimer::restart() {
    due_ = desktop_.time_ + std::chrono::milliseconds(interval_);
    arrival_ = ++nextArrival;
}

void HeadlessTimer::letEnabled(bool enabled) {
    if (enabled && !enabled_)
        restart();
    enabled_ = enabled;
}

void HeadlessTimer::letInterval(Long milliseconds) {
    interval_ = std::max(milliseconds, Long{0});
    restart();
}

void HeadlessTimer::tick(std::chrono::milliseconds now) {
    due_ = now + std::chrono::milliseconds(interval_);
    arrival_ = ++nextArrival;
    // A copy, since the handler may destroy its timer.
    const std::function<void()> handler = onTimer_;
    handler();
}

} // namespace lumtex
