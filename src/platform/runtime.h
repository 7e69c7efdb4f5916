/// \file
/// What the control asks of the system around it, apart from windows and drawing.
#pragma once

#include "platform/object.h"
#include "platform/types.h"
#include "platform/variant.h"

#include <optional>

namespace lumtex {

/// The component as its application object describes it.
struct ComponentInfo {
    String exeName; ///< file name without path and extension
    String folder;  ///< where the component's file lies, without a closing separator
    Long major = 0;
    Long minor = 0;
    Long revision = 0;
};

enum MessageBoxStyle : Long {
    boxPlain = 0,
    boxCritical = 16,
};

/// One object per world, replaceable in tests. Lives longer than every control of its world.
class Runtime {
  public:
    Runtime() = default;
    Runtime(const Runtime&) = delete;
    Runtime& operator=(const Runtime&) = delete;
    virtual ~Runtime() = default;

    /// Lets the host's message loop run until its queue is empty; events, timers and paints may come in here.
    virtual void DoEvents() = 0;

    /// Shows a box with the button OK and returns once it was dismissed. Events may come in meanwhile.
    virtual void messageBox(StringView text, Long style, StringView title) = 0;

    virtual const ComponentInfo& component() const = 0;
    /// The full path of the program that the process runs; empty where it cannot be told.
    virtual String currentExePath() const = 0;

    /// The current user's settings: the text stored under `name` in `key`, empty where there is none.
    /// `key` separates its parts with "\".
    virtual String setting(StringView key, StringView name) const = 0;

    /// Today's date and the time of the day.
    virtual Date now() const = 0;
    /// Date and time in the user's default short forms.
    virtual String dateText(Date date) const = 0;
    virtual String timeText(Date date) const = 0;

    /// Text to number and to date under the user's settings; none where it is neither.
    virtual std::optional<Double> numberFromText(StringView text) const = 0;
    virtual std::optional<Date> dateFromText(StringView text) const = 0;

    /// Appends UTF-16 `text` to a file in the platform's text encoding, creating the file. Throws
    /// RuntimeError 76 where the folder does not exist.
    virtual void appendToFile(StringView path, StringView text) = 0;

    /// Creates an automation object by its program identifier; throws RuntimeError 429 where there is none.
    virtual ObjectRef createObject(StringView programId) = 0;
    /// The component's application object, as handed to an error handler; may be none.
    virtual ObjectRef applicationObject() = 0;

    virtual Long twipsPerPixelX() const = 0;
    virtual Long twipsPerPixelY() const = 0;
};

} // namespace lumtex
