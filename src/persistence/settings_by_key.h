/// \file
/// The properties of a list by their keys in the bag.
#pragma once

#include "model/list_view.h"

namespace lumtex {

/// For programs that show or keep each of them, those included that are no members. A key that the bag does
/// not have reads as Empty; assigning and resetting it does nothing.
class SettingsByKey {
  public:
    /// `list` must outlive it.
    explicit SettingsByKey(lmListView& list) : list_(list) {}

    Variant value(StringView key) const;
    /// Assigns as the member does. Throws what the conversion of `value` throws.
    void let(StringView key, const Variant& value);
    /// Assigns what the property is in a new list.
    void reset(StringView key);

  private:
    lmListView& list_;
};

} // namespace lumtex
