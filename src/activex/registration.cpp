/// Registering and taking it back.
#include "activex/registration.h"

#include "activex/class_faces.h"
#include "activex/com_guard.h"
#include "activex/guid.h"
#include "activex/module.h"
#include "activex/ole_object_face.h"

#include <vector>

namespace lumtex {

namespace {

struct RegisteredClass {
    std::string_view name;
    const wchar_t* help;
    bool control;
};

constexpr RegisteredClass classes[] = {
    {"lmListView", L"LumtexListView list of rows and columns", true},
    {"SpEv", L"LumtexListView helper calls", false},
    {"Error", L"LumtexListView error reports", false},
};

struct Entry {
    String key; ///< below the classes
    String name;
    String value;
};

String wideName(std::string_view name) {
    return {name.begin(), name.end()};
}

String numberText(unsigned long number) {
    const std::string text = std::to_string(number);
    return {text.begin(), text.end()};
}

String programIdOf(const RegisteredClass& registered) {
    return u"LumtexListView." + wideName(registered.name);
}

String keyOf(const RegisteredClass& registered) {
    return u"CLSID\\" + textOfGuid(guidOf(registered.name));
}

String help(const RegisteredClass& registered) {
    return String(textOf(registered.help));
}

void appendClass(std::vector<Entry>& entries, const RegisteredClass& registered) {
    const String key = keyOf(registered);
    const String programId = programIdOf(registered);
    entries.push_back({programId, u"", help(registered)});
    entries.push_back({programId + u"\\CLSID", u"", textOfGuid(guidOf(registered.name))});
    entries.push_back({key, u"", help(registered)});
    entries.push_back({key + u"\\ProgID", u"", programId});
    entries.push_back({key + u"\\InprocServer32", u"", modulePath()});
    entries.push_back({key + u"\\InprocServer32", u"ThreadingModel", u"Apartment"});
    entries.push_back({key + u"\\TypeLib", u"", textOfGuid(guidOf("LumtexListView"))});
    entries.push_back(
        {key + u"\\Version", u"", numberText(typeLibraryMajor) + u"." + numberText(typeLibraryMinor)});
    entries.push_back({key + u"\\Programmable", u"", u""});
    if (!registered.control)
        return;
    entries.push_back({key + u"\\Control", u"", u""});
    entries.push_back({key + u"\\Insertable", u"", u""});
    entries.push_back({key + u"\\MiscStatus", u"", u"0"});
    entries.push_back({key + u"\\MiscStatus\\1", u"", numberText(controlMiscStatus)});
    // The picture in the toolbox is the bitmap 102 of the module.
    entries.push_back({key + u"\\ToolboxBitmap32", u"", modulePath() + u", 102"});
}

std::vector<Entry> allEntries() {
    std::vector<Entry> entries;
    for (const RegisteredClass& registered : classes)
        appendClass(entries, registered);
    return entries;
}

HKEY hiveOf(Registry registry) {
    return registry == Registry::machine ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER;
}

const String classesKey = u"Software\\Classes\\";

HRESULT write(HKEY hive, const Entry& entry) {
    HKEY key = nullptr;
    LSTATUS status =
        RegCreateKeyExW(hive, wide(classesKey + entry.key), 0, nullptr, 0, KEY_WRITE, nullptr, &key, nullptr);
    if (status == ERROR_SUCCESS) {
        status = RegSetValueExW(key,
                                wide(entry.name),
                                0,
                                REG_SZ,
                                reinterpret_cast<const BYTE*>(entry.value.c_str()),
                                static_cast<DWORD>((entry.value.size() + 1) * sizeof(char16_t)));
        RegCloseKey(key);
    }
    return status == ERROR_SUCCESS ? S_OK : SELFREG_E_CLASS;
}

HRESULT registerLibrary(Registry registry) {
    const String path = modulePath();
    auto* const file = const_cast<wchar_t*>(wide(path));
    const ComRef<ITypeLib> library = typeLibrary();
    const HRESULT result = registry == Registry::machine
                               ? RegisterTypeLib(library.get(), file, nullptr)
                               : RegisterTypeLibForUser(library.get(), file, nullptr);
    return SUCCEEDED(result) ? S_OK : SELFREG_E_TYPELIB;
}

HRESULT unregisterLibrary(Registry registry) {
    const GUID id = guidOf("LumtexListView");
    constexpr SYSKIND kind = sizeof(void*) == 8 ? SYS_WIN64 : SYS_WIN32;
    const HRESULT result =
        registry == Registry::machine
            ? UnRegisterTypeLib(id, typeLibraryMajor, typeLibraryMinor, LOCALE_NEUTRAL, kind)
            : UnRegisterTypeLibForUser(id, typeLibraryMajor, typeLibraryMinor, LOCALE_NEUTRAL, kind);
    return SUCCEEDED(result) || result == TYPE_E_REGISTRYACCESS ? S_OK : SELFREG_E_TYPELIB;
}

HRESULT removeTree(HKEY hive, const String& key) {
    const LSTATUS status = RegDeleteTreeW(hive, wide(classesKey + key));
    return status == ERROR_SUCCESS || status == ERROR_FILE_NOT_FOUND ? S_OK : SELFREG_E_CLASS;
}

} // namespace

HRESULT registerComponent(Registry registry) noexcept {
    const HRESULT result = guarded([&]() -> HRESULT {
        for (const Entry& entry : allEntries())
            if (const HRESULT written = write(hiveOf(registry), entry); FAILED(written))
                return written;
        return registerLibrary(registry);
    });
    if (FAILED(result))
        unregisterComponent(registry);
    return result;
}

HRESULT unregisterComponent(Registry registry) noexcept {
    return guarded([&]() -> HRESULT {
        HRESULT result = S_OK;
        for (const RegisteredClass& registered : classes)
            for (const String& key : {keyOf(registered), programIdOf(registered)})
                if (const HRESULT removed = removeTree(hiveOf(registry), key); FAILED(removed))
                    result = removed;
        const HRESULT library = unregisterLibrary(registry);
        return FAILED(result) ? result : library;
    });
}

} // namespace lumtex
