/// \file
/// The files of the system.
#pragma once

#include "platform/files.h"
#include "worlds/win32/windows_api.h"

#include <map>

namespace lumtex::win32 {

/// Files hold text in the code page of the system.
class Win32Files final : public Files {
  public:
    Win32Files() = default;
    /// Closes the searches that are left.
    ~Win32Files() override;

    String readFile(StringView path) const override;
    void createFile(StringView path) override;
    void appendToFile(StringView path, StringView text) override;
    /// Writes a hidden file beside `path` and renames it at the end.
    std::unique_ptr<OutputFile> openForBinaryWriting(StringView path) override;
    std::unique_ptr<InputFile> openForBinaryReading(StringView path) override;
    void deleteFile(StringView path) override;
    Long findFirstFile(StringView pattern) override;
    void findClose(Long handle) override;
    String fullPathName(StringView file) const override;

  private:
    std::map<Long, HANDLE> searches_; ///< those under way, by the number that stands for the handle
    Long lastSearch_ = 0;
};

} // namespace lumtex::win32
