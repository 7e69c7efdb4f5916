/// \file
/// Helper calls for host programs: small file chores, sound, the active theme, the mouse.
#pragma once

#include "guards/procedure.h"
#include "platform/runtime.h"
#include "values/references/object.h"

namespace lumtex {

/// Which look the user's desktop has.
enum cActiveXPTheme : Long { styleBlue = 1, styleSilver = 2, styleOlive = 3, styleClassic = 4 };

/// Which mouse button is down. `MouseButtonPressed` never returns `mouseMiddle`.
enum cMouseButton : Long { mouseNone = 0, mouseLeft = 1, mouseRight = 2, mouseMiddle = 3 };

/// A public class without state; the runtime must outlive it.
///
/// `List` is any object with `ListCount`, `List(index)` and `AddItem(text)`, as a list box has them. Files
/// are text in the platform's encoding.
class SpEv {
  public:
    explicit SpEv(Runtime& runtime) : runtime_(runtime) {}

    /// The whole file; empty if it cannot be read.
    String TextRead(StringView Filename);
    /// Replaces the file by exactly `Text`.
    void TextSave(StringView Filename, StringView Text);

    /// Starts a sound file and returns at once; silent if it cannot be played.
    void PlayMusic(StringView Filename);

    /// Replaces the file by one line for each entry, ended by CR LF.
    void ListSave(const ObjectRef& List,
                  StringView Filename,
                  StringView TextBeforeListText = {},
                  StringView TextAfterListText = {});
    /// Adds the lines of a file to what the list holds. A line ends at CR LF, CR or LF.
    void ListRead(const ObjectRef& List, StringView Filename);

    /// See the free function.
    bool FileExists(StringView sFile);

    cActiveXPTheme ActiveXPTheme();
    /// 1 left, 2 right, 4 middle, in this order if several are down; 0 for none. A button also counts that
    /// went down and up again since the last call.
    cMouseButton MouseButtonPressed();

  private:
    Procedure procedure(StringView name) const;
    bool IsWinXP() const;
    cActiveXPTheme activeTheme() const;

    Runtime& runtime_;
};

} // namespace lumtex
