/// \file
/// The error path that every procedure of the system carries.
#pragma once

#include "guards/bas_error.h"
#include "guards/control_life.h"
#include "guards/failure_of.h"
#include "guards/release_bin.h"

#include <exception>

namespace lumtex {

/// Stands at the top of a procedure, until its end, and knows its name. A failing statement is reported,
/// unless the silent flag is set, and the procedure goes on with the next one; nothing reaches the caller. A
/// procedure called from a statement has a guard of its own, so what fails in there is reported under its
/// name and is over.
///
/// As long as it stands, the control that it belongs to stays in memory, and objects of the host that the
/// list drops wait (see ReleaseBin). They go as it ends: nothing of the procedure runs after that. It is
/// therefore the first local of its procedure, and no temporary.
///
/// Costs next to nothing while nothing fails. The runtime and the names must outlive the guard.
class [[nodiscard]] Procedure {
  public:
    /// `life` belongs to the control whose procedure this is; null for one that no host code can end.
    Procedure(Runtime& runtime,
              StringView name,
              ModuleKind moduleKind,
              StringView moduleName,
              ControlLife* life = nullptr)
        : runtime_(runtime), name_(name), moduleName_(moduleName), life_(life), bin_(ReleaseBin::ofThread()),
          binMark_(bin_.enter()), moduleKind_(moduleKind) {
        if (life_ != nullptr)
            life_->enter();
    }
    Procedure(const Procedure&) = delete;
    Procedure& operator=(const Procedure&) = delete;
    ~Procedure() {
        bin_.leave(binMark_);
        if (life_ != nullptr)
            life_->leave();
    }

    /// Runs one statement; says whether it succeeded. Running out of memory is the failure 7.
    template <class Statement>
    bool step(Statement&& statement) & {
        try {
            statement();
            return true;
        } catch (const std::exception& caught) {
            reportCaught(caught);
            return false;
        }
    }

    /// The value of an expression, or its type's zero if it failed.
    template <class T, class Expression>
    T value(Expression&& expression) & {
        try {
            return expression();
        } catch (const std::exception& caught) {
            reportCaught(caught);
            return T{};
        }
    }

    /// The outcome of a condition; a failed one takes the branch that `whenFailed` names.
    template <class Condition>
    bool condition(Condition&& test, bool whenFailed) & {
        try {
            return test();
        } catch (const std::exception& caught) {
            reportCaught(caught);
            return whenFailed;
        }
    }

    /// Raises an event. What a handler throws is reported as a failing statement is: a member that calls the
    /// host gives nothing of the host's on to its caller.
    template <class Event>
    void raise(Event&& event) & {
        if (life_ != nullptr)
            life_->hostComes();
        try {
            event();
        } catch (const std::exception& caught) {
            report(failureOfHandler(caught));
        } catch (...) {
            report(RuntimeError(ErrorNumber::automationError));
        }
    }

    /// The common handler: reports `error` under this procedure's name unless the silent flag is set, or the
    /// control has ended. For procedures that handle a failure in their own way first.
    void report(const RuntimeError& error) noexcept;

  private:
    void reportCaught(const std::exception& caught);

    Runtime& runtime_;
    StringView name_;
    StringView moduleName_;
    ControlLife* life_;
    ReleaseBin& bin_;
    std::size_t binMark_;
    ModuleKind moduleKind_;
};

} // namespace lumtex
