/// \file
/// The object that scripts know as WScript.
#pragma once

#include "scripts/script_events.h"
#include "scripts/script_host.h"

#include <memory>
#include <vector>

namespace lumtex::testing {

/// Notes what a script prints, and connects events.
class ScriptConsole final : public Object {
  public:
    /// `host` must outlive this.
    ScriptConsole(const ScriptHost& host, String scriptPath, std::vector<String> arguments);
    ~ScriptConsole() override;

    /// `ScriptFullName`, and `Arguments`: the one that stands in brackets, counted from 0, or the collection.
    Variant get(StringView name, std::span<Variant> arguments) override;
    void put(StringView name, const Variant& value) override;
    /// `Echo` prints its arguments with a blank between them. `Quit` keeps its argument as the status and
    /// fails, which ends the script unless that ignores failures. `ConnectObject` takes a control and the
    /// start of the names of its functions.
    Variant call(StringView name, std::span<Variant> arguments) override;

    /// No function of the script is called from now on.
    void disconnect() { connections_.clear(); }

    /// One line for each `Echo`, each with its end.
    std::string output;
    std::optional<int> status; ///< what the script gave to `Quit`

  private:
    const ScriptHost& host_;
    String scriptPath_;
    ObjectRef arguments_;
    std::vector<std::unique_ptr<ScriptEvents>> connections_;
};

} // namespace lumtex::testing
