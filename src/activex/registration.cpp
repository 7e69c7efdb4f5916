/// Registering and taking it back.
#include "activex/registration.h"

#include "activex/class_faces.h"
#include "activex/com_guard.h"
#include "activex/guid.h"
#include "activex/module.h"
#include "activex/ole_object_face.h"

#include <vector>

namespace lumtex::win32 {

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

struct RegisteredInterface {
    std::string_view name;
    bool events;
};

constexpr RegisteredInterface interfaces[] = {
    {"_lmListView", false},
    {"__lmListView", true},
    {"_SpEv", false},
    {"_Error", false},
};

String keyOf(const RegisteredInterface& registered) {
    return u"Interface\\" + textOfGuid(guidOf(registered.name));
}

String libraryKey() {
    return u"TypeLib\\" + textOfGuid(guidOf("LumtexListView"));
}

String libraryVersion() {
    return numberText(automation::typeLibraryMajor) + u"." + numberText(automation::typeLibraryMinor);
}

/// Programs of both widths share the entries of the library, but for this one.
String filesKey() {
    return libraryKey() + u"\\" + libraryVersion() + u"\\0";
}
String ownFileKey() {
    return filesKey() + (sizeof(void*) == 8 ? u"\\win64" : u"\\win32");
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
    entries.push_back({key + u"\\Version", u"", libraryVersion()});
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

String pageKey() {
    return u"CLSID\\" + textOfGuid(guidFrom(automation::generalPageUuid));
}

/// Frames make it by its identifier alone.
void appendPage(std::vector<Entry>& entries) {
    entries.push_back({pageKey(), u"", u"LumtexListView property page"});
    entries.push_back({pageKey() + u"\\InprocServer32", u"", modulePath()});
    entries.push_back({pageKey() + u"\\InprocServer32", u"ThreadingModel", u"Apartment"});
}

void appendLibrary(std::vector<Entry>& entries) {
    const String version = libraryKey() + u"\\" + libraryVersion();
    const String path = modulePath();
    entries.push_back({version, u"", u"LumtexListView, a list of rows and columns"});
    entries.push_back({version + u"\\FLAGS", u"", u"0"});
    entries.push_back({version + u"\\HELPDIR", u"", path.substr(0, path.find_last_of(u'\\'))});
    entries.push_back({ownFileKey(), u"", path});
    for (const RegisteredInterface& registered : interfaces) {
        const String key = keyOf(registered);
        // The system's own marshallers, by the type library.
        const String marshaller = registered.events ? u"{00020420-0000-0000-C000-000000000046}"
                                                    : u"{00020424-0000-0000-C000-000000000046}";
        entries.push_back({key, u"", wideName(registered.name)});
        entries.push_back({key + u"\\ProxyStubClsid32", u"", marshaller});
        entries.push_back({key + u"\\TypeLib", u"", textOfGuid(guidOf("LumtexListView"))});
        entries.push_back({key + u"\\TypeLib", u"Version", libraryVersion()});
    }
}

std::vector<Entry> allEntries() {
    std::vector<Entry> entries;
    for (const RegisteredClass& registered : classes)
        appendClass(entries, registered);
    appendPage(entries);
    appendLibrary(entries);
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

/// Keys that hold those of all components; a user may have none of them.
constexpr StringView sharedKeys[] = {u"CLSID", u"Interface", u"TypeLib"};

/// A key with neither keys nor values in it. It may have been there before, and nobody misses it.
void removeIfEmpty(HKEY hive, const String& key) {
    HKEY opened = nullptr;
    if (RegOpenKeyExW(hive, wide(key), 0, KEY_READ, &opened) != ERROR_SUCCESS)
        return;
    DWORD keys = 1;
    DWORD values = 1;
    RegQueryInfoKeyW(opened,
                     nullptr,
                     nullptr,
                     nullptr,
                     &keys,
                     nullptr,
                     nullptr,
                     &values,
                     nullptr,
                     nullptr,
                     nullptr,
                     nullptr);
    RegCloseKey(opened);
    if (keys == 0 && values == 0)
        RegDeleteKeyW(hive, wide(key));
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
        return S_OK;
    });
    if (FAILED(result))
        unregisterComponent(registry);
    return result;
}

HRESULT unregisterComponent(Registry registry) noexcept {
    return guarded([&]() -> HRESULT {
        const HKEY hive = hiveOf(registry);
        std::vector<String> trees;
        for (const RegisteredClass& registered : classes) {
            trees.push_back(keyOf(registered));
            trees.push_back(programIdOf(registered));
        }
        for (const RegisteredInterface& registered : interfaces)
            trees.push_back(keyOf(registered));
        trees.push_back(pageKey());
        trees.push_back(ownFileKey());
        HRESULT result = S_OK;
        for (const String& tree : trees)
            if (const HRESULT removed = removeTree(hive, tree); FAILED(removed))
                result = removed;
        // Goes only while no file of the other width stands in it.
        if (RegDeleteKeyW(hive, wide(classesKey + filesKey())) == ERROR_SUCCESS)
            if (const HRESULT removed = removeTree(hive, libraryKey()); FAILED(removed))
                result = removed;
        for (const StringView shared : sharedKeys)
            removeIfEmpty(hive, classesKey + String(shared));
        return result;
    });
}

} // namespace lumtex::win32
