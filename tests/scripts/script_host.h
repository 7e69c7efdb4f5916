/// \file
/// A host of the system's script languages, as programs with macros have one.
#pragma once

#include "platform/object.h"
#include "platform/win32/com_ref.h"

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>

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
    void add(StringView name, ComRef<IDispatch> object);

    /// Runs what stands outside of functions. Throws ScriptFailure where that fails, and where a function
    /// failed that an object called meanwhile.
    void run(StringView source);

    /// What scripts define at their outermost level. A failure inside of its functions is a RuntimeError with
    /// SCRIPT_E_REPORTED for the caller; `failure` has the rest.
    ObjectRef object() const;
    ComRef<IDispatch> dispatch() const;

    /// The last failure since the last `run`; none where all went well.
    const std::optional<ScriptFailure>& failure() const;

  private:
    class Site;

    ComRef<IActiveScript> script_;
    ComRef<IActiveScriptParse> parse_;
    std::unique_ptr<Site> site_;
};

} // namespace lumtex::testing
