/// The component's entries in the registry.
#include "component.h"

#include <array>
#include <cstring>
#include <set>

namespace lumtex::testing {
namespace {

const wchar_t* const classesKey = L"Software\\Classes";

/// Every key and value below a key, as lines.
void collect(HKEY parent, const String& path, std::set<String>& lines) {
    HKEY key = nullptr;
    if (RegOpenKeyExW(parent, win32::wide(path), 0, KEY_READ, &key) != ERROR_SUCCESS)
        return;
    std::array<wchar_t, 512> name{};
    std::array<BYTE, 4096> data{};
    for (DWORD i = 0;; ++i) {
        auto nameLength = static_cast<DWORD>(name.size());
        auto dataLength = static_cast<DWORD>(data.size() - 2);
        if (RegEnumValueW(key, i, name.data(), &nameLength, nullptr, nullptr, data.data(), &dataLength) !=
            ERROR_SUCCESS)
            break;
        data[dataLength] = data[dataLength + 1] = 0;
        lines.insert(path + u"|" + String(win32::textOf(name.data())) + u"=" +
                     String(win32::textOf(reinterpret_cast<wchar_t*>(data.data()))));
    }
    std::vector<String> below;
    for (DWORD i = 0;; ++i) {
        auto nameLength = static_cast<DWORD>(name.size());
        if (RegEnumKeyExW(key, i, name.data(), &nameLength, nullptr, nullptr, nullptr, nullptr) !=
            ERROR_SUCCESS)
            break;
        below.emplace_back(win32::textOf(name.data()));
    }
    RegCloseKey(key);
    for (const String& child : below) {
        lines.insert(path + u"\\" + child);
        collect(parent, path + u"\\" + child, lines);
    }
}

std::set<String> classesOf(HKEY hive) {
    std::set<String> lines;
    collect(hive, String(win32::textOf(classesKey)), lines);
    return lines;
}
std::set<String> userClasses() {
    return classesOf(HKEY_CURRENT_USER);
}

/// A key that the system forgets, and under which it lets nobody make keys that it keeps.
class VolatileKey {
  public:
    VolatileKey(HKEY hive, const String& path) : hive_(hive), path_(path) {
        HKEY key = nullptr;
        if (RegCreateKeyExW(hive,
                            win32::wide(path),
                            0,
                            nullptr,
                            REG_OPTION_VOLATILE,
                            KEY_WRITE,
                            nullptr,
                            &key,
                            nullptr) == ERROR_SUCCESS)
            RegCloseKey(key);
    }
    VolatileKey(const VolatileKey&) = delete;
    VolatileKey& operator=(const VolatileKey&) = delete;
    ~VolatileKey() { RegDeleteKeyW(hive_, win32::wide(path_)); }

  private:
    HKEY hive_;
    String path_;
};

class Registration : public ::testing::Test {
  protected:
    Registration() {
        CoInitialize(nullptr);
        // What an earlier registration left behind, of a program that was ended in the middle, is no part of
        // what was there before.
        component.install(false);
    }
    ~Registration() override {
        component.install(false);
        CoUninitialize();
    }

    Component component;
};

TEST_F(Registration, ForTheUserLeavesTheRegistryAsItWas) {
    const std::set<String> before = userClasses();
    ASSERT_EQ(component.install(true), S_OK);
    EXPECT_GT(userClasses().size(), before.size() + 30);
    ASSERT_EQ(component.install(false), S_OK);
    EXPECT_EQ(userClasses(), before);
}

TEST_F(Registration, TwiceIsTheSameAsOnce) {
    ASSERT_EQ(component.install(true), S_OK);
    const std::set<String> once = userClasses();
    ASSERT_EQ(component.install(true), S_OK);
    EXPECT_EQ(userClasses(), once);
    EXPECT_EQ(component.install(false), S_OK);
    EXPECT_EQ(component.install(false), S_OK) << "nothing is left to take back";
}

/// Whether a key of all users is there.
bool isThere(const String& key) {
    HKEY opened = nullptr;
    const String path = u"Software\\Classes\\" + key;
    if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, win32::wide(path), 0, KEY_READ, &opened) != ERROR_SUCCESS)
        return false;
    RegCloseKey(opened);
    return true;
}

String guidTextOf(std::string_view name) {
    std::array<wchar_t, 39> text{};
    StringFromGUID2(win32::guidOf(name), text.data(), static_cast<int>(text.size()));
    return String(win32::textOf(text.data()));
}

TEST_F(Registration, ForAllUsersMakesEachClassByItsProgramIdentifierAndLeavesNothing) {
    using Register = HRESULT(WINAPI*)();
    ASSERT_EQ(component.function<Register>("DllRegisterServer")(), S_OK);
    for (const char* name : {"lmListView", "SpEv", "Error"}) {
        const String programId = u"LumtexListView." + String(name, name + std::strlen(name));
        CLSID classId{};
        EXPECT_EQ(CLSIDFromProgID(win32::wide(programId), &classId), S_OK) << name;
        EXPECT_TRUE(IsEqualCLSID(classId, win32::guidOf(name))) << name;
        win32::ComRef<IDispatch> object;
        EXPECT_EQ(CoCreateInstance(classId,
                                   nullptr,
                                   CLSCTX_INPROC_SERVER,
                                   IID_IDispatch,
                                   reinterpret_cast<void**>(object.out())),
                  S_OK)
            << name;
    }
    win32::ComRef<ITypeLib> library;
    EXPECT_EQ(LoadRegTypeLib(win32::guidOf("LumtexListView"), 1, 0, LOCALE_NEUTRAL, library.out()), S_OK);
    library = {};
    ASSERT_EQ(component.function<Register>("DllUnregisterServer")(), S_OK);
    for (const char* name : {"lmListView", "SpEv", "Error"}) {
        EXPECT_FALSE(isThere(u"CLSID\\" + guidTextOf(name))) << name;
        EXPECT_FALSE(isThere(u"LumtexListView." + String(name, name + std::strlen(name)))) << name;
    }
    for (const char* name : {"_lmListView", "__lmListView", "_SpEv", "_Error"})
        EXPECT_FALSE(isThere(u"Interface\\" + guidTextOf(name))) << name;
    EXPECT_FALSE(isThere(u"TypeLib\\" + guidTextOf("LumtexListView")));
}

TEST_F(Registration, UseAndItsEndForAllUsersLeaveTheRegistryAsItWas) {
    using Register = HRESULT(WINAPI*)();
    const auto unregister = component.function<Register>("DllUnregisterServer");
    unregister();
    const std::set<String> users = userClasses();
    const std::set<String> before = classesOf(HKEY_LOCAL_MACHINE);
    ASSERT_EQ(component.function<Register>("DllRegisterServer")(), S_OK);
    EXPECT_GT(classesOf(HKEY_LOCAL_MACHINE).size(), before.size() + 30);
    {
        CLSID classId{};
        win32::ComRef<IDispatch> list;
        ASSERT_EQ(CLSIDFromProgID(L"LumtexListView.lmListView", &classId), S_OK);
        ASSERT_EQ(
            CoCreateInstance(
                classId, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch, reinterpret_cast<void**>(list.out())),
            S_OK);
        EXPECT_EQ(invoke(list.get(), L"ColumnsAdd", DISPATCH_METHOD, {u"column"}).result, S_OK);
    }
    ASSERT_EQ(unregister(), S_OK);
    EXPECT_EQ(classesOf(HKEY_LOCAL_MACHINE), before);
    EXPECT_EQ(userClasses(), users);
}

TEST_F(Registration, OneThatFailsHalfWayLeavesNothing) {
    for (const HKEY hive : {HKEY_CURRENT_USER, HKEY_LOCAL_MACHINE}) {
        // The classes come first, the library after them.
        const VolatileKey blocked(hive, u"Software\\Classes\\TypeLib\\" + guidTextOf("LumtexListView"));
        const std::set<String> before = classesOf(hive);
        using Register = HRESULT(WINAPI*)();
        const HRESULT result = hive == HKEY_CURRENT_USER
                                   ? component.install(true)
                                   : component.function<Register>("DllRegisterServer")();
        EXPECT_EQ(result, SELFREG_E_CLASS);
        EXPECT_EQ(classesOf(hive), before);
    }
}

TEST_F(Registration, EndsWithoutTouchingWhatOthersHaveInTheSameKeys) {
    const VolatileKey other(HKEY_CURRENT_USER, u"Software\\Classes\\TypeLib\\{OtherOne}");
    const std::set<String> before = userClasses();
    ASSERT_EQ(component.install(false), S_OK);
    EXPECT_EQ(userClasses(), before);
}

TEST_F(Registration, TheThreadingModelIsApartment) {
    ASSERT_EQ(component.install(true), S_OK);
    const auto lines = userClasses();
    int found = 0;
    for (const String& line : lines)
        found += line.ends_with(u"|ThreadingModel=Apartment") ? 1 : 0;
    EXPECT_EQ(found, 4) << "three classes and a page";
}

} // namespace
} // namespace lumtex::testing
