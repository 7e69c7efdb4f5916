/// \file
/// Bytes of a stream, demanded.
#pragma once

#include "values/runtime_error.h"
#include "worlds/win32/windows_api.h"

#include <algorithm>
#include <limits>
#include <vector>

namespace lumtex::win32 {

/// Throws RuntimeError 57 if the stream takes no more.
class SettingsWriter {
  public:
    explicit SettingsWriter(IStream& stream) : stream_(stream) {}

    void bytes(const void* from, std::size_t size) {
        ULONG written = 0;
        if (FAILED(stream_.Write(from, static_cast<ULONG>(size), &written)) || written != size)
            throw RuntimeError(ErrorNumber::deviceError);
    }
    template <class T>
    void plain(const T& value) {
        bytes(&value, sizeof value);
    }
    IStream& stream() { return stream_; }
    void text(StringView value) {
        plain(static_cast<std::uint32_t>(value.size()));
        bytes(value.data(), value.size() * sizeof(char16_t));
    }

  private:
    IStream& stream_;
};

/// Throws RuntimeError 321 for a stream that ends too early.
class SettingsReader {
  public:
    explicit SettingsReader(IStream& stream) : stream_(stream) {}

    void bytes(void* to, std::size_t size) {
        ULONG read = 0;
        if (FAILED(stream_.Read(to, static_cast<ULONG>(size), &read)) || read != size)
            refuse();
    }
    template <class T>
    T plain() {
        T value{};
        bytes(&value, sizeof value);
        return value;
    }
    std::uint32_t number(std::uint32_t most = std::numeric_limits<std::uint32_t>::max()) {
        const auto value = plain<std::uint32_t>();
        if (value > most)
            refuse();
        return value;
    }
    String text(std::uint32_t longest) {
        String value(number(longest), u'\0');
        bytes(value.data(), value.size() * sizeof(char16_t));
        return value;
    }
    /// Asks for memory as the bytes come, not as a length promises them.
    std::vector<Byte> many(std::size_t size) {
        constexpr std::size_t piece = 65536;
        std::vector<Byte> all;
        while (all.size() < size) {
            const std::size_t before = all.size();
            all.resize(before + std::min(piece, size - before));
            bytes(all.data() + before, all.size() - before);
        }
        return all;
    }
    [[noreturn]] static void refuse() { throw RuntimeError(ErrorNumber::invalidFileFormat); }

  private:
    IStream& stream_;
};

} // namespace lumtex::win32
