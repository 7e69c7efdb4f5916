/// Files of text, and the search for files.
#include "worlds/win32/win32_files.h"

#include "values/runtime_error.h"
#include "worlds/win32/ansi_text.h"
#include "worlds/win32/file_handle.h"

#include <algorithm>

namespace lumtex::win32 {

Win32Files::~Win32Files() {
    for (const auto& [number, search] : searches_)
        FindClose(search);
}

String Win32Files::readFile(StringView path) const {
    const FileHandle file(String(path), GENERIC_READ, OPEN_EXISTING);
    std::string bytes;
    constexpr std::size_t blockSize = 0x10000;
    for (DWORD count = 1; count > 0;) {
        const std::size_t known = bytes.size();
        bytes.resize(known + blockSize);
        if (!ReadFile(file.get(), bytes.data() + known, blockSize, &count, nullptr))
            throw RuntimeError(ErrorNumber::deviceError);
        bytes.resize(known + count);
    }
    return textFromAnsi(bytes);
}

void Win32Files::createFile(StringView path) {
    const FileHandle file(String(path), GENERIC_WRITE, CREATE_ALWAYS);
}

void Win32Files::appendToFile(StringView path, StringView text) {
    const std::string bytes = ansiFrom(text);
    const FileHandle file(String(path), FILE_APPEND_DATA, OPEN_ALWAYS);
    DWORD written = 0;
    if (!WriteFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) ||
        written != bytes.size())
        throw RuntimeError(ErrorNumber::deviceError);
}

String Win32Files::fullPathName(StringView file) const {
    const String name(file);
    const DWORD needed = GetFullPathNameW(wide(name), 0, nullptr, nullptr);
    String path(needed, u'\0');
    const DWORD length = GetFullPathNameW(wide(name), needed, wide(path.data()), nullptr);
    path.resize(std::min(length, needed));
    return path;
}

Long Win32Files::findFirstFile(StringView pattern) {
    constexpr Long nothing = -1;
    const String name(pattern);
    WIN32_FIND_DATAW found{};
    HANDLE search = FindFirstFileW(wide(name), &found);
    if (search == INVALID_HANDLE_VALUE)
        return nothing;
    searches_.emplace(++lastSearch_, search);
    return lastSearch_;
}

void Win32Files::findClose(Long handle) {
    const auto search = searches_.find(handle);
    if (search == searches_.end())
        return;
    FindClose(search->second);
    searches_.erase(search);
}

} // namespace lumtex::win32
