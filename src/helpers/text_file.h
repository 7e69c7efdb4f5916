/// \file
/// A sequential file of text, used one statement after another.
#pragma once

#include "platform/files.h"

namespace lumtex {

/// Each operation but `close` throws RuntimeError 52 while the file is not open, so that the statements after
/// a failed open fail in their turn. Reading sees the file as it was when it was opened; what was printed is
/// in the file at the latest after `close`.
class TextFile {
  public:
    explicit TextFile(Files& files) : files_(files) {}

    /// Throws as `Files::readFile`.
    void openForInput(StringView path);
    /// Empties the file. Throws as `Files::createFile`.
    void openForOutput(StringView path);
    /// Does nothing if the file is not open. Throws as `Files::appendToFile`.
    void close();

    /// All that has not been read yet.
    String readAll();
    bool atEnd() const;
    /// Up to the next CR LF, CR or LF, which is skipped, or to the end.
    String lineInput();
    /// Adds no line end.
    void print(StringView text);

  private:
    void demandOpen() const;
    void writeOut();

    Files& files_;
    bool open_ = false;
    String path_;
    String content_;        ///< what was read from the file, or waits to be written
    std::size_t place_ = 0; ///< in what was read
};

} // namespace lumtex
