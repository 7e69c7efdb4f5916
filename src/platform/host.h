/// \file
/// The container that holds one control: its ambient properties and its dirty mark.
#pragma once

#include "values/references/font.h"
#include "values/types.h"

namespace lumtex {

/// Lives longer than the control it holds.
class Host {
  public:
    Host() = default;
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;
    virtual ~Host() = default;

    /// True in a running program, False in a designer.
    virtual bool UserMode() const { return true; }
    /// The name that the host gave the control.
    virtual String extenderName() const { return u"lmListView1"; }
    /// The font of the container; null for a container without one.
    virtual FontRef parentFont() const { return nullptr; }
    /// A property changed; the host may mark its document as dirty.
    virtual void PropertyChanged(StringView /*name*/) {}
};

} // namespace lumtex
