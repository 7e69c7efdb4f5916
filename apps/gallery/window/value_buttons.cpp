#include "value_buttons.h"

#include <QColorDialog>
#include <QFileDialog>
#include <QFontDialog>
#include <QImageReader>
#include <QMessageBox>

namespace lumtex::gallery {

namespace {

using namespace Qt::StringLiterals;

/// Buttons stand below each other and look alike.
void makePlain(QPushButton& button) {
    button.setStyleSheet(u"text-align: left; padding: 2px 6px"_s);
}

QString picturePatterns() {
    QStringList patterns;
    for (const QByteArray& format : QImageReader::supportedImageFormats())
        patterns.append("*."_L1 + QString::fromLatin1(format));
    return u"Pictures (%1)"_s.arg(patterns.join(u' '));
}

} // namespace

ColorButton::ColorButton() {
    makePlain(*this);
    connect(this, &QPushButton::clicked, this, [this] {
        const QColor color = QColorDialog::getColor(color_, window(), accessibleName());
        if (color.isValid())
            Q_EMIT chosen(color);
    });
}

void ColorButton::display(QColor color) {
    color_ = color;
    QPixmap swatch(24, 14);
    swatch.fill(color);
    setIcon(swatch);
    setIconSize(swatch.size());
    setText(color.name());
}

FontButton::FontButton() {
    makePlain(*this);
    connect(this, &QPushButton::clicked, this, [this] {
        bool accepted = false;
        const QFont font = QFontDialog::getFont(&accepted, font_, window(), accessibleName());
        if (accepted)
            Q_EMIT chosen(font);
    });
}

void FontButton::display(const QFont& font) {
    font_ = font;
    QString text = u"%1, %2 pt"_s.arg(font.family()).arg(font.pointSizeF());
    if (font.bold())
        text += ", bold"_L1;
    if (font.italic())
        text += ", italic"_L1;
    setText(text);
}

PictureButton::PictureButton() {
    makePlain(*this);
    connect(this, &QPushButton::clicked, this, [this] {
        const QString file = QFileDialog::getOpenFileName(window(), accessibleName(), {}, picturePatterns());
        if (file.isEmpty())
            return;
        const QPixmap picture(file);
        if (picture.isNull())
            QMessageBox::warning(
                window(), accessibleName(), u"%1 is no picture that can be read."_s.arg(file));
        else
            Q_EMIT chosen(picture, file);
    });
}

void PictureButton::display(const QPixmap& picture) {
    constexpr int most = 20;
    if (picture.isNull()) {
        setIcon({});
        setText(u"none"_s);
        return;
    }
    setIcon(picture.scaled(most, most, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    setText(u"%1 × %2"_s.arg(picture.width()).arg(picture.height()));
}

} // namespace lumtex::gallery
