/// \file
/// The error path that every procedure of the system carries.
#pragma once

#include "services/bas_error.h"
#include "services/failure_of.h"

#include <exception>

namespace lumtex {

/// Stands at the top of a procedure and knows its name. A failing statement is reported, unless the silent
/// flag is set, and the procedure goes on with the next one; nothing reaches the caller. A procedure called
/// from a statement has a guard of its own, so what fails in there is reported under its name and is over.
///
/// Costs nothing while nothing fails. The runtime and the names must outlive the guard.
class Procedure {
  public:
    Procedure(Runtime& runtime, StringView name, ModuleKind moduleKind, StringView moduleName)
        : runtime_(runtime), name_(name), moduleName_(moduleName), moduleKind_(moduleKind) {}
    Procedure(const Procedure&) = delete;
    Procedure& operator=(const Procedure&) = delete;

    /// Runs one statement; says whether it succeeded. Running out of memory is the failure 7.
    template <class Statement>
    bool step(Statement&& statement) {
        try {
            statement();
            return true;
        } catch (const std::exception& caught) {
            reportCaught(caught);
            return false;
        }
    }

    /// The value of an expression, or its type's zero where it failed.
    template <class T, class Expression>
    T value(Expression&& expression) {
        try {
            return expression();
        } catch (const std::exception& caught) {
            reportCaught(caught);
            return T{};
        }
    }

    /// The outcome of a condition; a failed one takes the branch that `whenFailed` names.
    template <class Condition>
    bool condition(Condition&& test, bool whenFailed) {
        try {
            return test();
        } catch (const std::exception& caught) {
            reportCaught(caught);
            return whenFailed;
        }
    }

    /// The common handler: reports `error` under this procedure's name unless the silent flag is set. For
    /// procedures that handle a failure in their own way first.
    void report(const RuntimeError& error) noexcept;

  private:
    void reportCaught(const std::exception& caught);

    Runtime& runtime_;
    StringView name_;
    StringView moduleName_;
    ModuleKind moduleKind_;
};

} // namespace lumtex
