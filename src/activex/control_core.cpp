/// Birth, settings and size of a control.
#include "activex/control_core.h"

#include "activex/guid.h"
#include "platform/win32/com_error.h"

namespace lumtex {

namespace {

constexpr LONG himetricPerInch = 2540;

SIZE pixelsPerInch(HWND window) {
    const HDC screen = GetDC(window);
    const SIZE density{GetDeviceCaps(screen, LOGPIXELSX), GetDeviceCaps(screen, LOGPIXELSY)};
    ReleaseDC(window, screen);
    return density;
}

} // namespace

ControlCore::ControlCore(IUnknown& outer, IConnectionPointContainer& points)
    : outer_(outer), eventPoint_(points, guidOf("__lmListView")),
      notifyPoint_(points, IID_IPropertyNotifySink), events_(eventPoint_), world_(moduleInstance()),
      list_(std::make_unique<lmListView>(world_, host_, events_)) {
    host_.onPropertyChanged = [this](StringView name) { propertyChanged(name); };
    world_.onMessage = [this](const WindowMessage& message) { return seeMessage(message); };
    world_.ownRuntime().onQueued = [this](MSG& message) { return offerKey(message); };
    world_.ownRuntime().onModal = [this](bool open) { showModality(open); };
}

ControlCore::~ControlCore() {
    host_.onPropertyChanged = nullptr;
    world_.onMessage = nullptr;
    world_.ownRuntime().onQueued = nullptr;
    world_.ownRuntime().onModal = nullptr;
    events_.freeze(true);
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
    dirty_ = false;
    return true;
}

bool ControlCore::load(const PropertyBag& bag) {
    if (std::exchange(initialised_, true))
        return false;
    list_->UserControl_ReadProperties(bag);
    dirty_ = false;
    return true;
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
    const Window& window = list_->window();
    return {static_cast<LONG>(window.Width()), static_cast<LONG>(window.Height())};
}

SIZEL ControlCore::extent() {
    const SIZE pixels = size();
    const SIZE density = pixelsPerInch(window());
    return {MulDiv(pixels.cx, himetricPerInch, density.cx), MulDiv(pixels.cy, himetricPerInch, density.cy)};
}

void ControlCore::letExtent(SIZEL extent) {
    const SIZE density = pixelsPerInch(window());
    const Window& place = list().window();
    list().window().place(place.Left(),
                          place.Top(),
                          static_cast<Single>(MulDiv(extent.cx, density.cx, himetricPerInch)),
                          static_cast<Single>(MulDiv(extent.cy, density.cy, himetricPerInch)));
    viewChanged();
}

void ControlCore::propertyChanged(StringView name) {
    dirty_ = true;
    const Member* const member = findMember(listViewClass(), name);
    const DISPID number = member != nullptr ? member->number : DISPID_UNKNOWN;
    for (const ComRef<IUnknown>& sink : notifyPoint_.sinks())
        if (const auto notify = sink.as<IPropertyNotifySink>())
            notify->OnChanged(number);
    viewChanged();
}

void ControlCore::viewChanged() {
    if (viewSink != nullptr && !inPlaceActive_)
        viewSink->OnViewChange(DVASPECT_CONTENT, -1);
}

} // namespace lumtex
