/// \file
/// An open file.
#pragma once

#include "values/runtime_error.h"
#include "worlds/win32/windows_api.h"

namespace lumtex::win32 {

/// The classic number for a failed call on a name: 53, 76, or 75 for any other reason.
inline ErrorNumber fileErrorOf(DWORD failure) {
    switch (failure) {
    case ERROR_FILE_NOT_FOUND:
        return ErrorNumber::fileNotFound;
    case ERROR_PATH_NOT_FOUND:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
        return ErrorNumber::pathNotFound;
    default:
        return ErrorNumber::pathFileAccess;
    }
}

/// Owns a handle that CreateFile gave.
class FileHandle {
  public:
    /// Others may read and write the file meanwhile. Throws RuntimeError as `fileErrorOf` says.
    FileHandle(const String& path, DWORD access, DWORD disposition, DWORD flags = FILE_ATTRIBUTE_NORMAL)
        : handle_(CreateFileW(
              wide(path), access, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, disposition, flags, nullptr)) {
        if (handle_ == INVALID_HANDLE_VALUE)
            throw RuntimeError(fileErrorOf(GetLastError()));
    }
    FileHandle(const FileHandle&) = delete;
    FileHandle& operator=(const FileHandle&) = delete;
    ~FileHandle() { close(); }

    HANDLE get() const { return handle_; }
    void close() {
        if (handle_ != INVALID_HANDLE_VALUE)
            CloseHandle(handle_);
        handle_ = INVALID_HANDLE_VALUE;
    }

  private:
    HANDLE handle_;
};

} // namespace lumtex::win32
