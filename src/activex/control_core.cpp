/// Birth, settings and size of a control.
#include "activex/control_core.h"

#include "activex/guid.h"
#include "activex/module.h"
#include "worlds/win32/com_error.h"
#include "worlds/win32/screen_density.h"

namespace lumtex::win32 {

namespace {

constexpr LONG himetricPerInch = 2540;

} // namespace

ControlCore::ControlCore(IUnknown& outer, IConnectionPointContainer& points)
    : outer_(outer), eventPoint_(points, *this, guidOf("__lmListView")),
      notifyPoint_(points, *this, IID_IPropertyNotifySink), events_(eventPoint_), world_(moduleInstance()),
      list_(std::make_unique<lmListView>(world_, host_, events_)) {
    host_.onPropertyChanged = [this](StringView name) { propertyChanged(name); };
    world_.onPresent = [this] { viewChanged(); };
    world_.onMessage = [this](const WindowMessage& message) { return seeMessage(message); };
    world_.ownRuntime().onQueued = [this](MSG& message) { return offerKey(message); };
    world_.ownRuntime().onModal = [this](bool open) { showModality(open); };
    world_.owner = &outer_;
    speaker_ = std::make_unique<ListSpeaker>(*list_, outer_);
}

ControlCore::~ControlCore() {
    world_.owner = nullptr;
    host_.onPropertyChanged = nullptr;
    world_.onPresent = nullptr;
    world_.onMessage = nullptr;
    world_.ownRuntime().onQueued = nullptr;
    world_.ownRuntime().onModal = nullptr;
    events_.freeze(true);
    speaker_.reset();
    list_.reset();
}

lmListView& ControlCore::list() {
    if (!initialised_)
        initNew();
    return *list_;
}

bool ControlCore::initNew() {
    if (std::exchange(initialised_, true))
        return false;
    list_->UserControl_InitProperties();
    finishInit();
    return true;
}

bool ControlCore::load(const PropertyBag& bag) {
    if (std::exchange(initialised_, true))
        return false;
    list_->UserControl_ReadProperties(bag);
    finishInit();
    return true;
}

void ControlCore::finishInit() {
    dirty_ = false;
    if (const auto extent = std::exchange(firstExtent_, std::nullopt))
        letExtent(*extent);
}

void ControlCore::setSite(IOleClientSite* site) {
    if (site != host_.site())
        deactivate();
    host_.setSite(site);
}

void ControlCore::ambientChanged(DISPID ambient) {
    const bool wasRunning = host_.UserMode();
    host_.ambientChanged(ambient);
    // A designer shows the name; and a list that starts to run shows something else than one in a designer.
    if (initialised_ && (!host_.UserMode() || !wasRunning))
        list_->Redraw();
}

void ControlCore::noteSaved() {
    dirty_ = false;
    if (adviseHolder_)
        adviseHolder_->SendOnSave();
}

IOleAdviseHolder* ControlCore::adviseHolder() {
    if (!adviseHolder_)
        demand(CreateOleAdviseHolder(adviseHolder_.out()));
    return adviseHolder_.get();
}

IDataAdviseHolder* ControlCore::dataAdviseHolder() {
    if (!dataAdviseHolder_)
        demand(CreateDataAdviseHolder(dataAdviseHolder_.out()));
    return dataAdviseHolder_.get();
}

SIZE ControlCore::size() {
    const Window& window = list().window();
    return {static_cast<LONG>(window.Width()), static_cast<LONG>(window.Height())};
}

SIZEL ControlCore::extent() {
    if (firstExtent_)
        return *firstExtent_;
    const PixelDensity density = screenDensity();
    const Window& place = list_->window();
    return {MulDiv(static_cast<int>(place.Width()), himetricPerInch, density.x),
            MulDiv(static_cast<int>(place.Height()), himetricPerInch, density.y)};
}

void ControlCore::letExtent(SIZEL extent) {
    if (!initialised_) {
        firstExtent_ = extent;
        return;
    }
    const PixelDensity density = screenDensity();
    Window& place = list_->window();
    place.place(place.Left(),
                place.Top(),
                static_cast<Single>(MulDiv(extent.cx, density.x, himetricPerInch)),
                static_cast<Single>(MulDiv(extent.cy, density.y, himetricPerInch)));
    viewChanged();
}

void ControlCore::propertyChanged(StringView name) {
    dirty_ = true;
    const automation::Member* const member = automation::findMember(automation::listViewClass(), name);
    const DISPID number = member != nullptr ? member->number : DISPID_UNKNOWN;
    for (const ComRef<IUnknown>& sink : notifyPoint_.sinks())
        if (const auto notify = sink.as<IPropertyNotifySink>())
            notify->OnChanged(number);
}

void ControlCore::viewChanged() {
    if (drawing_ || inPlaceActive_ || !initialised_)
        return;
    if (!onViewChange && !dataAdviseHolder_)
        return;
    const ComRef<IUnknown> alive(&outer_);
    if (onViewChange)
        onViewChange();
    if (dataAdviseHolder_) {
        const auto data = queryFor<IDataObject>(&outer_);
        dataAdviseHolder_->SendOnDataChange(data.get(), 0, 0);
    }
}

} // namespace lumtex::win32
