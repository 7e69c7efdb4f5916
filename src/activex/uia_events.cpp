#include "activex/uia_events.h"

#include "activex/uia_element.h"

namespace lumtex::win32 {

using accessibility::Change;
using accessibility::ChangeKind;
using accessibility::Element;
using accessibility::Kind;
using accessibility::theList;

namespace {

/// Tells of the elements of one list.
class Events {
  public:
    explicit Events(const std::shared_ptr<SpokenList>& spoken) : spoken_(spoken) {}

    void happened(const Element& element, UiaEvent event) const {
        spoken_->uia->raiseEvent(uiaProvider(spoken_, element).get(), event);
    }
    /// What the property was before is not kept.
    void changed(const Element& element, PROPERTYID property) const {
        const OwnedVARIANT before;
        const OwnedVARIANT now = toVARIANT(uiaProperty(*spoken_, element, property));
        spoken_->uia->raisePropertyChange(
            uiaProvider(spoken_, element).get(), property, before.get(), now.get());
    }
    void restructured(StructureChange change) const {
        spoken_->uia->raiseStructureChange(uiaProvider(spoken_, theList).get(), change, nullptr, 0);
    }
    void came(const Element& element) const {
        auto id = uiaRuntimeId(element);
        spoken_->uia->raiseStructureChange(uiaProvider(spoken_, element).get(),
                                           StructureChange::childAdded,
                                           id.data(),
                                           static_cast<int>(id.size()));
    }
    /// It can be asked no more: its list tells.
    void went(const Element& element) const {
        auto id = uiaRuntimeId(element);
        spoken_->uia->raiseStructureChange(uiaProvider(spoken_, theList).get(),
                                           StructureChange::childRemoved,
                                           id.data(),
                                           static_cast<int>(id.size()));
    }

  private:
    std::shared_ptr<SpokenList> spoken_;
};

} // namespace

void raiseUiaEvents(const std::shared_ptr<SpokenList>& spoken, const Change& change) {
    if (spoken->uia == nullptr || spoken->uia->clientsAreListening() == FALSE)
        return;
    const Events events(spoken);
    const Element& element = change.element;
    switch (change.kind) {
    case ChangeKind::focus:
        return events.happened(element, UiaEvent::focusChanged);
    case ChangeKind::selected:
        return events.happened(element, UiaEvent::selected);
    case ChangeKind::selectionAdded:
        return events.happened(element, UiaEvent::addedToSelection);
    case ChangeKind::selectionRemoved:
        return events.happened(element, UiaEvent::removedFromSelection);
    case ChangeKind::selectionChanged:
        return events.happened(element, UiaEvent::selectionInvalidated);
    case ChangeKind::name:
        events.changed(element, UIA_NamePropertyId);
        if (element.kind == Kind::cell)
            events.changed(element, UIA_ValueValuePropertyId);
        return;
    case ChangeKind::value:
    case ChangeKind::scrolled:
        return events.changed(
            element, element.kind == Kind::editor ? UIA_ValueValuePropertyId : UIA_RangeValueValuePropertyId);
    case ChangeKind::state:
        return events.changed(element,
                              element.kind == Kind::checkBox ? UIA_ToggleToggleStatePropertyId
                                                             : UIA_IsEnabledPropertyId);
    case ChangeKind::rowsAdded:
        return events.restructured(StructureChange::manyAdded);
    case ChangeKind::rowsRemoved:
        return events.restructured(StructureChange::manyRemoved);
    case ChangeKind::columnsChanged:
    case ChangeKind::contents:
        return events.restructured(StructureChange::invalidated);
    case ChangeKind::sorted:
        events.restructured(StructureChange::reordered);
        if (element.kind == Kind::header)
            events.changed(element, UIA_ItemStatusPropertyId);
        return;
    case ChangeKind::shown:
        return events.came(element);
    case ChangeKind::hidden:
        return events.went(element);
    }
}

} // namespace lumtex::win32
