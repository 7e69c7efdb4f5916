/// \file
/// The page "A million rows".
#pragma once

#include "page.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSpinBox>
#include <QTimer>

namespace lumtex::gallery {

/// Loads bit by bit, so that the window goes on; searches, and sorts by each type.
class ManyRowsPage final : public Page {
    Q_OBJECT

  public:
    ManyRowsPage();
    void fill() override;
    bool isBusy() const override { return loader_.isActive(); }
    void stop() override;

    /// Begins anew with this many rows.
    void load(int count);
    /// The next row with a cell that holds `text` becomes the current one. False: there is none.
    bool find(const QString& text);

  private:
    void loadSome();
    void finishLoading();
    void sort(int column);
    /// The first row that has such a cell; 0 if there is none.
    int findBetween(const QString& text, int first, int last);
    void say(const QString& text) { status_->setText(text); }

    QSpinBox* count_ = new QSpinBox;
    QPushButton* loadButton_ = new QPushButton;
    QProgressBar* progress_ = new QProgressBar;
    QLineEdit* sought_ = new QLineEdit;
    QCheckBox* anyCase_ = new QCheckBox(QStringLiteral("&Any case"));
    QLabel* status_ = new QLabel;
    QTimer loader_;
    int wanted_ = 0;
};

} // namespace lumtex::gallery
