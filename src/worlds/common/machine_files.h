/// \file
/// The files of the machine, for worlds that reach them through the standard library.
#pragma once

#include "platform/files.h"

#include <memory>

namespace lumtex::worlds {

/// Texts are UTF-8 with line ends as given, and names differ by case if the machine's do.
class MachineFiles : public Files {
  public:
    String readFile(StringView path) const override;
    void createFile(StringView path) override;
    void appendToFile(StringView path, StringView text) override;
    /// Writes a hidden file beside `path` and renames it at the end.
    std::unique_ptr<OutputFile> openForBinaryWriting(StringView path) override;
    std::unique_ptr<InputFile> openForBinaryReading(StringView path) override;
    void deleteFile(StringView path) override;
    Long findFirstFile(StringView pattern) override;
    /// A search keeps nothing, so there is nothing to close.
    void findClose(Long /*handle*/) override {}
    String fullPathName(StringView file) const override;

  private:
    Long lastSearch_ = 0;
};

} // namespace lumtex::worlds
