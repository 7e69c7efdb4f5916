/// \file
/// The page "Content files".
#pragma once

#include "page.h"

#include <QLabel>
#include <QLineEdit>
#include <QTemporaryDir>

namespace lumtex::gallery {

/// A list that is saved, one that is loaded, and what differs between them.
class ContentPage final : public Page {
    Q_OBJECT

  public:
    ContentPage();
    void fill() override;

    LumtexListView& saved() { return *saved_; }
    LumtexListView& loaded() { return *loaded_; }
    void save();
    void load();
    /// Marks the cells whose text, bold face or text colour differ, and returns how many there are.
    int compare();
    const QLabel& status() const { return *status_; }

  private:
    QTemporaryDir folder_;
    QLineEdit* path_ = new QLineEdit;
    QLabel* status_ = new QLabel;
    LumtexListView* saved_;
    LumtexListView* loaded_;
};

} // namespace lumtex::gallery
