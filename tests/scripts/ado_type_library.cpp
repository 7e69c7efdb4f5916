#include "scripts/ado_type_library.h"

#include "values/text.h"
#include "worlds/win32/windows_api.h"

#include <array>
#include <fstream>
#include <stdexcept>

namespace lumtex::testing {

namespace {

namespace fs = std::filesystem;

const wchar_t* const versionKey = L"Software\\Classes\\TypeLib\\{2A75196C-D9EB-4129-B803-931327F72D5C}\\1.0";

bool versionIsKnown() {
    HKEY key = nullptr;
    if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, versionKey, 0, KEY_READ, &key) != ERROR_SUCCESS)
        return false;
    RegCloseKey(key);
    return true;
}

/// The type library in the objects' file.
std::string librarySource() {
    std::array<wchar_t, MAX_PATH> folder{};
    ExpandEnvironmentStringsW(
        L"%CommonProgramFiles%\\System\\ADO\\msado15.dll", folder.data(), static_cast<DWORD>(folder.size()));
    HMODULE module = LoadLibraryExW(folder.data(), nullptr, LOAD_LIBRARY_AS_DATAFILE);
    HRSRC found = FindResourceW(module, MAKEINTRESOURCEW(1), L"TYPELIB");
    HGLOBAL loaded = LoadResource(module, found);
    const void* bytes = LockResource(loaded);
    if (bytes == nullptr)
        throw std::runtime_error("the database objects have no type library");
    std::string library(static_cast<const char*>(bytes), SizeofResource(module, found));
    FreeLibrary(module);
    return library;
}

} // namespace

AdoTypeLibrary::AdoTypeLibrary() {
    if (versionIsKnown())
        return;
    std::string library = librarySource();
    // Where the format keeps major and minor number, 16 bits each.
    constexpr std::size_t versionAt = 0x18;
    library.replace(versionAt, 4, std::string("\x01\0\0\0", 4));
    copy_ = fs::temp_directory_path() / ("lumtex_ado_" + std::to_string(GetCurrentProcessId()) + ".tlb");
    std::ofstream(copy_, std::ios::binary) << library;

    HKEY key = nullptr;
    const String files =
        String(win32::textOf(versionKey)) + u"\\0\\" + (sizeof(void*) == 8 ? u"win64" : u"win32");
    if (RegCreateKeyExW(
            HKEY_LOCAL_MACHINE, win32::wide(files), 0, nullptr, 0, KEY_WRITE, nullptr, &key, nullptr) !=
        ERROR_SUCCESS)
        throw std::runtime_error("the type library cannot be registered");
    const std::wstring path = copy_.wstring();
    RegSetValueExW(key,
                   nullptr,
                   0,
                   REG_SZ,
                   reinterpret_cast<const BYTE*>(path.c_str()),
                   static_cast<DWORD>((path.size() + 1) * sizeof(wchar_t)));
    RegCloseKey(key);
}

AdoTypeLibrary::~AdoTypeLibrary() {
    if (copy_.empty())
        return;
    RegDeleteTreeW(HKEY_LOCAL_MACHINE, versionKey);
    std::error_code failure;
    fs::remove(copy_, failure);
}

} // namespace lumtex::testing
