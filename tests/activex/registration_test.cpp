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
    if (RegOpenKeyExW(parent, wide(path), 0, KEY_READ, &key) != ERROR_SUCCESS)
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
        lines.insert(path + u"|" + String(textOf(name.data())) + u"=" +
                     String(textOf(reinterpret_cast<wchar_t*>(data.data()))));
    }
    std::vector<String> below;
    for (DWORD i = 0;; ++i) {
        auto nameLength = static_cast<DWORD>(name.size());
        if (RegEnumKeyExW(key, i, name.data(), &nameLength, nullptr, nullptr, nullptr, nullptr) !=
            ERROR_SUCCESS)
            break;
        below.emplace_back(textOf(name.data()));
    }
    RegCloseKey(key);
    for (const String& child : below) {
        lines.insert(path + u"\\" + child);
        collect(parent, path + u"\\" + child, lines);
    }
}

std::set<String> userClasses() {
    std::set<String> lines;
    collect(HKEY_CURRENT_USER, String(textOf(classesKey)), lines);
    return lines;
}

class Registration : public ::testing::Test {
  protected:
    Registration() {
        CoInitialize(nullptr);
        // The tree that all entries lie in is there before, so that it is there afterwards.
        HKEY key = nullptr;
        for (const wchar_t* tree :
             {L"Software\\Classes\\CLSID", L"Software\\Classes\\TypeLib", L"Software\\Classes\\Interface"})
            if (RegCreateKeyExW(HKEY_CURRENT_USER, tree, 0, nullptr, 0, KEY_WRITE, nullptr, &key, nullptr) ==
                ERROR_SUCCESS)
                RegCloseKey(key);
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
    if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, wide(path), 0, KEY_READ, &opened) != ERROR_SUCCESS)
        return false;
    RegCloseKey(opened);
    return true;
}

String guidTextOf(std::string_view name) {
    std::array<wchar_t, 39> text{};
    StringFromGUID2(guidOf(name), text.data(), static_cast<int>(text.size()));
    return String(textOf(text.data()));
}

TEST_F(Registration, ForAllUsersMakesEachClassByItsProgramIdentifierAndLeavesNothing) {
    using Register = HRESULT(WINAPI*)();
    ASSERT_EQ(component.function<Register>("DllRegisterServer")(), S_OK);
    for (const char* name : {"lmListView", "SpEv", "Error"}) {
        const String programId = u"LumtexListView." + String(name, name + std::strlen(name));
        CLSID classId{};
        EXPECT_EQ(CLSIDFromProgID(wide(programId), &classId), S_OK) << name;
        EXPECT_TRUE(IsEqualCLSID(classId, guidOf(name))) << name;
        ComRef<IDispatch> object;
        EXPECT_EQ(CoCreateInstance(classId,
                                   nullptr,
                                   CLSCTX_INPROC_SERVER,
                                   IID_IDispatch,
                                   reinterpret_cast<void**>(object.out())),
                  S_OK)
            << name;
    }
    ComRef<ITypeLib> library;
    EXPECT_EQ(LoadRegTypeLib(guidOf("LumtexListView"), 1, 0, LOCALE_NEUTRAL, library.out()), S_OK);
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

TEST_F(Registration, TheThreadingModelIsApartment) {
    ASSERT_EQ(component.install(true), S_OK);
    const auto lines = userClasses();
    int found = 0;
    for (const String& line : lines)
        found += line.ends_with(u"|ThreadingModel=Apartment") ? 1 : 0;
    EXPECT_EQ(found, 3);
}

} // namespace
} // namespace lumtex::testing
