/// \file
/// Files of bytes, read and written from the start to the end.
#pragma once

#include "values/types.h"

#include <cstddef>
#include <span>

namespace lumtex {

/// A file that is being written. Gone without `close`, it leaves nothing behind.
class OutputFile {
  public:
    OutputFile() = default;
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;
    virtual ~OutputFile() = default;

    /// Appends `bytes`. Throws RuntimeError 61 if the disk is full, 57 for any other reason; an unknown
    /// part of the bytes is in the file then. Not buffered: callers hand over large pieces.
    virtual void write(std::span<const Byte> bytes) = 0;
    /// Called at most once, as the last call. From here on the file stands under its name with all that
    /// was written, even if a `write` failed. Throws as `write`, or 75 if the name cannot be given.
    virtual void close() = 0;
};

/// A file that is being read. Closes itself.
class InputFile {
  public:
    InputFile() = default;
    InputFile(const InputFile&) = delete;
    InputFile& operator=(const InputFile&) = delete;
    virtual ~InputFile() = default;

    /// Bytes, as the file was when it was opened.
    virtual std::int64_t size() const = 0;
    /// Reads the next bytes into `target` and says how many these were: less than asked for only at the end
    /// of the file. Throws RuntimeError 57 for a failure. Not buffered.
    virtual std::size_t read(std::span<Byte> target) = 0;
};

} // namespace lumtex
