/// \file
/// What the pages of the gallery's window have in common.
#pragma once

#include "qt/lumtex_list_view.h"

#include <QEvent>
#include <QString>
#include <QVBoxLayout>
#include <QWidget>

namespace lumtex::gallery {

/// A title, one sentence that says what to try, and lists with whatever belongs to them.
class Page : public QWidget {
    Q_OBJECT

  public:
    Page(const QString& title, const QString& hint);
    Page(const Page&) = delete;
    Page& operator=(const Page&) = delete;
    ~Page() override;

    const QString& title() const { return title_; }
    /// The list that the property panel shows and changes.
    LumtexListView& list() const { return *list_; }
    /// To be called when the page is first shown, and only then: pages that nobody looks at cost nothing.
    virtual void fill() = 0;
    /// Something is under way that ends by itself.
    virtual bool isBusy() const { return false; }
    /// Ends what is under way, since the window closes.
    virtual void stop() {}

  Q_SIGNALS:
    /// The property panel is to show another list.
    void listChosen();

  protected:
    QVBoxLayout& rows() { return *rows_; }
    /// A new list of this page, with rows of one height. The first one is what `list` gives, and then the one
    /// that had the focus last.
    LumtexListView* addList();
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void choose(QWidget* focused);

    QString title_;
    QVBoxLayout* rows_;
    LumtexListView* list_ = nullptr;
};

} // namespace lumtex::gallery
