/// \file
/// The component, and the program whose process it runs in.
#pragma once

#include "values/types.h"

#include <optional>
#include <vector>

namespace lumtex {

/// The component as its application object describes it.
struct ComponentInfo {
    String exeName; ///< file name without path and extension
    String folder;  ///< where the component's file lies, without a closing separator
    Long major = 0;
    Long minor = 0;
    Long revision = 0;
};

/// A running process, as a listing of all processes names it.
struct ProcessEntry {
    Long id = 0;
    String fileName; ///< of its program, with or without a path; ends at the first zero
};

/// Who is running.
class Program {
  public:
    Program() = default;
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;
    virtual ~Program() = default;

    virtual const ComponentInfo& component() const = 0;
    virtual Long currentProcessId() const = 0;
    /// All processes, or as many as the world knows, its own among them; empty if they cannot be listed.
    virtual std::optional<std::vector<ProcessEntry>> processes() const = 0;
};

} // namespace lumtex
