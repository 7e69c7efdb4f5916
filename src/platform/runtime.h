/// \file
/// What the control asks of the system around it, apart from windows and drawing.
#pragma once

#include "platform/automation.h"
#include "platform/event_queue.h"
#include "platform/files.h"
#include "platform/picture_images.h"
#include "platform/program.h"
#include "platform/settings.h"
#include "platform/system_locale.h"
#include "platform/user_desktop.h"

namespace lumtex {

/// One object per world. It and what it hands out live longer than every control of its world. Whoever needs
/// one part only takes that part.
class Runtime {
  public:
    Runtime() = default;
    Runtime(const Runtime&) = delete;
    Runtime& operator=(const Runtime&) = delete;
    virtual ~Runtime() = default;

    virtual EventQueue& queue() = 0;
    virtual Files& files() = 0;
    virtual Settings& settings() = 0;
    virtual SystemLocale& locale() = 0;
    virtual PictureImages& pictures() = 0;
    virtual Automation& automation() = 0;
    virtual UserDesktop& desktop() = 0;
    virtual Program& program() = 0;
};

} // namespace lumtex
