/// \file
/// The switch that silences all reports of the process.
#pragma once

namespace lumtex {

/// Whether reports are silenced, and whether an `Error` object has set this up yet.
struct SilentFlag {
    bool silent = false;
    bool initialised = false;
};

/// The one that all controls of the process share.
SilentFlag& processSilentFlag();

/// While True, a failing statement is skipped without any report.
bool silentError();

/// The public class by which hosts reach the flag. The first object sets it to False, later ones leave it
/// alone.
class Error {
  public:
    explicit Error(SilentFlag& flag = processSilentFlag());

    bool SilentError() const { return flag_.silent; }
    void letSilentError(bool silent) { flag_.silent = silent; }

  private:
    void Class_Initialize();

    SilentFlag& flag_;
};

} // namespace lumtex
