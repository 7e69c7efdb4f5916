#include "worlds/qt/qt_runtime.h"

#include "values/image_check.h"
#include "values/picture_image.h"
#include "values/runtime_error.h"
#include "values/version.h"
#include "values/windows_1252.h"
#include "worlds/common/nesting_level.h"
#include "worlds/qt/qt_picture.h"
#include "worlds/qt/qt_text.h"
#include "worlds/qt/users_language.h"
#include "worlds/qt/users_locale.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QDateTime>
#include <QDesktopServices>
#include <QMessageBox>
#include <QPointer>
#include <QSettings>
#include <QUrl>
#include <algorithm>

namespace lumtex::qt {

namespace {

constexpr Double millisecondsPerDay = 24.0 * 60 * 60 * 1000;
constexpr const char* organisation = "Lumtex";
constexpr const char* application = "LumtexListView";

/// What Qt calls the decoder; null for a kind that pictures of settings do not have.
const char* decoderOf(ImageFormat format) {
    switch (format) {
    case ImageFormat::bitmap:
        return "BMP";
    case ImageFormat::icon:
        return "ICO";
    case ImageFormat::cursor:
        return "CUR";
    default:
        return nullptr;
    }
}

} // namespace

QtRuntime::QtRuntime(worlds::Pointer& pointer)
    : pointer_(pointer), component_{.exeName = u"LumtexListView",
                                    .folder = fromQString(QCoreApplication::applicationDirPath()),
                                    .major = versionMajor,
                                    .minor = versionMinor,
                                    .revision = versionRevision} {
    letUsersLocale(usersLocale());
}

bool QtRuntime::isQuitting() const {
    return QCoreApplication::instance() == nullptr || QCoreApplication::closingDown();
}

void QtRuntime::DoEvents() {
    if (areYieldsHeld() || yieldDepth_ == deepestYield || isQuitting())
        return;
    const worlds::NestingLevel level(yieldDepth_);
    for (int pass = 0; pass < mostPasses; ++pass) {
        QAbstractEventDispatcher* dispatcher = QAbstractEventDispatcher::instance();
        if (dispatcher == nullptr || !dispatcher->processEvents(QEventLoop::AllEvents))
            break;
    }
    lastYield_ = std::chrono::steady_clock::now();
}

bool QtRuntime::hasPendingEvents() const {
    constexpr std::chrono::milliseconds sameMoment{1};
    return std::chrono::steady_clock::now() - lastYield_ >= sameMoment;
}

void QtRuntime::messageBox(StringView text, BoxStyle style, StringView title) {
    if (isQuitting())
        return;
    if (!areYieldsHeld()) {
        showBox(text, style, title);
        return;
    }
    QMetaObject::invokeMethod(
        QCoreApplication::instance(),
        [shown = String(text), style, heading = String(title)] { showBox(shown, style, heading); },
        Qt::QueuedConnection);
}

void QtRuntime::showBox(StringView text, BoxStyle style, StringView title) {
    const worlds::NestingLevel level(openBoxes);
    // Not on the stack: the widget that it lies over may take it along.
    const QPointer<QMessageBox> box(new QMessageBox(QApplication::activeWindow()));
    box->setText(toQString(text));
    box->setTextFormat(Qt::PlainText);
    box->setWindowTitle(toQString(title));
    box->setIcon(style == BoxStyle::critical ? QMessageBox::Critical : QMessageBox::NoIcon);
    box->exec();
    delete box.data();
}

std::optional<String> QtRuntime::text(StringView key, StringView name) const {
    const QSettings settings(QString::fromLatin1(organisation), QString::fromLatin1(application));
    const QString path = QString(toQString(key) + u'/' + toQString(name)).replace(u'\\', u'/');
    const QVariant value = settings.value(path);
    return value.isValid() ? std::optional(fromQString(value.toString())) : std::nullopt;
}

Date QtRuntime::now() const {
    const QDateTime moment = QDateTime::currentDateTime();
    const qint64 days = QDate(1899, 12, 30).daysTo(moment.date());
    return {static_cast<Double>(days) + moment.time().msecsSinceStartOfDay() / millisecondsPerDay};
}

words::Language QtRuntime::language() const {
    return usersLanguage();
}

void QtRuntime::toAnsi(StringView text, std::span<Byte> bytes) const {
    std::transform(text.begin(), text.end(), bytes.begin(), toWindows1252);
}
void QtRuntime::fromAnsi(std::span<const Byte> bytes, std::span<char16_t> text) const {
    std::transform(bytes.begin(), bytes.end(), text.begin(), fromWindows1252);
}

std::vector<Byte> QtRuntime::imageOfPicture(const Picture& picture) const {
    return lumtex::imageOfPicture(picture);
}

PictureRef QtRuntime::pictureOfImage(std::span<const Byte> image) const {
    const ImageFormat format = checkImage(image);
    const char* decoder = decoderOf(format);
    if (decoder == nullptr)
        throw RuntimeError(ErrorNumber::invalidPicture);
    const QImage decoded = QImage::fromData(image.data(), static_cast<int>(image.size()), decoder);
    if (decoded.isNull())
        throw RuntimeError(ErrorNumber::invalidPicture);
    const auto kind = format == ImageFormat::bitmap ? PictureKind::bitmap : PictureKind::icon;
    return std::make_shared<BitmapPicture>(bitmapOf(decoded), kind);
}

ObjectRef QtRuntime::createObject(StringView programId) {
    const auto found = factories.find(String(programId));
    if (found == factories.end() || !found->second)
        throw RuntimeError(ErrorNumber::cannotCreateObject);
    return found->second();
}

void QtRuntime::playSound(StringView file) {
    sounds_.play(toQString(file));
}

SystemVersion QtRuntime::systemVersion() const {
    return {2, 5, 1};
}

bool QtRuntime::wasPressed(MouseButton button) {
    const bool isDown = (pointer_.buttons() & button) != 0;
    return pointer_.takePressed(button) || isDown;
}

void QtRuntime::open(const OpenRequest& request) {
    QDesktopServices::openUrl(QUrl::fromUserInput(toQString(request.file), toQString(request.folder)));
}

Long QtRuntime::currentProcessId() const {
    return static_cast<Long>(QCoreApplication::applicationPid());
}

std::optional<std::vector<ProcessEntry>> QtRuntime::processes() const {
    return std::vector<ProcessEntry>{
        {currentProcessId(), fromQString(QCoreApplication::applicationFilePath())}};
}

} // namespace lumtex::qt
