#include "qt/spoken_list.h"

#include "qt/list_core.h"
#include "qt/spoken_element.h"

#include <QApplication>
#include <QWindow>
#include <algorithm>
#include <cmath>
#include <tuple>

namespace lumtex::qt {

using accessibility::Element;
using accessibility::Kind;

bool SpokenList::ByRow::operator()(const Element& one, const Element& other) const {
    return std::tie(one.row, one.column, one.kind, one.horizontal) <
           std::tie(other.row, other.column, other.kind, other.horizontal);
}

SpokenList::SpokenList(QWidget& widget, const std::shared_ptr<ListCore>& core)
    : widget_(&widget), core_(core), list_(core->list()) {}

void SpokenList::listen() {
    rowsTold_ = list_.rowCount();
    list_.listen([weak = weak_from_this()](const accessibility::Change& change) {
        if (const std::shared_ptr<SpokenList> spoken = weak.lock())
            spoken->tell(change);
    });
}

void SpokenList::close() {
    list_.listen({});
    widget_.clear();
    core_.reset();
    for (const auto& [element, id] : ids_)
        QAccessible::deleteAccessibleInterface(id);
    ids_.clear();
}

ScreenWidget* SpokenList::screen() const {
    const std::shared_ptr<ListCore> core = core_.lock();
    return core != nullptr ? core->screen() : nullptr;
}

QLineEdit* SpokenList::field() const {
    const std::shared_ptr<ListCore> core = core_.lock();
    return core != nullptr && !list_.hasEnded() ? core->field() : nullptr;
}

bool SpokenList::hasKeyboard() const {
    const QWidget* holder = QApplication::focusWidget();
    return holder != nullptr && !list_.hasEnded() && (holder == screen() || holder == field());
}

QWindow* SpokenList::window() const {
    return widget_ != nullptr ? widget_->window()->windowHandle() : nullptr;
}

QAccessibleInterface* SpokenList::interfaceOf(const Element& element) {
    if (!list_.exists(element) || widget_ == nullptr)
        return nullptr;
    if (element.kind == Kind::list)
        return QAccessible::queryAccessibleInterface(widget_);
    if (element.kind == Kind::editor)
        return QAccessible::queryAccessibleInterface(field());
    if (const auto known = ids_.find(element); known != ids_.end())
        return QAccessible::accessibleInterface(known->second);
    QAccessibleInterface* made = makeSpokenElement(shared_from_this(), element);
    ids_.emplace(element, QAccessible::registerAccessibleInterface(made));
    return made;
}

QRect SpokenList::rectOf(const Element& element) const {
    const std::shared_ptr<ListCore> core = core_.lock();
    const std::optional<Rect> place = list_.place(element);
    if (core == nullptr || !place || core->screen() == nullptr)
        return {};
    // A unit belongs to the element that has its middle, so that neighbours share none.
    const auto unit = [&](Long pixel) {
        return static_cast<int>(std::lround(pixel / core->world().ratio()));
    };
    const QPoint first(unit(place->Left), unit(place->Top));
    const QSize size(std::max(unit(place->Right) - first.x(), 1),
                     std::max(unit(place->Bottom) - first.y(), 1));
    return {core->screen()->mapToGlobal(first), size};
}

Element SpokenList::at(int x, int y) const {
    const std::shared_ptr<ListCore> core = core_.lock();
    if (core == nullptr || core->screen() == nullptr)
        return accessibility::nothing;
    const QPoint local = core->screen()->mapFromGlobal(QPoint(x, y));
    constexpr Double middle = 0.5;
    const auto pixel = [&](int unit) {
        return static_cast<Long>(std::floor((unit + middle) * core->world().ratio()));
    };
    return list_.at(pixel(local.x()), pixel(local.y()));
}

QAccessible::State SpokenList::stateOf(const Element& element) const {
    const accessibility::States states = list_.states(element);
    const auto is = [states](accessibility::State state) { return (states & state) != 0 ? 1U : 0U; };
    QAccessible::State state;
    state.invalid = is(accessibility::gone);
    state.disabled = is(accessibility::unavailable);
    state.invisible = is(accessibility::invisible);
    state.offscreen = is(accessibility::offscreen);
    state.focusable = is(accessibility::focusable);
    state.focused = hasKeyboard() ? is(accessibility::focused) : 0U;
    state.selectable = is(accessibility::selectable);
    state.multiSelectable = is(accessibility::multiSelectable);
    state.selected = is(accessibility::selected);
    state.checkable = is(accessibility::checkable);
    state.checked = is(accessibility::checked);
    state.editable = is(accessibility::editable);
    state.readOnly = element.kind == Kind::cell && !state.editable ? 1U : 0U;
    state.hotTracked = is(accessibility::hot);
    state.pressed = is(accessibility::pressed);
    return state;
}

void SpokenList::letGoOfRowsBehind(Long last) {
    const auto first = ids_.lower_bound(Element{Kind::nothing, last + 1});
    std::for_each(
        first, ids_.end(), [](const auto& known) { QAccessible::deleteAccessibleInterface(known.second); });
    ids_.erase(first, ids_.end());
}

void SpokenList::letGoOfWhatIsGone() {
    std::erase_if(ids_, [this](const auto& known) {
        const bool isGone = !list_.exists(known.first);
        if (isGone)
            QAccessible::deleteAccessibleInterface(known.second);
        return isGone;
    });
}

} // namespace lumtex::qt
