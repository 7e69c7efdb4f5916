/// \file
/// Objects that other programs and components offer.
#pragma once

#include "values/references/object.h"

namespace lumtex {

/// The way to automation objects.
class Automation {
  public:
    Automation() = default;
    Automation(const Automation&) = delete;
    Automation& operator=(const Automation&) = delete;
    virtual ~Automation() = default;

    /// Creates an object by its program identifier; throws RuntimeError 429 if there is none.
    virtual ObjectRef createObject(StringView programId) = 0;
    /// The component's application object, as handed to an error handler; may be null.
    virtual ObjectRef applicationObject() = 0;
};

} // namespace lumtex
