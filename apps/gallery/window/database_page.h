/// \file
/// The page "A database".
#pragma once

#include "page.h"

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

namespace lumtex::gallery {

/// Shows what a query yields, told of progress and stopped on the way if wanted.
class DatabasePage final : public Page {
    Q_OBJECT

  public:
    /// Without a database, a sample that SQLite makes in memory.
    DatabasePage(const QString& database, const QString& sql);
    void fill() override { run(); }
    void stop() override { goesOn_ = false; }

    void setQuery(const QString& database, const QString& sql);
    /// Returns once all records are there. One that is called while another runs does nothing.
    void run();
    const QLabel& status() const { return *status_; }

  private:
    bool tellProgress(int records);

    QLineEdit* database_ = new QLineEdit;
    QPlainTextEdit* sql_ = new QPlainTextEdit;
    QPushButton* runButton_ = new QPushButton(QStringLiteral("&Run"));
    QPushButton* stopButton_ = new QPushButton(QStringLiteral("S&top"));
    QLabel* status_ = new QLabel;
    bool running_ = false;
    bool goesOn_ = true;
};

} // namespace lumtex::gallery
