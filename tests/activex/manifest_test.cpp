/// The component by the manifest beside it, with nothing in the registry.
#include "activex/ole_object_face.h"
#include "automation/class_table.h"
#include "event_sink.h"

#include <array>

namespace lumtex::testing {
namespace {

String folderOfProgram() {
    std::array<wchar_t, MAX_PATH> path{};
    GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    const String whole(win32::textOf(path.data()));
    return whole.substr(0, whole.find_last_of(u'\\') + 1);
}

/// What a program says by a manifest of its own, said for a while.
class ManifestInForce {
  public:
    ManifestInForce() {
        const String path = folderOfProgram() + u"LumtexListView.manifest";
        ACTCTXW wanted{};
        wanted.cbSize = sizeof(wanted);
        wanted.lpSource = win32::wide(path);
        context_ = CreateActCtxW(&wanted);
        EXPECT_NE(context_, INVALID_HANDLE_VALUE) << GetLastError();
        EXPECT_TRUE(ActivateActCtx(context_, &cookie_));
    }
    ManifestInForce(const ManifestInForce&) = delete;
    ManifestInForce& operator=(const ManifestInForce&) = delete;
    ~ManifestInForce() {
        DeactivateActCtx(0, cookie_);
        ReleaseActCtx(context_);
    }

  private:
    HANDLE context_;
    ULONG_PTR cookie_ = 0;
};

String programIdOf(const automation::ClassDescription& description) {
    return u"LumtexListView." + String(description.name);
}

HRESULT classOf(const automation::ClassDescription& description, CLSID& id) {
    return CLSIDFromProgID(win32::wide(programIdOf(description)), &id);
}

/// As `CreateObject` makes one; none where that fails. The identifier that comes for a program identifier in
/// a manifest is one that the system made up.
win32::ComRef<IDispatch> createObject(const automation::ClassDescription& description) {
    CLSID id{};
    win32::ComRef<IDispatch> object;
    if (SUCCEEDED(classOf(description, id)))
        CoCreateInstance(
            id, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch, reinterpret_cast<void**>(object.out()));
    return object;
}

HRESULT loadLibrary(win32::ComRef<ITypeLib>& library) {
    return LoadRegTypeLib(win32::guidOf("LumtexListView"),
                          automation::typeLibraryMajor,
                          automation::typeLibraryMinor,
                          LOCALE_NEUTRAL,
                          library.out());
}

class Manifest : public ::testing::Test {
  protected:
    Manifest() { CoInitialize(nullptr); }
    ~Manifest() override { CoUninitialize(); }
};

TEST_F(Manifest, MakesEachClassByItsProgramIdentifierWithNothingRegistered) {
    CLSID id{};
    for (const automation::ClassDescription& description : automation::classTable())
        ASSERT_NE(classOf(description, id), S_OK) << "something is registered";
    {
        const ManifestInForce manifest;
        for (const automation::ClassDescription& description : automation::classTable()) {
            const std::string name = toUtf8(description.name);
            EXPECT_EQ(classOf(description, id), S_OK) << name;
            const auto object = createObject(description);
            ASSERT_TRUE(object) << name;
            const automation::Member& first = description.members[0];
            EXPECT_EQ(idOf(object.get(), win32::wide(String(first.name))), first.number) << name;
            win32::ComRef<IUnknown> same;
            EXPECT_EQ(CoCreateInstance(win32::guidOf(name),
                                       nullptr,
                                       CLSCTX_INPROC_SERVER,
                                       IID_IUnknown,
                                       reinterpret_cast<void**>(same.out())),
                      S_OK)
                << name;
        }
    }
    EXPECT_NE(classOf(automation::listViewClass(), id), S_OK);
}

TEST_F(Manifest, TellsTheTypeLibrary) {
    win32::ComRef<ITypeLib> library;
    ASSERT_NE(loadLibrary(library), S_OK) << "something is registered";
    const ManifestInForce manifest;
    ASSERT_EQ(loadLibrary(library), S_OK);
    for (const char* name : {"lmListView", "_lmListView", "__lmListView", "SpEv", "Error", "FindResults"}) {
        win32::ComRef<ITypeInfo> info;
        EXPECT_EQ(library->GetTypeInfoOfGuid(win32::guidOf(name), info.out()), S_OK) << name;
    }
}

TEST_F(Manifest, TellsContainersWhatTheControlDoesItself) {
    const ManifestInForce manifest;
    DWORD status = 0;
    ASSERT_EQ(OleRegGetMiscStatus(win32::guidOf("lmListView"), DVASPECT_CONTENT, &status), S_OK);
    EXPECT_EQ(status, win32::controlMiscStatus);
}

TEST_F(Manifest, EventsReachTheHost) {
    const ManifestInForce manifest;
    const win32::ComRef<IDispatch> list = createObject(automation::listViewClass());
    ASSERT_TRUE(list);
    EventSink sink;
    const auto point = eventPointOf(list.as<IUnknown>());
    DWORD cookie = 0;
    ASSERT_EQ(point->Advise(&sink, &cookie), S_OK);
    invoke(list.get(), L"ColumnsAdd", DISPATCH_METHOD, {u"a"});
    for (const char16_t* text : {u"b", u"a"})
        invoke(list.get(), L"RowsAdd", DISPATCH_METHOD, {Long{-1}, u",", text});
    invoke(list.get(), L"Sort", DISPATCH_METHOD, {Long{1}, Long{1}});
    EXPECT_EQ(sink.raised, std::vector<DISPID>{20});
    EXPECT_EQ(point->Unadvise(cookie), S_OK);
}

} // namespace
} // namespace lumtex::testing
