/// \file
/// The files of the machine, for worlds that reach them through the standard library.
#pragma once

#include "platform/runtime.h"

#include <memory>

namespace lumtex {

/// The part of a runtime that deals with files: texts are UTF-8 with line ends as given, "\" in a path
/// separates folders, and names differ by case where the machine's do.
class MachineFiles : public Runtime {
  public:
    String readFile(StringView path) const override;
    void createFile(StringView path) override;
    void appendToFile(StringView path, StringView text) override;
    /// Writes a hidden file beside `path` and renames it at the end.
    std::unique_ptr<OutputFile> openForBinaryWriting(StringView path) override;
    std::unique_ptr<InputFile> openForBinaryReading(StringView path) override;
    void deleteFile(StringView path) override;
    String fullPathName(StringView file) const override;
    Long findFirstFile(StringView pattern) override;

  private:
    Long lastSearch_ = 0;
};

} // namespace lumtex
