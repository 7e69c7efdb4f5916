/// The list as what is scrolled by its bars.
#include "activex/uia_element.h"
#include "values/rounding.h"

#include <algorithm>

namespace lumtex::win32 {

using accessibility::Element;
using List = accessibility::AccessibleList;

namespace {

constexpr double allOfIt = 100; // percent

/// How far an amount moves a bar; 0 for none.
std::int64_t distanceOf(ScrollAmount amount, const List::Range& range) {
    switch (amount) {
    case ScrollAmount::largeDecrement:
        return -std::int64_t{range.page};
    case ScrollAmount::smallDecrement:
        return -std::int64_t{range.step};
    case ScrollAmount::smallIncrement:
        return range.step;
    case ScrollAmount::largeIncrement:
        return range.page;
    case ScrollAmount::none:
        break;
    }
    return 0;
}

double spanOf(const List::Range& range) {
    return static_cast<double>(range.most) - range.least;
}

/// Moves a bar to a place, which may lie behind its ends.
bool moveTo(List& list, const Element& bar, const List::Range& range, double place) {
    const double inside =
        std::clamp(place, static_cast<double>(range.least), static_cast<double>(range.most));
    return list.setRange(bar, roundToLong(inside));
}

bool isPercent(double percent) {
    return percent == uiaNoScroll || (percent >= 0 && percent <= allOfIt);
}

} // namespace

/// Both ways or none: where a bar is asked for that is not there, nothing moves.
template <class Wish, class Move>
HRESULT UiaElement::scrollBoth(Wish horizontal, Wish vertical, Wish none, Move&& move) noexcept {
    return act([&](List& list) {
        const auto missing = [&](const Element& bar, Wish wish) { return wish != none && !list.range(bar); };
        if (missing(accessibility::horizontalBar, horizontal) ||
            missing(accessibility::verticalBar, vertical))
            return false;
        const auto scroll = [&](const Element& bar, Wish wish) {
            if (wish == none)
                return true;
            // The other bar, and host code, may have taken it away meanwhile.
            const auto range = list.range(bar);
            return range && move(list, bar, *range, wish);
        };
        return scroll(accessibility::horizontalBar, horizontal) &&
               scroll(accessibility::verticalBar, vertical);
    });
}

HRESULT UiaElement::Scroll(ScrollAmount horizontal, ScrollAmount vertical) {
    for (const ScrollAmount amount : {horizontal, vertical})
        if (amount < ScrollAmount::largeDecrement || amount > ScrollAmount::smallIncrement)
            return E_INVALIDARG;
    return scrollBoth(horizontal,
                      vertical,
                      ScrollAmount::none,
                      [](List& list, const Element& bar, const List::Range& range, ScrollAmount amount) {
                          return moveTo(
                              list, bar, range, static_cast<double>(range.value + distanceOf(amount, range)));
                      });
}

HRESULT UiaElement::SetScrollPercent(double horizontal, double vertical) {
    if (!isPercent(horizontal) || !isPercent(vertical))
        return E_INVALIDARG;
    return scrollBoth(horizontal,
                      vertical,
                      uiaNoScroll,
                      [](List& list, const Element& bar, const List::Range& range, double percent) {
                          return moveTo(list, bar, range, range.least + spanOf(range) * percent / allOfIt);
                      });
}

HRESULT UiaElement::percent(double* to, const Element& bar) noexcept {
    return answer(to, [&] {
        const auto range = spoken_->list.range(bar);
        if (!range || spanOf(*range) <= 0)
            return uiaNoScroll;
        return (static_cast<double>(range->value) - range->least) / spanOf(*range) * allOfIt;
    });
}

HRESULT UiaElement::viewSize(double* to, const Element& bar) noexcept {
    return answer(to, [&] {
        const auto range = spoken_->list.range(bar);
        const double whole = range ? spanOf(*range) + range->page : 0;
        return whole > 0 ? range->page / whole * allOfIt : allOfIt;
    });
}

HRESULT UiaElement::scrollable(WINBOOL* to, const Element& bar) noexcept {
    return answer(to, [&] {
        const auto range = spoken_->list.range(bar);
        return range && spanOf(*range) > 0 ? TRUE : FALSE;
    });
}

HRESULT UiaElement::get_HorizontalScrollPercent(double* percentage) {
    return percent(percentage, accessibility::horizontalBar);
}

HRESULT UiaElement::get_VerticalScrollPercent(double* percentage) {
    return percent(percentage, accessibility::verticalBar);
}

HRESULT UiaElement::get_HorizontalViewSize(double* percentage) {
    return viewSize(percentage, accessibility::horizontalBar);
}

HRESULT UiaElement::get_VerticalViewSize(double* percentage) {
    return viewSize(percentage, accessibility::verticalBar);
}

HRESULT UiaElement::get_HorizontallyScrollable(WINBOOL* can) {
    return scrollable(can, accessibility::horizontalBar);
}

HRESULT UiaElement::get_VerticallyScrollable(WINBOOL* can) {
    return scrollable(can, accessibility::verticalBar);
}

} // namespace lumtex::win32
