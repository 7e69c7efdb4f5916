/// \file
/// The page "A folder".
#pragma once

#include "page.h"

#include <QDir>
#include <QLabel>
#include <QLineEdit>

namespace lumtex::gallery {

/// A file browser: sorts, opens folders, and renames in place.
class FolderPage final : public Page {
    Q_OBJECT

  public:
    explicit FolderPage(const QString& folder);
    void fill() override;

    /// Leaves what is shown if there is no such folder.
    void open(const QString& folder);
    const QLabel& status() const { return *status_; }

  private:
    void read();
    void openRow(int row);
    void openParent();
    void rename(int row, const QString& text);
    void keyPressed(short& keyCode);
    QString nameIn(int row) const;

    QDir folder_;
    QLineEdit* path_ = new QLineEdit;
    QLabel* status_ = new QLabel;
};

} // namespace lumtex::gallery
