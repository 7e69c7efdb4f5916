#include "activex/spoken_list.h"

#include "activex/spoken_element.h"
#include "activex/uia_element.h"
#include "activex/uia_events.h"
#include "model/list_view.h"

namespace lumtex::win32 {

using accessibility::Change;
using accessibility::ChangeKind;
using accessibility::Element;
using accessibility::Kind;

namespace {

/// Elements beside the rows, below 0 in this order; headers follow from `firstHeader` down.
constexpr Element beside[] = {accessibility::theHeaders,
                              accessibility::verticalBar,
                              accessibility::horizontalBar,
                              accessibility::theEditor};
constexpr LONG firstHeader = -16;

DWORD eventOf(ChangeKind kind) {
    switch (kind) {
    case ChangeKind::focus:
        return EVENT_OBJECT_FOCUS;
    case ChangeKind::selected:
        return EVENT_OBJECT_SELECTION;
    case ChangeKind::selectionAdded:
        return EVENT_OBJECT_SELECTIONADD;
    case ChangeKind::selectionRemoved:
        return EVENT_OBJECT_SELECTIONREMOVE;
    case ChangeKind::selectionChanged:
        return EVENT_OBJECT_SELECTIONWITHIN;
    case ChangeKind::name:
        return EVENT_OBJECT_NAMECHANGE;
    case ChangeKind::value:
    case ChangeKind::scrolled:
        return EVENT_OBJECT_VALUECHANGE;
    case ChangeKind::state:
        return EVENT_OBJECT_STATECHANGE;
    case ChangeKind::shown:
        return EVENT_OBJECT_SHOW;
    case ChangeKind::hidden:
        return EVENT_OBJECT_HIDE;
    case ChangeKind::rowsAdded:
    case ChangeKind::rowsRemoved:
    case ChangeKind::columnsChanged:
    case ChangeKind::contents:
    case ChangeKind::sorted:
        return EVENT_OBJECT_REORDER;
    }
    return EVENT_OBJECT_REORDER;
}

void notify(const SpokenList& spoken, DWORD event, const Element& element) {
    if (spoken.handle != nullptr)
        NotifyWinEvent(event, spoken.handle, OBJID_CLIENT, eventNumberOf(element));
}

void tell(const std::shared_ptr<SpokenList>& spoken, const Change& change) {
    // Who has the keyboard elsewhere must not be called here.
    if (change.kind == ChangeKind::focus && !spoken->hasKeyboard())
        return;
    const bool sorted = change.kind == ChangeKind::sorted;
    notify(*spoken, eventOf(change.kind), sorted ? accessibility::theList : change.element);
    if (sorted && change.element.kind == Kind::header)
        notify(*spoken, EVENT_OBJECT_DESCRIPTIONCHANGE, change.element);
    raiseUiaEvents(spoken, change);
}

} // namespace

LONG eventNumberOf(const Element& element) {
    if (element.row > 0)
        return element.row;
    if (element.kind == Kind::header)
        return firstHeader - element.column;
    for (std::size_t i = 0; i < std::size(beside); ++i)
        if (beside[i] == element)
            return -static_cast<LONG>(i) - 1;
    return CHILDID_SELF;
}

Element elementOfNumber(const accessibility::AccessibleList& list, LONG number) {
    if (number == CHILDID_SELF)
        return accessibility::theList;
    if (number > 0)
        return list.child(accessibility::theList, number);
    if (number < firstHeader)
        return accessibility::headerElement(firstHeader - number);
    const auto place = static_cast<std::size_t>(-(number + 1));
    return place < std::size(beside) ? beside[place] : accessibility::nothing;
}

HWND SpokenList::window() const {
    return hasEnded() || IsWindow(handle) == FALSE ? nullptr : handle;
}

bool SpokenList::hasKeyboard() const {
    const HWND focus = GetFocus();
    return window() != nullptr && focus != nullptr && (focus == handle || IsChild(handle, focus) != FALSE);
}

std::optional<Rect> SpokenList::place(const Element& element) const {
    std::optional<Rect> place = list.place(element);
    POINT corner{};
    if (!place || window() == nullptr || ClientToScreen(window(), &corner) == FALSE)
        return std::nullopt;
    place->Left += corner.x;
    place->Right += corner.x;
    place->Top += corner.y;
    place->Bottom += corner.y;
    return place;
}

Element SpokenList::at(LONG x, LONG y) const {
    POINT at{x, y};
    if (window() == nullptr || ScreenToClient(window(), &at) == FALSE)
        return accessibility::nothing;
    return list.at(at.x, at.y);
}

ListSpeaker::ListSpeaker(lmListView& list, IUnknown& control, FindUia findUia)
    : spoken_(std::make_shared<SpokenList>(list, control)), findUia_(findUia) {
    spoken_->handle = toHWND(list.hwnd());
    spoken_->list.listen([weak = std::weak_ptr(spoken_)](const Change& change) {
        if (const auto spoken = weak.lock())
            tell(spoken, change);
    });
}

LRESULT ListSpeaker::answer(WPARAM wParam, LPARAM lParam) {
    const auto spoken = spoken_;
    if (spoken->hasEnded())
        return 0;
    switch (static_cast<LONG>(lParam)) {
    case OBJID_CLIENT: {
        const auto list = ComRef<IAccessible>::adopting(new SpokenElement(spoken, accessibility::theList));
        // The import library knows the identifier of the interface by a wrong address.
        return LresultFromObject(__uuidof(IAccessible), wParam, list.get());
    }
    case uiaRootObject: {
        if (spoken->uia == nullptr)
            spoken->uia = findUia_();
        if (spoken->uia == nullptr)
            return 0;
        const ComRef<IRawElementProviderSimple> list = uiaProvider(spoken, accessibility::theList);
        return spoken->uia->returnProvider(spoken->handle, wParam, lParam, list.get());
    }
    default:
        return 0;
    }
}

void ListSpeaker::tellFocus() const {
    const auto spoken = spoken_;
    if (!spoken->hasEnded())
        tell(spoken, {ChangeKind::focus, spoken->list.focus()});
}

void ListSpeaker::tellEnd() const {
    if (spoken_->uia != nullptr && spoken_->window() != nullptr)
        spoken_->uia->returnProvider(spoken_->handle, 0, 0, nullptr);
}

} // namespace lumtex::win32
