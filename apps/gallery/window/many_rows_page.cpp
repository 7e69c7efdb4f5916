#include "many_rows_page.h"

#include "list_texts.h"
#include "sample_rows.h"

#include <QElapsedTimer>
#include <QHBoxLayout>
#include <QLocale>
#include <algorithm>
#include <array>

namespace lumtex::gallery {

using namespace Qt::StringLiterals;

namespace {

enum Columns { numberColumn = 1, nameColumn, cityColumn, amountColumn, dateColumn };

/// By column.
constexpr std::array sortTypes{LumtexListView::cSortNumeric,
                               LumtexListView::cSortText,
                               LumtexListView::cSortText,
                               LumtexListView::cSortNumeric,
                               LumtexListView::cSortDate};

/// What the pattern language of the list takes for itself stands in brackets.
QString literally(const QString& text) {
    QString pattern;
    for (const QChar c : text) {
        if (u"*?#["_s.contains(c))
            pattern += u'[' + c + u']';
        else
            pattern += c;
    }
    return pattern;
}

} // namespace

ManyRowsPage::ManyRowsPage()
    : Page(u"A million rows"_s,
           u"Load them and go on working: scroll while they come. A header sorts, numbers and dates as such; "
           u"Enter in the "
           "field below looks for the next cell with a text."_s) {
    constexpr int million = 1'000'000;
    count_->setRange(1, 10 * million);
    count_->setValue(million);
    count_->setGroupSeparatorShown(true);
    count_->setSuffix(u" rows"_s);
    count_->setSingleStep(million / 10);
    count_->setAccessibleName(u"How many"_s);
    progress_->setTextVisible(true);
    auto* top = new QHBoxLayout;
    top->addWidget(count_);
    top->addWidget(loadButton_);
    top->addWidget(progress_, 1);
    rows().addLayout(top);

    LumtexListView* list = addList();
    rows().addWidget(list, 1);

    auto* next = new QPushButton(u"Find &next"_s);
    sought_->setPlaceholderText(u"Find"_s);
    sought_->setAccessibleName(u"Find"_s);
    sought_->setObjectName(u"sought"_s);
    anyCase_->setChecked(true);
    auto* bottom = new QHBoxLayout;
    bottom->addWidget(sought_);
    bottom->addWidget(anyCase_);
    bottom->addWidget(next);
    bottom->addWidget(status_, 1);
    rows().addLayout(bottom);

    addColumn(*list, u"Number"_s, 80, LumtexListView::cColumnRight);
    addColumn(*list, u"Name"_s, 160);
    addColumn(*list, u"City"_s, 110);
    addColumn(*list, u"Amount"_s, 90, LumtexListView::cColumnRight);
    addColumn(*list, u"Date"_s, 100);
    list->setWheelScrollLines(3);
    loadButton_->setText(u"&Load"_s);
    connect(loadButton_, &QPushButton::clicked, this, [this] {
        if (isBusy())
            finishLoading();
        else
            load(count_->value());
    });
    connect(&loader_, &QTimer::timeout, this, &ManyRowsPage::loadSome);
    connect(list, &LumtexListView::ColumnClick, this, [this](int& column) { sort(column); });
    const auto findNext = [this] { find(sought_->text()); };
    connect(next, &QPushButton::clicked, this, findNext);
    connect(sought_, &QLineEdit::returnPressed, this, findNext);
}

void ManyRowsPage::fill() {
    load(count_->value());
}

void ManyRowsPage::stop() {
    loader_.stop();
}

void ManyRowsPage::load(int count) {
    wanted_ = count;
    list().Sort(-1);
    list().RowsClear();
    list().setAutoRedraw(false);
    list().setAutoCheckScroll(false);
    progress_->setRange(0, count);
    progress_->setValue(0);
    loadButton_->setText(u"&Stop"_s);
    say({});
    loader_.start(0);
}

/// As many rows as fit between two frames; all else happens between two calls.
void ManyRowsPage::loadSome() {
    constexpr int millisecondsOfLoading = 12;
    constexpr int rowsAtOnce = 200;
    constexpr QChar separator(0x1F);
    QElapsedTimer clock;
    clock.start();
    int row = list().RowsCount();
    while (row < wanted_ && clock.elapsed() < millisecondsOfLoading) {
        for (int i = 0; i < rowsAtOnce && row < wanted_; ++i) {
            const SampleRow sample = sampleRow(++row);
            list().RowsAdd(-1,
                           separator,
                           QString::number(row) + separator + sample.name + separator + sample.city +
                               separator + QString::number(sample.amount, 'f', 2) + separator +
                               sample.date.toString(Qt::ISODate));
            list().setItemAlignment(row, numberColumn, LumtexListView::cItemRight);
            list().setItemAlignment(row, amountColumn, LumtexListView::cItemRight);
        }
    }
    progress_->setValue(row);
    list().CheckScroll();
    list().Redraw();
    if (row >= wanted_)
        finishLoading();
}

void ManyRowsPage::finishLoading() {
    loader_.stop();
    loadButton_->setText(u"&Load"_s);
    list().setAutoCheckScroll(true);
    list().setAutoRedraw(true);
    list().CheckScroll();
    say(u"%1 rows"_s.arg(QLocale().toString(list().RowsCount())));
}

void ManyRowsPage::sort(int column) {
    if (isBusy() || column < numberColumn || column > dateColumn)
        return;
    QElapsedTimer clock;
    clock.start();
    setCursor(Qt::WaitCursor);
    sortByHeader(list(), column, sortTypes.at(static_cast<std::size_t>(column) - 1));
    unsetCursor();
    say(u"Sorted in %1 ms"_s.arg(clock.elapsed()));
}

namespace {

/// Rows from `first` to `last`, as searches name them: a range of one row is no range.
QString rowsBetween(int first, int last) {
    return first == last ? u"%1,"_s.arg(first) : u"%1-%2,"_s.arg(first).arg(last);
}

} // namespace

bool ManyRowsPage::find(const QString& text) {
    const int current = list().ListIndex() + 1;
    const int last = list().RowsCount();
    if (text.isEmpty() || last == 0)
        return false;
    QElapsedTimer clock;
    clock.start();
    // A search of the list that goes on from its last hit leaves columns out, so each begins behind the
    // current row, and then once more at the top.
    int row = current < last ? findBetween(text, current + 1, last) : 0;
    if (row == 0)
        row = findBetween(text, 1, std::max(current, 1));
    if (row == 0) {
        say(u"No cell holds it (%1 ms)"_s.arg(clock.elapsed()));
        return false;
    }
    goToRow(list(), row);
    say(u"Row %1 (%2 ms)"_s.arg(QLocale().toString(row)).arg(clock.elapsed()));
    return true;
}

int ManyRowsPage::findBetween(const QString& text, int first, int last) {
    const auto compare = anyCase_->isChecked() ? LumtexListView::cFindText : LumtexListView::cFindBinary;
    const QVariantMap found = list().FindItem(
        u'*' + literally(text) + u'*', LumtexListView::cFindStart, compare, u"*"_s, rowsBetween(first, last));
    return found.value(u"FindSuccessful"_s).toBool() ? first - 1 + found.value(u"FindRow"_s).toInt() : 0;
}

} // namespace lumtex::gallery
