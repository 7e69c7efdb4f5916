/// \file
/// The text of a cell in sixteen bytes.
#pragma once

#include "values/prefetching.h"
#include "values/types.h"

#include <array>
#include <cstddef>
#include <cstring>
#include <span>

namespace lumtex {

/// Holds any UTF-16 text. Text whose code units all lie below 256 is kept in bytes, and up to fifteen of
/// those stay inside the object, so that a short text costs no allocation.
class CompactText {
  public:
    CompactText() = default;
    /// Throws std::bad_alloc, or std::length_error for more than 2^32 - 1 code units.
    explicit CompactText(StringView text) { store(text); }
    /// The same of bytes that are a code unit each.
    explicit CompactText(std::span<const unsigned char> units) { store(units); }
    CompactText(const CompactText&) = delete;
    CompactText& operator=(const CompactText&) = delete;
    CompactText(CompactText&& other) noexcept : bytes_(other.bytes_) { other.forget(); }
    CompactText& operator=(CompactText&& other) noexcept;
    ~CompactText() { release(); }

    /// The old text stays where storing the new one fails.
    void assign(StringView text) { *this = CompactText(text); }
    void assign(std::span<const unsigned char> units) { *this = CompactText(units); }

    std::size_t size() const { return onHeap() ? heapLength() : tag(); } ///< code units
    bool empty() const { return size() == 0; }
    /// Whether some code unit lies above 255.
    bool isWide() const { return tag() == wideOnHeap; }
    String toString() const;
    /// Overwrites `target`, reusing its memory.
    void copyTo(String& target) const;

    /// Calls `visitor` with the text where it lies: as a span of bytes, each a code unit below 256, or as a
    /// StringView where some unit is larger. Neither outlives the next change of the text.
    template <class Visitor>
    decltype(auto) visit(Visitor&& visitor) const {
        if (isWide())
            return visitor(StringView(reinterpret_cast<const char16_t*>(heap()), heapLength()));
        return visitor(std::span<const unsigned char>(onHeap() ? heap() : bytes_.data(), size()));
    }

    /// Where the text lies inside: sixteen bytes, of which it takes the first ones; else null.
    const unsigned char* insideBytes() const { return onHeap() ? nullptr : bytes_.data(); }
    /// The same of any text in bytes: outside of a cell it takes them all, sixteen or more.
    std::span<const unsigned char> bytesAround() const {
        // Chosen without a branch, as nobody foresees which of the next texts are long.
        const std::array<const unsigned char*, 2> places = {bytes_.data(), heap()};
        const std::array<std::size_t, 2> sizes = {bytes_.size(), heapLength()};
        const std::size_t place = onHeap() ? 1 : 0;
        return {places[place], sizes[place]};
    }
    /// Has the machine fetch a text that is about to be looked at.
    LUMTEX_PREFETCHING void prefetch() const {
        if (onHeap())
            __builtin_prefetch(heap());
    }

  private:
    static constexpr std::size_t inlineCapacity = 15;
    /// Values of the last byte; up to `inlineCapacity` it is the length of a text kept inside.
    static constexpr unsigned char narrowOnHeap = 0xFE;
    static constexpr unsigned char wideOnHeap = 0xFF;

    unsigned char tag() const { return bytes_[inlineCapacity]; }
    bool onHeap() const { return tag() > inlineCapacity; }
    static constexpr std::size_t lengthOffset = sizeof(void*);

    unsigned char* heap() const {
        unsigned char* memory = nullptr;
        std::memcpy(&memory, bytes_.data(), sizeof memory);
        return memory;
    }
    std::size_t heapLength() const {
        std::uint32_t length = 0;
        std::memcpy(&length, bytes_.data() + lengthOffset, sizeof length);
        return length;
    }
    void setHeap(unsigned char* memory, std::size_t length, unsigned char tag);

    void store(StringView text);
    void store(std::span<const unsigned char> units);
    void release();
    void forget() { bytes_[inlineCapacity] = 0; }

    alignas(void*) std::array<unsigned char, inlineCapacity + 1> bytes_{};
};

static_assert(sizeof(CompactText) == 16);

} // namespace lumtex
