/// Settings in streams that no list wrote.
#include "activex/settings_stream.h"
#include "event_sink.h"
#include "sample_images.h"
#include "worlds/win32/ole_picture.h"

#include <random>

#include <ole2.h>

namespace lumtex::testing {
namespace {

constexpr GUID strangeClass{0x6C6D7453, 0x7472, 0x616E, {0x67, 0x65, 0x43, 0x6C, 0x61, 0x73, 0x73, 0x21}};
constexpr GUID fontClass{0x0BE35203, 0x8F91, 0x11CE, {0x9D, 0xE3, 0x00, 0xAA, 0x00, 0x4B, 0xB8, 0x51}};
constexpr GUID pictureClass{0x0BE35204, 0x8F91, 0x11CE, {0x9D, 0xE3, 0x00, 0xAA, 0x00, 0x4B, 0xB8, 0x51}};

/// A class that any stream could name, and that counts who asks for it.
class StrangeClass final : public IClassFactory {
  public:
    StrangeClass() {
        CoRegisterClassObject(strangeClass, this, CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE, &cookie_);
    }
    StrangeClass(const StrangeClass&) = delete;
    StrangeClass& operator=(const StrangeClass&) = delete;
    ~StrangeClass() { CoRevokeClassObject(cookie_); }

    int asked = 0;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** found) override {
        if (!IsEqualIID(iid, IID_IUnknown) && !IsEqualIID(iid, IID_IClassFactory))
            return *found = nullptr, E_NOINTERFACE;
        *found = this;
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return 1; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* /*outer*/, REFIID /*iid*/, void** /*made*/) override {
        ++asked;
        return E_FAIL;
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL /*lock*/) override { return S_OK; }

  private:
    DWORD cookie_ = 0;
};

/// The bytes of a stream of settings.
class StreamBytes {
  public:
    explicit StreamBytes(std::uint32_t values) { number(0x564C4D4C).number(1).number(values); }

    StreamBytes& number(std::uint32_t value) { return raw(&value, sizeof value); }
    StreamBytes& name(const String& text) {
        number(static_cast<std::uint32_t>(text.size()));
        return raw(text.data(), text.size() * sizeof(char16_t));
    }
    StreamBytes& value(const String& key, Long value) {
        return name(key).number(VT_I4).number(static_cast<std::uint32_t>(value));
    }
    StreamBytes& object(const String& key, const GUID& id) {
        return name(key).number(VT_DISPATCH).raw(&id, sizeof id);
    }
    StreamBytes& picture(const String& key, const Image& image) {
        object(key, pictureClass).number(0x746C).number(static_cast<std::uint32_t>(image.size()));
        return raw(image.data(), image.size());
    }
    StreamBytes& font(const String& key, const std::string& face) {
        const Byte head[] = {1, 0, 0, 2, 0xBC, 2, 0xF0, 0x49, 2, 0}; // slanted, bold, 15 points
        object(key, fontClass).raw(head, sizeof head);
        const auto length = static_cast<Byte>(face.size());
        return raw(&length, 1).raw(face.data(), face.size());
    }
    StreamBytes& raw(const void* from, std::size_t size) {
        const auto* const first = static_cast<const Byte*>(from);
        bytes_.insert(bytes_.end(), first, first + size);
        return *this;
    }
    const Image& bytes() const { return bytes_; }

  private:
    Image bytes_;
};

class SettingsStream : public ListFixture {
  protected:
    static win32::ComRef<IStream> streamOf(const Image& bytes) {
        win32::ComRef<IStream> stream;
        win32::demand(CreateStreamOnHGlobal(nullptr, TRUE, stream.out()));
        win32::demand(stream->Write(bytes.data(), static_cast<ULONG>(bytes.size()), nullptr));
        win32::demand(stream->Seek({}, STREAM_SEEK_SET, nullptr));
        return stream;
    }
    static Image bytesOf(const win32::ComRef<IStream>& stream) {
        STATSTG told{};
        win32::demand(stream->Stat(&told, STATFLAG_NONAME));
        Image bytes(static_cast<std::size_t>(told.cbSize.QuadPart));
        win32::demand(stream->Seek({}, STREAM_SEEK_SET, nullptr));
        win32::demand(stream->Read(bytes.data(), static_cast<ULONG>(bytes.size()), nullptr));
        return bytes;
    }
    Image saved() {
        win32::ComRef<IStream> stream;
        win32::demand(CreateStreamOnHGlobal(nullptr, TRUE, stream.out()));
        win32::demand(control.as<IPersistStreamInit>()->Save(stream.get(), TRUE));
        return bytesOf(stream);
    }
    /// Into a new list, which stays for a look.
    HRESULT load(const Image& bytes) {
        other = component.make("lmListView");
        return other.as<IPersistStreamInit>()->Load(streamOf(bytes).get());
    }
    HRESULT load(const StreamBytes& bytes) { return load(bytes.bytes()); }
    Variant valueIn(const wchar_t* name) {
        return invoke(other.as<IDispatch>().get(), name, DISPATCH_PROPERTYGET).value;
    }

    StrangeClass strange;
    win32::ComRef<IUnknown> other;
    const HRESULT refused = win32::resultOf(321);
};

TEST_F(SettingsStream, FontsAndPicturesStandAsTheSystemSavesThem) {
    const PictureRef skin = win32::loadOlePicture(bitmapImage(6, 4));
    const PictureRef ground = win32::loadOlePicture(gifImage());
    const FontRef font = std::make_shared<Font>(FontSpec{u"DejaVu Sans Mono", 15, true, true, false, true});
    ASSERT_EQ(invoke(dispatch.get(), L"Skin", DISPATCH_PROPERTYPUTREF, {skin}).result, S_OK);
    ASSERT_EQ(invoke(dispatch.get(), L"BackgroundPicture", DISPATCH_PROPERTYPUTREF, {ground}).result, S_OK);
    ASSERT_EQ(invoke(dispatch.get(), L"DefaultItemFont", DISPATCH_PROPERTYPUTREF, {font}).result, S_OK);
    const Image bytes = saved();
    for (const wchar_t* name : {L"Skin", L"BackgroundPicture", L"DefaultItemFont"}) {
        const win32::OwnedVARIANT value = win32::toVARIANT(get(name));
        win32::ComRef<IStream> stream;
        win32::demand(CreateStreamOnHGlobal(nullptr, TRUE, stream.out()));
        win32::demand(
            OleSaveToStream(win32::queryFor<IPersistStream>(V_DISPATCH(&value.get())).get(), stream.get()));
        const Image object = bytesOf(stream);
        EXPECT_NE(std::search(bytes.begin(), bytes.end(), object.begin(), object.end()), bytes.end())
            << toUtf8(win32::textOf(name));
    }
    ASSERT_EQ(load(bytes), S_OK);
    EXPECT_EQ(valueIn(L"Skin").toPicture()->bitmap(), skin->bitmap());
    EXPECT_EQ(valueIn(L"BackgroundPicture").toPicture()->bitmap(), ground->bitmap());
    EXPECT_EQ(valueIn(L"DefaultItemFont").toFont()->spec, get(L"DefaultItemFont").toFont()->spec);
}

TEST_F(SettingsStream, APictureOfOursComesBackToo) {
    const auto skin = std::make_shared<BitmapPicture>(Bitmap(9, 7, 0x80402010U));
    ASSERT_EQ(invoke(dispatch.get(), L"Skin", DISPATCH_PROPERTYPUTREF, {PictureRef(skin)}).result, S_OK);
    ASSERT_EQ(load(saved()), S_OK);
    EXPECT_EQ(valueIn(L"Skin").toPicture()->bitmap().width, 9);
}

TEST_F(SettingsStream, AnyOtherClassIsNeverMade) {
    for (const char16_t* key :
         {u"Skin", u"BackgroundPicture", u"DefaultItemFont", u"GridLines", u"Unknown"}) {
        EXPECT_EQ(load(StreamBytes(1).object(key, strangeClass).number(0).number(0)), refused);
        EXPECT_EQ(other.as<IPersistStreamInit>()->InitNew(), S_OK) << "nothing was taken over";
    }
    EXPECT_EQ(strange.asked, 0);
    // The class is there for whoever asks.
    win32::ComRef<IUnknown> made;
    CoCreateInstance(
        strangeClass, nullptr, CLSCTX_INPROC_SERVER, IID_IUnknown, reinterpret_cast<void**>(made.out()));
    EXPECT_EQ(strange.asked, 1);
}

TEST_F(SettingsStream, ObjectsUnderKeysThatHoldNoneAreReadOver) {
    ASSERT_EQ(load(StreamBytes(5)
                       .value(u"ColumnTextY", 7)
                       .picture(u"Unknown", damagedImages().front().image)
                       .font(u"GridLines", "Tahoma")
                       .value(u"Nobody", 1)
                       .value(u"WheelScrollLines", 9)),
              S_OK);
    EXPECT_EQ(valueIn(L"ColumnTextY"), Variant(Long{7}));
    EXPECT_EQ(valueIn(L"WheelScrollLines"), Variant(Long{9}));
    EXPECT_EQ(valueIn(L"GridLines"), Variant(false));
}

TEST_F(SettingsStream, AFontIsNoPictureAndAPictureNoFont) {
    EXPECT_EQ(load(StreamBytes(1).font(u"Skin", "Tahoma")), refused);
    EXPECT_EQ(load(StreamBytes(1).picture(u"DefaultItemFont", bitmapImage(2, 2))), refused);
    EXPECT_EQ(load(StreamBytes(1).font(u"DefaultItemFont", "Tahoma")), S_OK);
    EXPECT_TRUE(valueIn(L"DefaultItemFont").toFont()->spec.Italic);
    EXPECT_EQ(load(StreamBytes(1).picture(u"Skin", bitmapImage(2, 2))), S_OK);
    EXPECT_EQ(valueIn(L"Skin").toPicture()->bitmap().width, 2);
    EXPECT_EQ(load(StreamBytes(1).picture(u"Skin", {})), S_OK);
    EXPECT_EQ(valueIn(L"Skin").toPicture(), nullptr);
}

TEST_F(SettingsStream, DamagedImagesAreRefused) {
    for (const NamedImage& damaged : damagedImages()) {
        if (!damaged.image.empty()) {
            EXPECT_EQ(load(StreamBytes(1).picture(u"Skin", damaged.image)), refused) << damaged.name;
        }
    }
}

TEST_F(SettingsStream, LengthsAndCountsThatTheStreamDoesNotHoldAreRefused) {
    EXPECT_EQ(load(StreamBytes(1001)), refused);
    EXPECT_EQ(load(StreamBytes(1).number(0x7FFFFFFF)), refused);
    EXPECT_EQ(load(StreamBytes(1).name(String(256, u'n')).number(VT_I4).number(0)), refused);
    EXPECT_EQ(load(StreamBytes(1).name(u"Text").number(VT_BSTR).number(0xFFFFFFFF)), refused);
    EXPECT_EQ(load(StreamBytes(1).object(u"Skin", pictureClass).number(0x746C).number(0xFFFFFFFF)), refused);
    EXPECT_EQ(load(StreamBytes(1).object(u"Skin", pictureClass).number(0x746D).number(0)), refused);
    EXPECT_EQ(load(StreamBytes(1).name(u"GridLines").number(VT_UNKNOWN).number(0)), refused);
    EXPECT_EQ(load(StreamBytes(1).name(u"GridLines").number(VT_BYREF | VT_I4).number(0)), refused);
    EXPECT_EQ(load(StreamBytes(2).value(u"ColumnTextY", 1).value(u"ColumnTextY", 2)), refused);
    EXPECT_EQ(load(StreamBytes(2).value(u"ColumnTextY", 1)), refused);
    EXPECT_EQ(load(StreamBytes(0)), S_OK);
}

/// Mutants of a real stream: each is either refused, with nothing taken over, or gives a list that works.
TEST_F(SettingsStream, AStreamChangedAtRandomLeavesAListThatWorks) {
    constexpr int rounds = 400;
    const Image whole = StreamBytes(6)
                            .value(u"ColumnTextY", 3)
                            .picture(u"Skin", iconOf({iconPart(16), pngImage(), iconPart(32)}))
                            .font(u"DefaultItemFont", "Tahoma")
                            .picture(u"BackgroundPicture", gifImage())
                            .object(u"Unknown", pictureClass)
                            .number(0x746C)
                            .number(2)
                            .raw("ab", 2)
                            .value(u"RowHeight", 300)
                            .bytes();
    ASSERT_EQ(load(whole), S_OK);
    std::mt19937 random(20261122);
    int loaded = 0;
    for (int round = 0; round < rounds; ++round) {
        SCOPED_TRACE(round);
        Image changed = whole;
        for (int i = static_cast<int>(random() % 4); i >= 0; --i) {
            const std::size_t place = random() % changed.size();
            const Byte values[] = {0, 1, 0x7F, 0x80, 0xFF, static_cast<Byte>(random())};
            switch (random() % 4) {
            case 0:
                changed.resize(place + 1);
                break;
            case 1:
                changed.insert(changed.begin() + static_cast<std::ptrdiff_t>(place), values[random() % 6]);
                break;
            default:
                changed[place] = values[random() % 6];
            }
        }
        const HRESULT result = load(changed);
        ASSERT_TRUE(result == S_OK || result == refused) << std::hex << result;
        loaded += result == S_OK ? 1 : 0;
        if (result != S_OK) {
            ASSERT_EQ(other.as<IPersistStreamInit>()->InitNew(), S_OK);
        }
        const win32::ComRef<IDispatch> list = other.as<IDispatch>();
        ASSERT_EQ(invoke(list.get(), L"ColumnsAdd", DISPATCH_METHOD, {u"column"}).result, S_OK);
        ASSERT_EQ(invoke(list.get(), L"RowsAdd", DISPATCH_METHOD, {Long{-1}, u",", u"text"}).result, S_OK);
        ASSERT_EQ(invoke(list.get(), L"ItemText", DISPATCH_PROPERTYGET, {Long{1}, Long{1}}).value,
                  Variant(u"text"));
    }
    EXPECT_GT(loaded, rounds / 20);
    EXPECT_LT(loaded, rounds);
    EXPECT_EQ(strange.asked, 0);
}

} // namespace
} // namespace lumtex::testing
