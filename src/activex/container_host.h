/// \file
/// The container of the control, as the control asks it.
#pragma once

#include "platform/host.h"
#include "worlds/win32/com_ref.h"
#include "worlds/win32/variant_bridge.h"

#include <functional>

namespace lumtex::win32 {

/// Reads mode and name from the client site once, and again when the site reports a change. Without a site,
/// or if the site does not know, the control runs, has the name of its class with a 1, and no font of its
/// container.
class ContainerHost final : public Host {
  public:
    /// Null to let the container go.
    void setSite(IOleClientSite* site);
    IOleClientSite* site() const { return site_.get(); }
    /// `ambient` is the number of one property, or DISPID_UNKNOWN for any.
    void ambientChanged(DISPID ambient);

    bool UserMode() const override { return userMode_; }
    String extenderName() const override { return name_; }
    /// Of the container that the host's own object around the control names; else the ambient one.
    FontRef parentFont() const override;
    void PropertyChanged(StringView name) override;

    /// Hears of each changed property.
    std::function<void(StringView name)> onPropertyChanged;

  private:
    Variant ambient(DISPID number) const;
    /// The host's own object around the control; null if there is none.
    ObjectRef extender() const;
    String nameByExtender() const;
    void readUserMode();
    void readName();

    ComRef<IOleClientSite> site_;
    bool userMode_ = true;
    String name_ = u"lmListView1";
};

} // namespace lumtex::win32
