/// \file
/// A content file that is being read, one statement after another.
#pragma once

#include "content/content_bytes.h"
#include "platform/runtime.h"
#include "values/runtime_error.h"

#include <memory>
#include <vector>

namespace lumtex::content {

/// Each reading operation throws RuntimeError 52 while no file is open, 62 for more than the file still has,
/// and 57 if the file cannot be read. After the last two the reader stands at the file's end, so that
/// nothing is read from the middle of a lost piece; after the last each further operation fails as that did.
class ContentReader {
  public:
    explicit ContentReader(Runtime& runtime) : runtime_(runtime) {}

    /// Throws as `Files::openForBinaryReading`.
    void open(StringView path);
    void close();

    template <ContentNumber T>
    T get() {
        const T value = loadNumber<T>(next(sizeof(T)));
        place_ += sizeof(T);
        return value;
    }
    bool getBoolean() { return get<Integer>() != 0; }
    // Throw 5 for a negative length, and read nothing then.

    /// `length` characters of the ANSI code page.
    String getText(Long length);
    std::vector<Byte> getBytes(Long length);
    void skip(Long length);

    /// Bytes that have not been read yet.
    std::int64_t remaining() const { return behindBuffer_ + static_cast<std::int64_t>(end_ - place_); }

    /// What lies ready behind the reading place; after `lookAhead` as much as the buffer holds, or all there
    /// is.
    std::span<const Byte> ahead() const { return {buffer_.data() + place_, end_ - place_}; }
    /// False if nothing more could be made ready, or reading failed.
    bool lookAhead();
    void taken(std::size_t size) { place_ += size; }

  private:
    static constexpr std::size_t bufferSize = 65536;

    const Byte* next(std::size_t size) {
        if (size > end_ - place_)
            fetch(size);
        return buffer_.data() + place_;
    }
    void demand(Long length);
    void demandUsable() const;
    void fetch(std::size_t size);
    void refill();
    void goToEnd();
    template <class Take>
    void inPieces(std::size_t length, Take take);

    Runtime& runtime_;
    std::unique_ptr<InputFile> file_;
    std::vector<Byte> buffer_;
    std::size_t place_ = 0; ///< of the buffer, where reading goes on
    std::size_t end_ = 0;   ///< of what the buffer holds
    std::int64_t behindBuffer_ = 0;
    Long failure_ = numberOf(ErrorNumber::badFileNumber); ///< what reading fails with; 0 while it does not
};

} // namespace lumtex::content
