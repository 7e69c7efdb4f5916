/// Settings in compound files.
#include "event_sink.h"

#include <ole2.h>

namespace lumtex::testing {
namespace {

class Storage : public ListFixture {
  protected:
    ~Storage() override {
        storage = {};
        if (!path.empty())
            DeleteFileW(win32::wide(path));
    }

    void makeFile() {
        wchar_t folder[MAX_PATH]{};
        wchar_t name[MAX_PATH]{};
        ASSERT_NE(GetTempPathW(MAX_PATH, folder), 0U);
        ASSERT_NE(GetTempFileNameW(folder, L"lum", 0, name), 0U);
        path = String(win32::textOf(name));
        ASSERT_EQ(StgCreateDocfile(name, STGM_CREATE | exclusive, 0, storage.out()), S_OK);
    }
    void openAgain() {
        storage = {};
        ASSERT_EQ(StgOpenStorage(win32::wide(path), nullptr, exclusive, nullptr, 0, storage.out()), S_OK);
    }
    static Variant valueIn(const win32::ComRef<IUnknown>& list, const wchar_t* name) {
        return invoke(list.as<IDispatch>().get(), name, DISPATCH_PROPERTYGET).value;
    }

    static constexpr DWORD exclusive = STGM_READWRITE | STGM_SHARE_EXCLUSIVE | STGM_DIRECT;
    win32::ComRef<IStorage> storage;
    String path;
    win32::ComRef<IPersistStorage> persist = control.as<IPersistStorage>();
};

TEST_F(Storage, SettingsGoThroughACompoundFile) {
    makeFile();
    ASSERT_EQ(persist->InitNew(storage.get()), S_OK);
    let(L"ColumnTextY", {Long{9}});
    let(L"GridLines", {true});
    ASSERT_EQ(persist->IsDirty(), S_OK);
    ASSERT_EQ(OleSave(persist.get(), storage.get(), TRUE), S_OK);
    EXPECT_EQ(persist->IsDirty(), S_FALSE);
    openAgain();
    CLSID id{};
    ASSERT_EQ(ReadClassStg(storage.get(), &id), S_OK);
    EXPECT_EQ(id, win32::guidOf("lmListView"));
    const win32::ComRef<IUnknown> other = component.make("lmListView");
    ASSERT_EQ(other.as<IPersistStorage>()->Load(storage.get()), S_OK);
    EXPECT_EQ(valueIn(other, L"ColumnTextY"), Variant(Long{9}));
    EXPECT_EQ(valueIn(other, L"GridLines"), Variant(true));
    EXPECT_EQ(other.as<IPersistStorage>()->IsDirty(), S_FALSE);
}

TEST_F(Storage, SavingAgainReplacesWhatWasThere) {
    makeFile();
    let(L"ColumnTextY", {Long{9}});
    ASSERT_EQ(persist->Save(storage.get(), TRUE), S_OK);
    let(L"ColumnTextY", {Long{4}});
    ASSERT_EQ(persist->Save(storage.get(), TRUE), S_OK);
    const win32::ComRef<IUnknown> other = component.make("lmListView");
    ASSERT_EQ(other.as<IPersistStorage>()->Load(storage.get()), S_OK);
    EXPECT_EQ(valueIn(other, L"ColumnTextY"), Variant(Long{4}));
}

TEST_F(Storage, ACopyLeavesTheSettingsUnsaved) {
    makeFile();
    let(L"GridLines", {true});
    ASSERT_EQ(persist->Save(storage.get(), FALSE), S_OK);
    EXPECT_EQ(persist->IsDirty(), S_OK);
    ASSERT_EQ(persist->SaveCompleted(nullptr), S_OK);
    EXPECT_EQ(persist->IsDirty(), S_OK);
    ASSERT_EQ(persist->SaveCompleted(storage.get()), S_OK);
    EXPECT_EQ(persist->IsDirty(), S_FALSE) << "the copy is the document from here on";
}

TEST_F(Storage, AControlIsInitialisedOnce) {
    makeFile();
    ASSERT_EQ(persist->InitNew(storage.get()), S_OK);
    EXPECT_EQ(persist->InitNew(storage.get()), CO_E_ALREADYINITIALIZED);
    ASSERT_EQ(persist->Save(storage.get(), TRUE), S_OK);
    EXPECT_EQ(persist->Load(storage.get()), CO_E_ALREADYINITIALIZED);
}

TEST_F(Storage, OneWithoutSettingsIsRefusedAndMayBeFollowedByAnother) {
    makeFile();
    EXPECT_EQ(persist->Load(storage.get()), STG_E_FILENOTFOUND);
    EXPECT_EQ(persist->InitNew(storage.get()), S_OK);
}

TEST_F(Storage, TheFileIsTheContainersAlone) {
    makeFile();
    ASSERT_EQ(persist->InitNew(storage.get()), S_OK);
    ASSERT_EQ(persist->Save(storage.get(), TRUE), S_OK);
    ASSERT_EQ(persist->HandsOffStorage(), S_OK);
    storage = {};
    EXPECT_TRUE(DeleteFileW(win32::wide(path))) << "nobody holds it";
}

TEST_F(Storage, TheStreamOfOneListFitsTheOthersStorage) {
    let(L"WheelScrollLines", {Long{7}});
    win32::ComRef<IStream> stream;
    win32::demand(CreateStreamOnHGlobal(nullptr, TRUE, stream.out()));
    ASSERT_EQ(control.as<IPersistStreamInit>()->Save(stream.get(), TRUE), S_OK);
    STATSTG whole{};
    win32::demand(stream->Stat(&whole, STATFLAG_NONAME));
    // A stream that ends at any place is refused, and nothing of it is taken over.
    for (ULONGLONG length = 0; length < whole.cbSize.QuadPart; length += 97) {
        win32::ComRef<IStream> cut;
        win32::demand(CreateStreamOnHGlobal(nullptr, TRUE, cut.out()));
        win32::demand(stream->Seek({}, STREAM_SEEK_SET, nullptr));
        ULARGE_INTEGER count{};
        count.QuadPart = length;
        win32::demand(stream->CopyTo(cut.get(), count, nullptr, nullptr));
        win32::demand(cut->Seek({}, STREAM_SEEK_SET, nullptr));
        const win32::ComRef<IUnknown> other = component.make("lmListView");
        EXPECT_EQ(other.as<IPersistStreamInit>()->Load(cut.get()), win32::resultOf(321)) << length;
        EXPECT_EQ(other.as<IPersistStreamInit>()->InitNew(), S_OK);
    }
}

} // namespace
} // namespace lumtex::testing
