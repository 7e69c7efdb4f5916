#include "records/compact_text.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <stdexcept>

namespace lumtex {

namespace {

constexpr std::size_t longestText = std::numeric_limits<std::uint32_t>::max();

bool fitsBytes(StringView text) {
    // Gathering the bits of all units lets the compiler use wide instructions.
    char16_t seen = 0;
    for (const char16_t unit : text)
        seen = static_cast<char16_t>(seen | unit);
    return seen < 256;
}

void narrow(StringView text, unsigned char* target) {
    std::transform(
        text.begin(), text.end(), target, [](char16_t unit) { return static_cast<unsigned char>(unit); });
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
    const bool inBytes = fitsBytes(text);
    if (inBytes && text.size() <= inlineCapacity) {
        narrow(text, bytes_.data());
        bytes_[inlineCapacity] = static_cast<unsigned char>(text.size());
        return;
    }
    if (text.size() > longestText)
        throw std::length_error("a cell's text is too long");
    if (inBytes) {
        auto* memory = new unsigned char[text.size()];
        narrow(text, memory);
        setHeap(memory, text.size(), narrowOnHeap);
    } else {
        auto* memory = new unsigned char[text.size() * sizeof(char16_t)];
        std::memcpy(memory, text.data(), text.size() * sizeof(char16_t));
        setHeap(memory, text.size(), wideOnHeap);
    }
}

void CompactText::release() {
    if (onHeap())
        delete[] heap();
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
        std::copy(units.begin(), units.end(), target.begin());
    });
}

} // namespace lumtex
