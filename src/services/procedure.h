/// \file
/// The error path that every procedure of the system carries.
#pragma once

#include "services/bas_error.h"
#include "services/failure_of.h"

#include <utility>

namespace lumtex {

/// Stands at the top of a procedure and knows its name. A failing statement is reported, unless the silent
/// flag is set, and the procedure goes on with the next one; nothing reaches the caller.
///
/// Costs nothing while nothing fails. The names must outlive the guard.
class Procedure {
  public:
    Procedure(Runtime& runtime, StringView name, ModuleKind moduleKind, StringView moduleName)
        : runtime_(runtime), name_(name), moduleName_(moduleName), moduleKind_(moduleKind) {}
    Procedure(const Procedure&) = delete;
    Procedure& operator=(const Procedure&) = delete;

    /// Runs one statement; says whether it succeeded.
    template <class Statement>
    bool step(Statement&& statement) {
        try {
            statement();
            return true;
        } catch (const RuntimeError& error) {
            report(error);
        } catch (const std::bad_alloc&) {
            report(RuntimeError(outOfMemory));
        } catch (const std::length_error&) {
            report(RuntimeError(outOfMemory));
        }
        return false;
    }

    /// The value of an expression, or its type's zero where it failed.
    template <class T, class Expression>
    T value(Expression&& expression) {
        T result{};
        step([&] { result = expression(); });
        return result;
    }

    /// The outcome of a condition; a failed one takes the branch that `whenFailed` names.
    template <class Condition>
    bool condition(Condition&& test, bool whenFailed) {
        bool result = whenFailed;
        step([&] { result = test(); });
        return result;
    }

    /// The common handler: reports `error` under this procedure's name unless the silent flag is set.
    void report(const RuntimeError& error) noexcept;

  private:
    Runtime& runtime_;
    StringView name_;
    StringView moduleName_;
    ModuleKind moduleKind_;
};

} // namespace lumtex
