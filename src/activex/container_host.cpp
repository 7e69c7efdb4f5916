/// Ambient properties and the extender.
#include "activex/container_host.h"

#include "platform/runtime_error.h"
#include "platform/win32/object_bridge.h"

namespace lumtex {

void ContainerHost::setSite(IOleClientSite* site) {
    site_ = ComRef<IOleClientSite>(site);
    ambientChanged(DISPID_UNKNOWN);
}

void ContainerHost::ambientChanged(DISPID ambient) {
    const bool any = ambient == DISPID_UNKNOWN;
    if (any || ambient == DISPID_AMBIENT_USERMODE)
        readUserMode();
    if (any || ambient == DISPID_AMBIENT_DISPLAYNAME)
        readName();
    if (any || ambient == DISPID_AMBIENT_FONT)
        readFont();
}

void ContainerHost::PropertyChanged(StringView name) {
    if (onPropertyChanged)
        onPropertyChanged(name);
}

/// Empty where the container does not know.
Variant ContainerHost::ambient(DISPID number) const {
    const auto dispatch = site_.as<IDispatch>();
    if (!dispatch)
        return {};
    DISPPARAMS none{};
    OwnedVARIANT value;
    if (FAILED(dispatch->Invoke(number,
                                IID_NULL,
                                LOCALE_USER_DEFAULT,
                                DISPATCH_PROPERTYGET,
                                &none,
                                value.out(),
                                nullptr,
                                nullptr)))
        return {};
    try {
        return fromVARIANT(value.get());
    } catch (const RuntimeError&) {
        return {};
    }
}

void ContainerHost::readUserMode() {
    const Variant mode = ambient(DISPID_AMBIENT_USERMODE);
    userMode_ = mode.isEmpty() || !mode.isNumeric() || mode.toBoolean();
}

/// The name that the host's own object around the control answers; empty where there is none.
String ContainerHost::nameByExtender() const {
    const auto controlSite = site_.as<IOleControlSite>();
    ComRef<IDispatch> extender;
    if (!controlSite || FAILED(controlSite->GetExtendedControl(extender.out())) || !extender)
        return {};
    try {
        return objectFrom(extender.get())->get(u"Name").toText();
    } catch (const RuntimeError&) {
        return {};
    }
}

void ContainerHost::readName() {
    name_ = nameByExtender();
    const Variant displayName = name_.empty() ? ambient(DISPID_AMBIENT_DISPLAYNAME) : Variant();
    if (displayName.isString())
        name_ = displayName.toText();
    if (name_.empty())
        name_ = u"lmListView1";
}

void ContainerHost::readFont() {
    const Variant font = ambient(DISPID_AMBIENT_FONT);
    const FontRef* const held = font.as<FontRef>();
    font_ = held != nullptr ? *held : nullptr;
}

} // namespace lumtex
