#include "worlds/qt/carried_data.h"

#include "values/references/picture.h"
#include "values/runtime_error.h"
#include "values/text.h"
#include "values/variant.h"
#include "worlds/qt/qt_picture.h"
#include "worlds/qt/qt_text.h"

#include <QImage>
#include <QPointer>
#include <QUrl>
#include <utility>
#include <vector>

namespace lumtex::qt {

namespace {

/// Numbers of formats, as unsigned 16-bit numbers.
enum Format : std::uint16_t {
    ansiText = 1,
    bitmap = 2,
    wideText = 13,
    files = 15,
    richText = 0xBF01,
};

QString richTextIn(const QMimeData& data) {
    const char* type = data.hasFormat(QStringLiteral("text/rtf")) ? "text/rtf" : "application/rtf";
    return QString::fromLatin1(data.data(QString::fromLatin1(type)));
}

std::vector<String> fileNamesIn(const QMimeData& data) {
    std::vector<String> names;
    for (const QUrl& url : data.urls())
        if (url.isLocalFile())
            names.push_back(fromQString(url.toLocalFile()));
    return names;
}

bool has(const QMimeData& data, Format format) {
    switch (format) {
    case ansiText:
    case wideText:
        return data.hasText();
    case bitmap:
        return data.hasImage();
    case files:
        return !fileNamesIn(data).empty();
    case richText:
        return data.hasFormat(QStringLiteral("text/rtf")) ||
               data.hasFormat(QStringLiteral("application/rtf"));
    }
    return false;
}

/// A member of a collection whose elements count from 1.
class FileNames final : public Object {
  public:
    explicit FileNames(std::vector<String> names) : names_(std::move(names)) {}

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

class MimeData final : public CarriedData {
  public:
    // Guarded pointers hold nothing const; what they hold is only read here.
    explicit MimeData(const QMimeData& data) : data_(const_cast<QMimeData*>(&data)) {}

    Variant get(StringView name, std::span<Variant> arguments) override {
        if (sameName(name, u"Files") && arguments.empty())
            return ObjectRef(std::make_shared<FileNames>(fileNamesIn(dataWith(files))));
        if (sameName(name, u"GetFormat") && arguments.size() == 1) {
            const Format format = formatIn(arguments[0]);
            return data_ != nullptr && has(*data_, format);
        }
        if (sameName(name, u"GetData") && arguments.size() <= 1)
            return dataIn(arguments.empty() || arguments[0].isMissing() ? wideText : formatIn(arguments[0]));
        throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
    }
    void put(StringView /*name*/, const Variant& /*value*/) override {
        throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
    }
    Variant call(StringView name, std::span<Variant> arguments) override { return get(name, arguments); }

    void end() override { data_.clear(); }
    QMimeData* mimeData() const override { return data_; }

  private:
    static Format formatIn(const Variant& value) {
        return static_cast<Format>(static_cast<std::uint16_t>(value.toLong()));
    }

    const QMimeData& dataWith(Format format) const {
        if (data_ == nullptr || !has(*data_, format))
            throw RuntimeError(ErrorNumber::invalidProcedureCall);
        return *data_;
    }

    Variant dataIn(Format format) const {
        const QMimeData& data = dataWith(format);
        switch (format) {
        case ansiText:
        case wideText:
            return fromQString(data.text());
        case richText:
            return fromQString(richTextIn(data));
        case bitmap: {
            const auto image = qvariant_cast<QImage>(data.imageData());
            return PictureRef(std::make_shared<BitmapPicture>(bitmapOf(image), PictureKind::bitmap));
        }
        default:
            throw RuntimeError(ErrorNumber::invalidProcedureCall);
        }
    }

    QPointer<QMimeData> data_;
};

} // namespace

std::shared_ptr<CarriedData> carriedData(const QMimeData& data) {
    return std::make_shared<MimeData>(data);
}

} // namespace lumtex::qt
