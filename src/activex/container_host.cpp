/// Ambient properties and the extender.
#include "activex/container_host.h"

#include "values/runtime_error.h"
#include "worlds/win32/object_bridge.h"

namespace lumtex::win32 {

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

ObjectRef ContainerHost::extender() const {
    const auto controlSite = site_.as<IOleControlSite>();
    ComRef<IDispatch> object;
    if (!controlSite || FAILED(controlSite->GetExtendedControl(object.out())))
        return nullptr;
    return objectFrom(object.get());
}

/// Empty where nobody knows one.
String ContainerHost::nameByExtender() const {
    try {
        const ObjectRef around = extender();
        return around ? around->get(u"Name").toText() : String();
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

FontRef ContainerHost::parentFont() const {
    try {
        if (const ObjectRef around = extender()) {
            if (FontRef font = around->get(u"Parent").toObject()->get(u"Font").toFont())
                return font;
        }
    } catch (const RuntimeError&) {
        // Containers without such objects have an ambient font, or none.
    }
    const Variant font = ambient(DISPID_AMBIENT_FONT);
    const FontRef* const held = font.as<FontRef>();
    return held != nullptr ? *held : nullptr;
}

} // namespace lumtex::win32
