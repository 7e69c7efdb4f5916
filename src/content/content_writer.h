/// \file
/// A content file that is being written, one statement after another.
#pragma once

#include "content/content_bytes.h"
#include "platform/runtime.h"
#include "values/runtime_error.h"

#include <memory>
#include <vector>

namespace lumtex::content {

/// Each `put` throws RuntimeError 52 while no file is open. After the first failure of the file itself each
/// further one fails as that did, so that no later piece lands in the place of a lost one.
class ContentWriter {
  public:
    explicit ContentWriter(Runtime& runtime) : runtime_(runtime) {}

    /// Throws as `Files::openForBinaryWriting`.
    void open(StringView path);
    /// Does nothing if no file is open. Throws as OutputFile does.
    void close();

    template <ContentNumber T>
    void put(T value) {
        storeNumber(room(sizeof value), value);
        used_ += sizeof value;
    }
    /// The characters alone, in the ANSI code page.
    void putText(StringView text);
    void putBytes(std::span<const Byte> bytes);

    /// Free room for a record of `size` bytes, to be filled and then `taken`; null if putting it piece by
    /// piece would have to go to the file, or fail.
    Byte* roomAtHand(std::size_t size) {
        return size <= buffer_.size() - used_ ? buffer_.data() + used_ : nullptr;
    }
    void taken(std::size_t size) { used_ += size; }

  private:
    static constexpr std::size_t bufferSize = 65536;

    Byte* room(std::size_t size) {
        if (size > buffer_.size() - used_)
            makeRoom();
        return buffer_.data() + used_;
    }
    void makeRoom();
    void demandUsable() const;
    void writeOut();

    Runtime& runtime_;
    std::unique_ptr<OutputFile> file_;
    std::vector<Byte> buffer_; ///< empty, so that there is never room, while nothing can be written
    std::size_t used_ = 0;     ///< bytes of the buffer that wait
    Long failure_ = numberOf(ErrorNumber::badFileNumber); ///< what a `put` fails with; 0 while none does
};

} // namespace lumtex::content
