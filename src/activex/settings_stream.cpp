/// Settings to bytes and back.
#include "activex/settings_stream.h"

#include "platform/runtime_error.h"
#include "platform/win32/com_error.h"
#include "platform/win32/com_ref.h"
#include "platform/win32/variant_bridge.h"

#include <vector>

namespace lumtex {

namespace {

constexpr std::uint32_t mark = 0x564C4D4C; // "LMLV"
constexpr std::uint32_t version = 1;
/// More than any bag of ours has, and few enough to refuse a damaged stream early.
constexpr std::uint32_t mostValues = 1000;
constexpr std::uint32_t longestText = 1U << 20U;

class Writer {
  public:
    explicit Writer(IStream& stream) : stream_(stream) {}

    void bytes(const void* from, std::size_t size) {
        ULONG written = 0;
        if (FAILED(stream_.Write(from, static_cast<ULONG>(size), &written)) || written != size)
            throw RuntimeError(deviceError);
    }
    void number(std::uint32_t value) { bytes(&value, sizeof(value)); }
    void text(StringView value) {
        number(static_cast<std::uint32_t>(value.size()));
        bytes(value.data(), value.size() * sizeof(char16_t));
    }
    void object(IDispatch* value) {
        const auto persist = queryFor<IPersistStream>(value);
        if (!persist || FAILED(OleSaveToStream(persist.get(), &stream_)))
            throw RuntimeError(deviceError);
    }

  private:
    IStream& stream_;
};

class Reader {
  public:
    explicit Reader(IStream& stream) : stream_(stream) {}

    void bytes(void* to, std::size_t size) {
        ULONG read = 0;
        if (FAILED(stream_.Read(to, static_cast<ULONG>(size), &read)) || read != size)
            throw RuntimeError(invalidFileFormat);
    }
    std::uint32_t number(std::uint32_t most = ~0U) {
        std::uint32_t value = 0;
        bytes(&value, sizeof(value));
        if (value > most)
            throw RuntimeError(invalidFileFormat);
        return value;
    }
    String text() {
        String value(number(longestText), u'\0');
        bytes(value.data(), value.size() * sizeof(char16_t));
        return value;
    }
    IDispatch* object() {
        IDispatch* value = nullptr;
        if (FAILED(OleLoadFromStream(&stream_, IID_IDispatch, reinterpret_cast<void**>(&value))))
            throw RuntimeError(invalidFileFormat);
        return value;
    }

  private:
    IStream& stream_;
};

template <class T>
void plain(Writer& to, const T& value) {
    to.bytes(&value, sizeof(value));
}

void save(Writer& to, const VARIANT& value) {
    to.number(V_VT(&value));
    switch (V_VT(&value)) {
    case VT_BOOL:
    case VT_I2:
        return plain(to, V_I2(&value));
    case VT_I4:
    case VT_R4:
        return plain(to, V_I4(&value));
    case VT_R8:
        return plain(to, V_R8(&value));
    case VT_BSTR:
        return to.text(viewBSTR(V_BSTR(&value)));
    case VT_DISPATCH:
        return to.object(V_DISPATCH(&value));
    default:
        throw RuntimeError(typeMismatch);
    }
}

OwnedVARIANT load(Reader& from) {
    OwnedVARIANT value;
    const std::uint32_t type = from.number();
    switch (type) {
    case VT_BOOL:
    case VT_I2:
        from.bytes(&V_I2(&value.get()), sizeof(SHORT));
        break;
    case VT_I4:
    case VT_R4:
        from.bytes(&V_I4(&value.get()), sizeof(LONG));
        break;
    case VT_R8:
        from.bytes(&V_R8(&value.get()), sizeof(DOUBLE));
        break;
    case VT_BSTR:
        V_BSTR(&value.get()) = newBSTR(from.text());
        break;
    case VT_DISPATCH:
        V_DISPATCH(&value.get()) = from.object();
        break;
    default:
        throw RuntimeError(invalidFileFormat);
    }
    V_VT(&value.get()) = static_cast<VARTYPE>(type);
    return value;
}

bool isNothing(const VARIANT& value) {
    return V_VT(&value) == VT_DISPATCH && V_DISPATCH(&value) == nullptr;
}

} // namespace

void saveSettings(IStream& stream, const MemoryPropertyBag& bag) {
    std::vector<std::pair<StringView, OwnedVARIANT>> values;
    for (const MemoryPropertyBag::Entry& entry : bag.entries()) {
        OwnedVARIANT value = toVARIANT(entry.value);
        if (!isNothing(value.get()))
            values.emplace_back(entry.name, std::move(value));
    }
    Writer to(stream);
    to.number(mark);
    to.number(version);
    to.number(static_cast<std::uint32_t>(values.size()));
    for (const auto& [name, value] : values) {
        to.text(name);
        save(to, value.get());
    }
}

void loadSettings(IStream& stream, MemoryPropertyBag& bag) {
    Reader from(stream);
    if (from.number() != mark || from.number() != version)
        throw RuntimeError(invalidFileFormat);
    const std::uint32_t count = from.number(mostValues);
    for (std::uint32_t i = 0; i < count; ++i) {
        const String name = from.text();
        bag.WriteProperty(name, fromVARIANT(load(from).get()), Missing{});
    }
}

} // namespace lumtex
