/// Formats of a drag's data.
#include "worlds/win32/carried_data.h"

#include "values/runtime_error.h"
#include "values/text.h"
#include "values/variant.h"
#include "worlds/win32/ansi_text.h"
#include "worlds/win32/com_error.h"
#include "worlds/win32/ole_picture.h"
#include "worlds/win32/owned.h"

#include <vector>

#include <shellapi.h>

namespace lumtex::win32 {

namespace {

CLIPFORMAT richText() {
    static const auto format = static_cast<CLIPFORMAT>(RegisterClipboardFormatW(L"Rich Text Format"));
    return format;
}

FORMATETC formatOf(CLIPFORMAT number) {
    const DWORD medium = number == CF_BITMAP ? TYMED_GDI : TYMED_HGLOBAL;
    return {number, nullptr, DVASPECT_CONTENT, -1, medium};
}

/// The data in one format, released at the end. Throws RuntimeError 5 where there is none.
class Medium {
  public:
    Medium(IDataObject& data, CLIPFORMAT number) {
        FORMATETC format = formatOf(number);
        if (FAILED(data.GetData(&format, &medium_)) || medium_.tymed != format.tymed)
            throw RuntimeError(ErrorNumber::invalidProcedureCall);
    }
    Medium(const Medium&) = delete;
    Medium& operator=(const Medium&) = delete;
    ~Medium() { ReleaseStgMedium(&medium_); }

    HBITMAP bitmap() const { return medium_.hBitmap; }
    HGLOBAL memory() const { return medium_.hGlobal; }

  private:
    STGMEDIUM medium_{};
};

/// As many units as fit; the text in it may end before, at a zero.
template <class Unit>
std::basic_string_view<Unit> textOf(const LockedMemory& memory) {
    if (memory.bytes() == nullptr)
        throw RuntimeError(ErrorNumber::invalidProcedureCall);
    const std::basic_string_view<Unit> all(static_cast<const Unit*>(memory.bytes()),
                                           memory.size() / sizeof(Unit));
    return all.substr(0, all.find(Unit{}));
}

Variant textIn(IDataObject& data, CLIPFORMAT format) {
    const Medium medium(data, format);
    const LockedMemory locked(medium.memory());
    if (format == CF_UNICODETEXT)
        return String(textOf<char16_t>(locked));
    return textFromAnsi(textOf<char>(locked));
}

Variant pictureIn(IDataObject& data) {
    const Medium medium(data, CF_BITMAP);
    PICTDESC description{};
    description.cbSizeofstruct = sizeof(description);
    description.picType = PICTYPE_BITMAP;
    OwnedBitmap copy(
        static_cast<HBITMAP>(CopyImage(medium.bitmap(), IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION)));
    if (!copy)
        throw RuntimeError(ErrorNumber::outOfMemory);
    description.bmp.hbitmap = copy.get();
    ComRef<IPictureDisp> picture;
    const HRESULT made = OleCreatePictureIndirect(
        &description, IID_IPictureDisp, TRUE, reinterpret_cast<void**>(picture.out()));
    if (FAILED(made))
        throw RuntimeError(ErrorNumber::invalidProcedureCall);
    copy.detach(); // the object owns it now
    return Variant(pictureFrom(picture.get()));
}

/// Names of files, which outlive the drag.
class FileNames final : public Object {
  public:
    explicit FileNames(IDataObject& data) {
        const Medium medium(data, CF_HDROP);
        auto* const drop = static_cast<HDROP>(medium.memory());
        const UINT count = DragQueryFileW(drop, ~0U, nullptr, 0);
        for (UINT i = 0; i < count; ++i) {
            String name(DragQueryFileW(drop, i, nullptr, 0), u'\0');
            DragQueryFileW(drop, i, wide(name.data()), static_cast<UINT>(name.size()) + 1);
            names_.push_back(std::move(name));
        }
    }

    Variant get(StringView name, std::span<Variant> arguments) override {
        if (sameName(name, u"Count") && arguments.empty())
            return static_cast<Long>(names_.size());
        if ((!name.empty() && !sameName(name, u"Item")) || arguments.size() != 1)
            throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
        const Long index = arguments[0].toLong();
        if (index < 1 || static_cast<std::size_t>(index) > names_.size())
            throw RuntimeError(ErrorNumber::subscriptOutOfRange);
        return names_[static_cast<std::size_t>(index - 1)];
    }
    void put(StringView /*name*/, const Variant& /*value*/) override {
        throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
    }
    Variant call(StringView name, std::span<Variant> arguments) override { return get(name, arguments); }

  private:
    std::vector<String> names_;
};

class CarriedData final : public Object {
  public:
    explicit CarriedData(ComRef<IDataObject> data) : data_(std::move(data)) {}

    Variant get(StringView name, std::span<Variant> arguments) override {
        if (sameName(name, u"Files") && arguments.empty())
            return ObjectRef(std::make_shared<FileNames>(*data_.get()));
        if (sameName(name, u"GetFormat") && arguments.size() == 1)
            return has(formatIn(arguments[0]));
        if (sameName(name, u"GetData") && arguments.size() <= 1)
            return dataIn(arguments.empty() || arguments[0].isMissing() ? defaultFormat()
                                                                        : formatIn(arguments[0]));
        throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
    }
    void put(StringView /*name*/, const Variant& /*value*/) override {
        throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
    }
    Variant call(StringView name, std::span<Variant> arguments) override { return get(name, arguments); }

  private:
    /// Formats that programs register have numbers past those of a signed Integer.
    static CLIPFORMAT formatIn(const Variant& value) { return static_cast<CLIPFORMAT>(value.toLong()); }

    CLIPFORMAT defaultFormat() const { return has(CF_UNICODETEXT) ? CF_UNICODETEXT : CF_TEXT; }

    bool has(CLIPFORMAT number) const {
        FORMATETC format = formatOf(number);
        return data_->QueryGetData(&format) == S_OK;
    }

    Variant dataIn(CLIPFORMAT format) const {
        if (format == CF_TEXT || format == CF_UNICODETEXT || format == richText())
            return textIn(*data_.get(), format);
        if (format == CF_BITMAP)
            return pictureIn(*data_.get());
        throw RuntimeError(ErrorNumber::invalidProcedureCall);
    }

    ComRef<IDataObject> data_;
};

} // namespace

ObjectRef carriedData(ComRef<IDataObject> data) {
    return std::make_shared<CarriedData>(std::move(data));
}

} // namespace lumtex::win32
