/// \file
/// The page "Events".
#pragma once

#include "page.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QMetaMethod>
#include <deque>

namespace lumtex::gallery {

/// A list, and a log of all its events with their arguments, which is a list too.
class EventsPage final : public Page {
    Q_OBJECT

  public:
    EventsPage();
    void fill() override;

    LumtexListView& log() { return *log_; }
    /// Shows the events alone whose name holds one of these words; all without any.
    void filter(const QString& words);

  private:
    struct Entry {
        int number;
        QString name;
        QString arguments;
    };

    void hear(const QMetaMethod& signal, const QVariantList& arguments);
    bool isWanted(const Entry& entry) const;
    static QStringList textsOf(const Entry& entry);
    void display(const Entry& entry);
    void displayAll();

    LumtexListView* log_;
    QLineEdit* filter_ = new QLineEdit;
    QCheckBox* mouseMoves_ = new QCheckBox(QStringLiteral("&Moves of the mouse too"));
    std::deque<Entry> entries_;
    int heard_ = 0;
};

} // namespace lumtex::gallery
