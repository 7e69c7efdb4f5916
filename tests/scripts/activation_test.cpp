/// This program names the component in a manifest that it carries in itself.
#include "activex/event_sink.h"
#include "automation/class_table.h"

namespace lumtex::testing {
namespace {

class Activation : public ::testing::Test {
  protected:
    Activation() { CoInitialize(nullptr); }
    ~Activation() override { CoUninitialize(); }
};

TEST_F(Activation, MakesEachClassByItsProgramIdentifier) {
    for (const automation::ClassDescription& description : automation::classTable()) {
        const String programId = u"LumtexListView." + String(description.name);
        CLSID id{};
        ASSERT_EQ(CLSIDFromProgID(win32::wide(programId), &id), S_OK) << toUtf8(programId);
        win32::ComRef<IDispatch> object;
        ASSERT_EQ(
            CoCreateInstance(
                id, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch, reinterpret_cast<void**>(object.out())),
            S_OK)
            << toUtf8(programId);
        const automation::Member& last = description.members.back();
        EXPECT_EQ(idOf(object.get(), win32::wide(String(last.name))), last.number) << toUtf8(programId);
    }
}

TEST_F(Activation, FindsTheTypeLibraryOfTheComponent) {
    win32::ComRef<ITypeLib> library;
    ASSERT_EQ(LoadRegTypeLib(win32::guidOf("LumtexListView"),
                             automation::typeLibraryMajor,
                             automation::typeLibraryMinor,
                             LOCALE_NEUTRAL,
                             library.out()),
              S_OK);
    win32::ComRef<ITypeInfo> events;
    EXPECT_EQ(library->GetTypeInfoOfGuid(win32::guidOf("__lmListView"), events.out()), S_OK);
    win32::ComRef<ITypeLib> newer;
    EXPECT_NE(LoadRegTypeLib(win32::guidOf("LumtexListView"),
                             automation::typeLibraryMajor + 1,
                             0,
                             LOCALE_NEUTRAL,
                             newer.out()),
              S_OK);
}

TEST_F(Activation, EventsReachTheProgram) {
    win32::ComRef<IUnknown> list;
    ASSERT_EQ(CoCreateInstance(win32::guidOf("lmListView"),
                               nullptr,
                               CLSCTX_INPROC_SERVER,
                               IID_IUnknown,
                               reinterpret_cast<void**>(list.out())),
              S_OK);
    EventSink sink;
    const auto point = eventPointOf(list);
    DWORD cookie = 0;
    ASSERT_EQ(point->Advise(&sink, &cookie), S_OK);
    const auto dispatch = list.as<IDispatch>();
    invoke(dispatch.get(), L"ColumnsAdd", DISPATCH_METHOD, {u"a"});
    invoke(dispatch.get(), L"RowsAdd", DISPATCH_METHOD, {Long{-1}, u",", u"x"});
    invoke(dispatch.get(), L"ListIndex", DISPATCH_PROPERTYPUT, {Long{7}});
    constexpr DISPID errorWrongIndex = 19;
    EXPECT_EQ(sink.raised, std::vector<DISPID>{errorWrongIndex});
    EXPECT_EQ(point->Unadvise(cookie), S_OK);
}

} // namespace
} // namespace lumtex::testing
