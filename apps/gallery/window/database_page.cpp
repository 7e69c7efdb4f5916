#include "database_page.h"

#include "list_texts.h"
#include "model/list_view.h"
#include "query_source.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLocale>

namespace lumtex::gallery {

using namespace Qt::StringLiterals;

namespace {

constexpr auto sampleDatabase = ":memory:"_L1;

/// Large enough to see it come.
constexpr auto sampleQuery =
    "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 200000)\n"
    "SELECT i AS Number, i * i AS Square, printf('%.4f', sqrt(i)) AS Root,\n"
    "       date('2000-01-01', i || ' days') AS Date FROM n"_L1;

} // namespace

DatabasePage::DatabasePage(const QString& database, const QString& sql)
    : Page(u"A database"_s,
           u"A file of SQLite, :memory:, or postgresql://... and a query, which only reads. Records are "
           u"shown as they "
           "come, and a large result may be stopped."_s) {
    setQuery(database.isEmpty() ? QString(sampleDatabase) : database,
             sql.isEmpty() ? QString(sampleQuery) : sql);
    constexpr int lines = 4;
    sql_->setFixedHeight(sql_->fontMetrics().lineSpacing() * lines + 12);
    sql_->setTabChangesFocus(true);
    auto* form = new QFormLayout;
    form->addRow(u"&Database"_s, database_);
    form->addRow(u"&Query"_s, sql_);
    rows().addLayout(form);
    auto* line = new QHBoxLayout;
    line->addWidget(runButton_);
    line->addWidget(stopButton_);
    line->addWidget(status_, 1);
    rows().addLayout(line);
    status_->setWordWrap(true);
    rows().addWidget(addList(), 1);
    stopButton_->setEnabled(false);
    connect(runButton_, &QPushButton::clicked, this, &DatabasePage::run);
    connect(stopButton_, &QPushButton::clicked, this, &DatabasePage::stop);
}

void DatabasePage::setQuery(const QString& database, const QString& sql) {
    database_->setText(database);
    sql_->setPlainText(sql);
}

void DatabasePage::run() {
    if (running_)
        return;
    running_ = true;
    goesOn_ = true;
    runButton_->setEnabled(false);
    stopButton_->setEnabled(true);
    status_->setText(u"Running"_s);
    list().ColumnsClear();
    list().RowsClear();
    QElapsedTimer clock;
    clock.start();
    QString outcome;
    try {
        readQuery(database_->text().toStdString(),
                  sql_->toPlainText().toStdString(),
                  list().list(),
                  [this](Long records) { return tellProgress(records); });
        outcome = u"%1 records in %2 ms"_s.arg(QLocale().toString(list().RowsCount())).arg(clock.elapsed());
        if (!goesOn_)
            outcome += ", stopped on the way"_L1;
    } catch (const Failure& failure) {
        outcome = QString::fromUtf8(failure.what());
    }
    status_->setText(outcome);
    runButton_->setEnabled(true);
    stopButton_->setEnabled(false);
    running_ = false;
}

/// What the user does meanwhile happens here; `stop` is among it.
bool DatabasePage::tellProgress(int records) {
    status_->setText(u"%1 records"_s.arg(QLocale().toString(records)));
    QCoreApplication::processEvents();
    return goesOn_;
}

} // namespace lumtex::gallery
