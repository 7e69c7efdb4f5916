/// \file
/// The text of a cell in sixteen bytes.
#pragma once

#include "platform/types.h"

#include <array>
#include <cstddef>

namespace lumtex {

/// Holds any UTF-16 text. Text whose code units all lie below 256 is kept in bytes, and up to fifteen of
/// those stay inside the object, so that a short text costs no allocation.
class CompactText {
  public:
    CompactText() = default;
    /// Throws std::bad_alloc, or std::length_error for more than 2^32 - 1 code units.
    explicit CompactText(StringView text) { store(text); }
    CompactText(const CompactText&) = delete;
    CompactText& operator=(const CompactText&) = delete;
    CompactText(CompactText&& other) noexcept : bytes_(other.bytes_) { other.forget(); }
    CompactText& operator=(CompactText&& other) noexcept;
    ~CompactText() { release(); }

    /// The old text stays where storing the new one fails.
    void assign(StringView text) { *this = CompactText(text); }

    std::size_t size() const; ///< code units
    bool empty() const { return size() == 0; }
    String toString() const;
    /// Overwrites `target`, reusing its memory.
    void copyTo(String& target) const;

    /// Bytes on the heap, for the accounting of benchmarks.
    std::size_t heapBytes() const;

  private:
    static constexpr std::size_t inlineCapacity = 15;
    /// Values of the last byte; up to `inlineCapacity` it is the length of a text kept inside.
    static constexpr unsigned char narrowOnHeap = 0xFE;
    static constexpr unsigned char wideOnHeap = 0xFF;

    unsigned char tag() const { return bytes_[inlineCapacity]; }
    bool onHeap() const { return tag() > inlineCapacity; }
    unsigned char* heap() const;
    std::size_t heapLength() const;
    void setHeap(unsigned char* memory, std::size_t length, unsigned char tag);

    void store(StringView text);
    void release();
    void forget() { bytes_[inlineCapacity] = 0; }

    alignas(void*) std::array<unsigned char, inlineCapacity + 1> bytes_{};
};

static_assert(sizeof(CompactText) == 16);

} // namespace lumtex
