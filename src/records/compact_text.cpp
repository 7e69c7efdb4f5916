#include "records/compact_text.h"

#include "records/block_pool.h"
#include "values/unit_blocks.h"

#include <cstring>
#include <limits>
#include <new>
#include <stdexcept>

namespace lumtex {

namespace {

constexpr std::size_t longestText = std::numeric_limits<std::uint32_t>::max();

constexpr bool fitsBytes(char16_t bits) {
    return bits < 256;
}

/// Texts of one column that differ in length are read one after another, and slabs would put them far apart.
/// An allocator keeps them together, and what it adds is little beside a text that is longer than this.
constexpr std::size_t longestPooled = 64;

unsigned char* takeBytes(std::size_t size) {
    return static_cast<unsigned char*>(size <= longestPooled ? BlockPool::takeOfThread(size)
                                                             : ::operator new(size));
}

void giveBackBytes(unsigned char* bytes, std::size_t size) {
    if (size <= longestPooled)
        BlockPool::giveBackOfThread(bytes, size);
    else
        ::operator delete(bytes);
}

void demandStorable(std::size_t length) {
    if (length > longestText)
        throw std::length_error("a cell's text is too long");
}

} // namespace

CompactText& CompactText::operator=(CompactText&& other) noexcept {
    if (this != &other) {
        release();
        bytes_ = other.bytes_;
        other.forget();
    }
    return *this;
}

void CompactText::setHeap(unsigned char* memory, std::size_t length, unsigned char tag) {
    const auto units = static_cast<std::uint32_t>(length);
    std::memcpy(bytes_.data(), &memory, sizeof memory);
    std::memcpy(bytes_.data() + lengthOffset, &units, sizeof units);
    bytes_[inlineCapacity] = tag;
}

void CompactText::store(StringView text) {
    if (text.size() <= inlineCapacity && fitsBytes(copyUnits(text.data(), text.size(), bytes_.data()))) {
        bytes_[inlineCapacity] = static_cast<unsigned char>(text.size());
        return;
    }
    demandStorable(text.size());
    if (fitsBytes(bitsOf(text.data(), text.size()))) {
        auto* const memory = takeBytes(text.size());
        copyUnits(text.data(), text.size(), memory);
        setHeap(memory, text.size(), narrowOnHeap);
    } else {
        const std::size_t size = text.size() * sizeof(char16_t);
        auto* const memory = takeBytes(size);
        std::memcpy(memory, text.data(), size);
        setHeap(memory, text.size(), wideOnHeap);
    }
}

void CompactText::store(std::span<const unsigned char> units) {
    if (units.size() <= inlineCapacity) {
        copyUnits(units.data(), units.size(), bytes_.data());
        bytes_[inlineCapacity] = static_cast<unsigned char>(units.size());
        return;
    }
    demandStorable(units.size());
    auto* const memory = takeBytes(units.size());
    std::memcpy(memory, units.data(), units.size());
    setHeap(memory, units.size(), narrowOnHeap);
}

void CompactText::release() {
    if (onHeap())
        giveBackBytes(heap(), heapLength() * (isWide() ? sizeof(char16_t) : 1));
}

String CompactText::toString() const {
    String text;
    copyTo(text);
    return text;
}

void CompactText::copyTo(String& target) const {
    // Assigning from bytes would go through a text of its own.
    visit([&](auto units) {
        target.resize(units.size());
        copyUnits(units.data(), units.size(), target.data());
    });
}

} // namespace lumtex
