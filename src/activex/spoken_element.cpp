#include "activex/spoken_element.h"

#include "activex/snapshot_enum.h"
#include "worlds/win32/variant_bridge.h"

namespace lumtex::win32 {

using accessibility::Direction;
using accessibility::Element;
using accessibility::Kind;

namespace {

LONG roleOf(Kind kind) {
    switch (kind) {
    case Kind::list:
        return ROLE_SYSTEM_LIST;
    case Kind::row:
        return ROLE_SYSTEM_LISTITEM;
    case Kind::cell:
        return ROLE_SYSTEM_CELL;
    case Kind::checkBox:
        return ROLE_SYSTEM_CHECKBUTTON;
    case Kind::headers:
        return ROLE_SYSTEM_GROUPING;
    case Kind::header:
        return ROLE_SYSTEM_COLUMNHEADER;
    case Kind::verticalBar:
    case Kind::horizontalBar:
        return ROLE_SYSTEM_SCROLLBAR;
    case Kind::lowArrow:
    case Kind::highArrow:
        return ROLE_SYSTEM_PUSHBUTTON;
    case Kind::thumb:
        return ROLE_SYSTEM_INDICATOR;
    case Kind::editor:
        return ROLE_SYSTEM_TEXT;
    case Kind::nothing:
        break;
    }
    return ROLE_SYSTEM_CLIENT;
}

LONG stateOf(const SpokenList& spoken, const Element& element) {
    using namespace accessibility;
    const States states = spoken.list.states(element);
    const auto when = [&](State state, LONG bits) { return (states & state) != 0 ? bits : 0; };
    LONG bits = when(unavailable, STATE_SYSTEM_UNAVAILABLE) | when(invisible, STATE_SYSTEM_INVISIBLE) |
                when(offscreen, STATE_SYSTEM_OFFSCREEN | STATE_SYSTEM_INVISIBLE) |
                when(focusable, STATE_SYSTEM_FOCUSABLE) | when(selectable, STATE_SYSTEM_SELECTABLE) |
                when(multiSelectable, STATE_SYSTEM_MULTISELECTABLE) | when(selected, STATE_SYSTEM_SELECTED) |
                when(checked, STATE_SYSTEM_CHECKED) | when(hot, STATE_SYSTEM_HOTTRACKED) |
                when(pressed, STATE_SYSTEM_PRESSED);
    if (spoken.hasKeyboard())
        bits |= when(focused, STATE_SYSTEM_FOCUSED);
    if (element.kind == Kind::cell && (states & editable) == 0)
        bits |= STATE_SYSTEM_READONLY;
    return bits;
}

/// None for a direction that is not known.
std::optional<Direction> directionOf(LONG direction) {
    switch (direction) {
    case NAVDIR_UP:
        return Direction::up;
    case NAVDIR_DOWN:
        return Direction::down;
    case NAVDIR_LEFT:
        return Direction::left;
    case NAVDIR_RIGHT:
        return Direction::right;
    case NAVDIR_NEXT:
        return Direction::next;
    case NAVDIR_PREVIOUS:
        return Direction::previous;
    case NAVDIR_FIRSTCHILD:
        return Direction::firstChild;
    case NAVDIR_LASTCHILD:
        return Direction::lastChild;
    default:
        return std::nullopt;
    }
}

struct CopyOfVARIANT {
    static void copy(VARIANT& to, const VARIANT& from) {
        VariantInit(&to);
        VariantCopy(&to, const_cast<VARIANT*>(&from)); // it only reads it
    }
    static void clear(VARIANT& item) { VariantClear(&item); }
};
using EnumOfVARIANT = SnapshotEnum<IEnumVARIANT, VARIANT, CopyOfVARIANT>;

VARIANT numberVARIANT(LONG number) {
    VARIANT value;
    VariantInit(&value);
    value.vt = VT_I4;
    value.lVal = number;
    return value;
}

} // namespace

HRESULT SpokenElement::QueryInterface(REFIID iid, void** found) {
    if (found == nullptr)
        return E_POINTER;
    *found = nullptr;
    if (IsEqualIID(iid, IID_IUnknown) || IsEqualIID(iid, IID_IDispatch) ||
        IsEqualIID(iid, __uuidof(IAccessible)))
        *found = static_cast<IAccessible*>(this);
    else if (IsEqualIID(iid, IID_IEnumVARIANT))
        *found = static_cast<IEnumVARIANT*>(this);
    else
        return E_NOINTERFACE;
    AddRef();
    return S_OK;
}

ULONG SpokenElement::Release() {
    const ULONG left = --references_;
    if (left == 0)
        delete this;
    return left;
}

HRESULT SpokenElement::GetTypeInfoCount(UINT* count) {
    if (count == nullptr)
        return E_POINTER;
    *count = 0;
    return S_OK;
}

Element SpokenElement::elementOf(const VARIANT& id) const {
    if (id.vt == VT_EMPTY || id.vt == VT_ERROR)
        return element_;
    if (id.vt != VT_I4)
        return accessibility::nothing;
    if (id.lVal == CHILDID_SELF)
        return element_;
    if (element_.kind == Kind::list)
        return elementOfNumber(spoken_->list, id.lVal);
    return spoken_->list.child(element_, id.lVal);
}

template <class Body>
HRESULT SpokenElement::about(const VARIANT& id, Body&& body) noexcept {
    return spoken_->entered(static_cast<IAccessible&>(*this), CO_E_OBJNOTCONNECTED, [&]() -> HRESULT {
        const Element element = elementOf(id);
        if (element.kind == Kind::nothing)
            return E_INVALIDARG;
        if (!spoken_->list.exists(element))
            return CO_E_OBJNOTCONNECTED;
        return body(element);
    });
}

template <class Body>
HRESULT SpokenElement::aboutSelf(Body&& body) noexcept {
    return about(numberVARIANT(CHILDID_SELF), [&](const Element&) { return body(); });
}

template <class Text>
HRESULT SpokenElement::text(const VARIANT& id, BSTR* to, Text&& words) noexcept {
    if (to == nullptr)
        return E_POINTER;
    *to = nullptr;
    return about(id, [&](const Element& element) {
        const String said = words(element);
        if (said.empty())
            return S_FALSE;
        *to = newBSTR(said);
        return S_OK;
    });
}

IDispatch* SpokenElement::object(const Element& element) const {
    return new SpokenElement(spoken_, element);
}

HRESULT SpokenElement::give(const Element& element, VARIANT* to) const {
    if (!spoken_->list.exists(element))
        return S_FALSE;
    to->vt = VT_DISPATCH;
    to->pdispVal = object(element);
    return S_OK;
}

HRESULT SpokenElement::get_accParent(IDispatch** parent) {
    if (parent == nullptr)
        return E_POINTER;
    *parent = nullptr;
    return aboutSelf([&]() -> HRESULT {
        if (element_.kind == Kind::list)
            return AccessibleObjectFromWindow(
                spoken_->window(), OBJID_WINDOW, IID_IDispatch, reinterpret_cast<void**>(parent));
        *parent = object(spoken_->list.parent(element_));
        return S_OK;
    });
}

HRESULT SpokenElement::get_accChildCount(LONG* count) {
    if (count == nullptr)
        return E_POINTER;
    *count = 0;
    return aboutSelf([&] {
        *count = spoken_->list.childCount(element_);
        return S_OK;
    });
}

HRESULT SpokenElement::get_accChild(VARIANT id, IDispatch** child) {
    if (child == nullptr)
        return E_POINTER;
    *child = nullptr;
    return about(id, [&](const Element& element) {
        *child = object(element);
        return S_OK;
    });
}

HRESULT SpokenElement::get_accName(VARIANT id, BSTR* name) {
    return text(id, name, [&](const Element& element) { return spoken_->list.name(element); });
}

HRESULT SpokenElement::get_accValue(VARIANT id, BSTR* value) {
    return text(id, value, [&](const Element& element) { return spoken_->list.value(element); });
}

HRESULT SpokenElement::get_accDescription(VARIANT id, BSTR* description) {
    return text(id, description, [&](const Element& element) { return spoken_->list.description(element); });
}

HRESULT SpokenElement::get_accHelp(VARIANT id, BSTR* help) {
    return text(id, help, [&](const Element& element) { return spoken_->list.help(element); });
}

HRESULT SpokenElement::get_accKeyboardShortcut(VARIANT id, BSTR* keys) {
    return text(id, keys, [&](const Element& element) { return spoken_->list.keys(element); });
}

HRESULT SpokenElement::get_accDefaultAction(VARIANT id, BSTR* action) {
    return text(id, action, [&](const Element& element) { return spoken_->list.action(element); });
}

HRESULT SpokenElement::get_accHelpTopic(BSTR* file, VARIANT /*id*/, LONG* topic) {
    if (file == nullptr || topic == nullptr)
        return E_POINTER;
    *file = nullptr;
    *topic = 0;
    return S_FALSE;
}

HRESULT SpokenElement::get_accRole(VARIANT id, VARIANT* role) {
    if (role == nullptr)
        return E_POINTER;
    VariantInit(role);
    return about(id, [&](const Element& element) {
        *role = numberVARIANT(roleOf(element.kind));
        return S_OK;
    });
}

HRESULT SpokenElement::get_accState(VARIANT id, VARIANT* state) {
    if (state == nullptr)
        return E_POINTER;
    VariantInit(state);
    return about(id, [&](const Element& element) {
        *state = numberVARIANT(stateOf(*spoken_, element));
        return S_OK;
    });
}

HRESULT SpokenElement::get_accFocus(VARIANT* focus) {
    if (focus == nullptr)
        return E_POINTER;
    VariantInit(focus);
    return aboutSelf([&]() -> HRESULT {
        const Element focused = spoken_->list.focus();
        const bool isBelow = element_.kind == Kind::list || element_ == focused;
        if (!isBelow || !spoken_->hasKeyboard())
            return S_FALSE;
        if (focused != element_)
            return give(focused, focus);
        *focus = numberVARIANT(CHILDID_SELF);
        return S_OK;
    });
}

HRESULT SpokenElement::get_accSelection(VARIANT* selection) {
    if (selection == nullptr)
        return E_POINTER;
    VariantInit(selection);
    return aboutSelf([&]() -> HRESULT {
        const auto& list = spoken_->list;
        const LONG first = element_.kind == Kind::list ? list.nextSelected(0) : 0;
        if (first == 0)
            return S_FALSE;
        LONG row = list.nextSelected(first);
        if (row == 0)
            return give(accessibility::rowElement(first), selection);
        std::vector<VARIANT> rows{numberVARIANT(first)};
        for (; row != 0; row = list.nextSelected(row))
            rows.push_back(numberVARIANT(row));
        selection->punkVal = new EnumOfVARIANT(std::move(rows));
        selection->vt = VT_UNKNOWN;
        return S_OK;
    });
}

HRESULT SpokenElement::accSelect(LONG flags, VARIANT id) {
    constexpr LONG known =
        SELFLAG_TAKEFOCUS | SELFLAG_TAKESELECTION | SELFLAG_ADDSELECTION | SELFLAG_REMOVESELECTION;
    return about(id, [&](const Element& element) {
        const LONG selecting = flags & ~SELFLAG_TAKEFOCUS;
        // One way of selecting at a time, and no ranges.
        if ((flags & ~known) != 0 || (selecting & (selecting - 1)) != 0)
            return E_INVALIDARG;
        auto& list = spoken_->list;
        bool done = true;
        if (selecting == SELFLAG_TAKESELECTION)
            done = list.selectOnly(element);
        else if (selecting == SELFLAG_ADDSELECTION)
            done = list.select(element, true);
        else if (selecting == SELFLAG_REMOVESELECTION)
            done = list.select(element, false);
        if (done && (flags & SELFLAG_TAKEFOCUS) != 0)
            done = list.takeFocus(element);
        return done ? S_OK : DISP_E_MEMBERNOTFOUND;
    });
}

HRESULT SpokenElement::accLocation(LONG* left, LONG* top, LONG* width, LONG* height, VARIANT id) {
    if (left == nullptr || top == nullptr || width == nullptr || height == nullptr)
        return E_POINTER;
    *left = *top = *width = *height = 0;
    return about(id, [&](const Element& element) {
        const std::optional<Rect> place = spoken_->place(element);
        if (!place)
            return S_FALSE;
        *left = place->Left;
        *top = place->Top;
        *width = place->Right - place->Left;
        *height = place->Bottom - place->Top;
        return S_OK;
    });
}

HRESULT SpokenElement::accNavigate(LONG direction, VARIANT start, VARIANT* end) {
    if (end == nullptr)
        return E_POINTER;
    VariantInit(end);
    return about(start, [&](const Element& element) {
        const auto way = directionOf(direction);
        return way ? give(spoken_->list.navigate(element, *way), end) : E_INVALIDARG;
    });
}

HRESULT SpokenElement::accHitTest(LONG x, LONG y, VARIANT* hit) {
    if (hit == nullptr)
        return E_POINTER;
    VariantInit(hit);
    return aboutSelf([&]() -> HRESULT {
        const auto& list = spoken_->list;
        const Element found = spoken_->at(x, y);
        if (found == element_) {
            *hit = numberVARIANT(CHILDID_SELF);
            return S_OK;
        }
        for (Element above = found; above.kind != Kind::nothing; above = list.parent(above))
            if (above == element_)
                return give(found, hit);
        return S_FALSE;
    });
}

HRESULT SpokenElement::accDoDefaultAction(VARIANT id) {
    return about(id, [&](const Element& element) {
        return spoken_->list.act(element) ? S_OK : DISP_E_MEMBERNOTFOUND;
    });
}

HRESULT SpokenElement::put_accValue(VARIANT id, BSTR value) {
    return about(id, [&](const Element& element) {
        return spoken_->list.setValue(element, viewBSTR(value)) ? S_OK : DISP_E_MEMBERNOTFOUND;
    });
}

HRESULT SpokenElement::Next(ULONG count, VARIANT* to, ULONG* fetched) {
    if (fetched != nullptr)
        *fetched = 0;
    if (to == nullptr || (fetched == nullptr && count != 1))
        return E_POINTER;
    return aboutSelf([&] {
        ULONG given = 0;
        const LONG children = spoken_->list.childCount(element_);
        for (; given < count && next_ <= children; ++given, ++next_) {
            VariantInit(&to[given]);
            give(spoken_->list.child(element_, next_), &to[given]);
        }
        if (fetched != nullptr)
            *fetched = given;
        return given == count ? S_OK : S_FALSE;
    });
}

HRESULT SpokenElement::Skip(ULONG count) {
    return aboutSelf([&] {
        const LONG left = std::max(spoken_->list.childCount(element_) - next_ + 1, LONG{0});
        const bool enough = count <= static_cast<ULONG>(left);
        next_ += enough ? static_cast<LONG>(count) : left;
        return enough ? S_OK : S_FALSE;
    });
}

HRESULT SpokenElement::Reset() {
    next_ = 1;
    return S_OK;
}

HRESULT SpokenElement::Clone(IEnumVARIANT** copy) {
    if (copy == nullptr)
        return E_POINTER;
    *copy = nullptr;
    return aboutSelf([&] {
        *copy = new SpokenElement(spoken_, element_, next_);
        return S_OK;
    });
}

} // namespace lumtex::win32
