/// \file
/// Buttons that show a colour, a font or a picture, and let the user choose another.
#pragma once

#include <QColor>
#include <QFont>
#include <QPixmap>
#include <QPushButton>

namespace lumtex::gallery {

class ColorButton final : public QPushButton {
    Q_OBJECT

  public:
    ColorButton();
    void display(QColor color);

  Q_SIGNALS:
    void chosen(QColor color);

  private:
    QColor color_;
};

class FontButton final : public QPushButton {
    Q_OBJECT

  public:
    FontButton();
    void display(const QFont& font);

  Q_SIGNALS:
    void chosen(const QFont& font);

  private:
    QFont font_;
};

class PictureButton final : public QPushButton {
    Q_OBJECT

  public:
    PictureButton();
    void display(const QPixmap& picture);

  Q_SIGNALS:
    /// `file` is where it was read from.
    void chosen(const QPixmap& picture, const QString& file);
};

} // namespace lumtex::gallery
