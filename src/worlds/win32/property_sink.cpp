#include "worlds/win32/property_sink.h"

#include <utility>

namespace lumtex::win32 {

namespace {

ComRef<IConnectionPoint> pointOf(IUnknown* source) {
    const ComRef<IConnectionPointContainer> container = queryFor<IConnectionPointContainer>(source);
    ComRef<IConnectionPoint> point;
    if (container && FAILED(container->FindConnectionPoint(IID_IPropertyNotifySink, point.out())))
        return {};
    return point;
}

} // namespace

PropertySink::PropertySink(std::function<void(DISPID)> onChanged, std::function<void()> onGone)
    : onChanged_(std::move(onChanged)), onGone_(std::move(onGone)) {}

PropertySink::~PropertySink() {
    if (onGone_)
        onGone_();
}

ComRef<PropertySink> PropertySink::make(std::function<void(DISPID)> onChanged, std::function<void()> onGone) {
    return ComRef<PropertySink>::adopting(new PropertySink(std::move(onChanged), std::move(onGone)));
}

void PropertySink::silence() {
    onChanged_ = {};
    onGone_ = {};
}

bool PropertySink::listenTo(IUnknown* source, DWORD& cookie) {
    const ComRef<IConnectionPoint> point = pointOf(source);
    return point && SUCCEEDED(point->Advise(this, &cookie));
}

void PropertySink::stopListening(IUnknown* source, DWORD cookie) {
    if (const ComRef<IConnectionPoint> point = pointOf(source))
        point->Unadvise(cookie);
}

STDMETHODIMP PropertySink::OnChanged(DISPID property) {
    if (onChanged_)
        onChanged_(property);
    return S_OK;
}

STDMETHODIMP PropertySink::OnRequestEdit(DISPID /*property*/) {
    return S_OK;
}

} // namespace lumtex::win32
