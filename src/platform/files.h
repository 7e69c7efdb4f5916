/// \file
/// The files of the machine: texts, bytes, and the search for them.
#pragma once

#include "platform/binary_file.h"
#include "values/types.h"

#include <memory>

namespace lumtex {

/// Paths separate folders with "\". Every function that opens, changes or deletes a file throws
/// RuntimeError 76 if the folder does not exist, and 75 if the file cannot be opened for another reason.
class Files {
  public:
    Files() = default;
    Files(const Files&) = delete;
    Files& operator=(const Files&) = delete;
    virtual ~Files() = default;

    // Files of text in the platform's encoding.

    /// The whole file. Throws 53 if there is none.
    virtual String readFile(StringView path) const = 0;
    /// Creates a file without content, or empties the one that is there.
    virtual void createFile(StringView path) = 0;
    /// Creates the file if need be. Throws 57 for text that could not be written.
    virtual void appendToFile(StringView path, StringView text) = 0;

    // Files of bytes. Only plain files are read, written or deleted: a folder, a device and the like fail
    // with 75.

    /// The file stands under its name after `OutputFile::close`; before that it should not, so that nobody
    /// reads half of it. A file that has the name then is replaced.
    virtual std::unique_ptr<OutputFile> openForBinaryWriting(StringView path) = 0;
    /// Throws 53 if there is no file.
    virtual std::unique_ptr<InputFile> openForBinaryReading(StringView path) = 0;
    /// `path` is a name, not a pattern. Throws 53 if there is no file.
    virtual void deleteFile(StringView path) = 0;

    /// Looks for a file or folder; the last part of `pattern` may hold "*" and "?". Returns a handle that the
    /// caller closes if something was found, otherwise -1. Closing -1 does nothing.
    virtual Long findFirstFile(StringView pattern) = 0;
    virtual void findClose(Long handle) = 0;

    /// `file`, completed from the current folder if it has no full path of its own.
    virtual String fullPathName(StringView file) const = 0;
};

} // namespace lumtex
