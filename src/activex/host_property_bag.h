/// \file
/// The bag of a container, as the control reads and writes it.
#pragma once

#include "platform/property_bag.h"
#include "worlds/win32/com_ref.h"

namespace lumtex::win32 {

/// Throws the RuntimeError of a value that cannot be used, or that the bag cannot convert, and of a bag that
/// refuses one.
class HostPropertyBag final : public PropertyBag {
  public:
    /// `everything`: values that equal their default are written too. Both must outlive this; `log` may be
    /// null.
    HostPropertyBag(IPropertyBag& bag, IErrorLog* log, bool everything = false)
        : bag_(bag), log_(log), everything_(everything) {}

    Variant ReadProperty(StringView name, const Variant& defaultValue) const override;
    void WriteProperty(StringView name, const Variant& value, const Variant& defaultValue) override;

  private:
    IPropertyBag& bag_;
    IErrorLog* log_;
    bool everything_;
};

} // namespace lumtex::win32
