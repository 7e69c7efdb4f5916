/// \file
/// A host of the system's script languages, as programs with macros have one.
#pragma once

#include "values/references/object.h"
#include "worlds/win32/com_ref.h"

#include <functional>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include <activscp.h>

namespace lumtex::testing {

enum class ScriptLanguage : Byte { vbScript, jScript };

/// Why a script ended before its end, and where. Lines and columns count from 1.
struct ScriptFailure : std::runtime_error {
    /// `what` reads "line 3, column 5: no luck".
    ScriptFailure(Long errorNumber, int atLine, int atColumn, const String& told);

    Long number;
    int line;
    int column;
    String text;
};

/// Runs scripts in one global namespace, on the thread that made it.
class ScriptHost {
  public:
    /// Throws RuntimeError where the language is missing.
    explicit ScriptHost(ScriptLanguage language);
    ScriptHost(const ScriptHost&) = delete;
    ScriptHost& operator=(const ScriptHost&) = delete;
    ~ScriptHost();

    /// Scripts know the object under this name from now on.
    void add(StringView name, const ObjectRef& object);
    void add(StringView name, win32::ComRef<IDispatch> object);

    /// Runs what stands outside of functions. Throws ScriptFailure where that fails.
    void run(StringView source);

    /// What scripts define at their outermost level. A failure inside of its functions is a RuntimeError with
    /// SCRIPT_E_REPORTED for the caller; `failures` has the rest.
    ObjectRef object() const;
    win32::ComRef<IDispatch> dispatch() const;

    /// Every failure since the last `run`: the one that ended it, and those of functions that objects called,
    /// which may have gone on.
    const std::vector<ScriptFailure>& failures() const;

  private:
    class Site;

    win32::ComRef<IActiveScript> script_;
    win32::ComRef<IActiveScriptParse> parse_;
    std::unique_ptr<Site> site_;
};

} // namespace lumtex::testing
