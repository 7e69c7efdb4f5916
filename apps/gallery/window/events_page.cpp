#include "events_page.h"

#include "event_tap.h"
#include "list_texts.h"
#include "sample_rows.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QSplitter>
#include <algorithm>

namespace lumtex::gallery {

using namespace Qt::StringLiterals;

namespace {

constexpr std::size_t mostEntries = 10'000;

QString textOf(const QVariant& value) {
    if (value.metaType() == QMetaType::fromType<QObject*>()) {
        const auto* object = value.value<QObject*>();
        return object != nullptr ? QString::fromLatin1(object->metaObject()->className()) : u"Nothing"_s;
    }
    if (value.typeId() == QMetaType::QString)
        return u'"' + value.toString() + u'"';
    return value.toString();
}

/// A signal of a setting tells the property panel, it is no event of the list.
bool isEvent(const QMetaMethod& signal) {
    const QByteArray name = signal.name();
    return !(name.endsWith("Changed") && signal.parameterCount() == 0) &&
           signal.enclosingMetaObject() == &LumtexListView::staticMetaObject;
}

} // namespace

EventsPage::EventsPage()
    : Page(u"Events"_s,
           u"What the list above tells while you use it, with the arguments, newest first. Words in the "
           u"field leave the "
           u"events alone "
           "whose names hold one of them."_s) {
    LumtexListView* list = addList();
    log_ = addList();
    auto* split = new QSplitter(Qt::Vertical);
    split->addWidget(list);
    auto* below = new QWidget;
    auto* column = new QVBoxLayout(below);
    column->setContentsMargins(0, 0, 0, 0);
    auto* line = new QHBoxLayout;
    auto* clear = new QPushButton(u"&Clear"_s);
    filter_->setPlaceholderText(u"Filter, such as: item click"_s);
    filter_->setAccessibleName(u"Filter"_s);
    filter_->setClearButtonEnabled(true);
    line->addWidget(filter_, 1);
    line->addWidget(mouseMoves_);
    line->addWidget(clear);
    column->addLayout(line);
    column->addWidget(log_, 1);
    split->addWidget(below);
    rows().addWidget(split, 1);

    addColumn(*log_, u"No."_s, 60, LumtexListView::cColumnRight);
    addColumn(*log_, u"Event"_s, 150);
    addColumn(*log_, u"Arguments"_s, 420);
    connect(filter_, &QLineEdit::textChanged, this, &EventsPage::displayAll);
    connect(mouseMoves_, &QCheckBox::toggled, this, &EventsPage::displayAll);
    connect(clear, &QPushButton::clicked, this, [this] {
        entries_.clear();
        displayAll();
    });
    // The tap belongs to the list.
    new EventTap(*list, isEvent, [this](const QMetaMethod& signal, const QVariantList& arguments) {
        hear(signal, arguments);
    });
}

void EventsPage::fill() {
    constexpr int count = 25;
    const PaintOnce once(list());
    list().setStyle(LumtexListView::cCheckBoxes);
    list().setAllowEdit(true);
    list().setMultiSelect(true);
    addColumn(list(), u"Name"_s, 170);
    addColumn(list(), u"City"_s, 110);
    addColumn(list(), u"Amount"_s, 90, LumtexListView::cColumnRight);
    list().setColumnCheckBoxes(1, true);
    for (int column = 1; column <= 3; ++column)
        list().setColumnAllowSorting(column, true);
    for (int i = 1; i <= count; ++i) {
        const SampleRow sample = sampleRow(i);
        addRow(list(), {sample.name, sample.city, QString::number(sample.amount, 'f', 2)});
        list().setItemAllowEdit(i, 2, true);
    }
}

void EventsPage::filter(const QString& words) {
    filter_->setText(words);
}

void EventsPage::hear(const QMetaMethod& signal, const QVariantList& arguments) {
    QStringList texts;
    const QList<QByteArray> names = signal.parameterNames();
    for (qsizetype i = 0; i < arguments.size(); ++i)
        texts.append(QString::fromLatin1(names[i]) + u'=' + textOf(arguments[i]));
    entries_.push_back({++heard_, QString::fromLatin1(signal.name()), texts.join(", "_L1)});
    if (entries_.size() > mostEntries)
        entries_.pop_front();
    if (isWanted(entries_.back()))
        display(entries_.back());
}

bool EventsPage::isWanted(const Entry& entry) const {
    if (!mouseMoves_->isChecked() && (entry.name == "MouseMove"_L1 || entry.name == "ItemOver"_L1))
        return false;
    const QStringList words = filter_->text().split(u' ', Qt::SkipEmptyParts);
    return words.isEmpty() || std::any_of(words.begin(), words.end(), [&](const QString& word) {
               return entry.name.contains(word, Qt::CaseInsensitive);
           });
}

QStringList EventsPage::textsOf(const Entry& entry) {
    return {QString::number(entry.number), entry.name, entry.arguments};
}

void EventsPage::display(const Entry& entry) {
    addRow(*log_, textsOf(entry), 0);
}

void EventsPage::displayAll() {
    const PaintOnce once(*log_);
    log_->RowsClear();
    for (auto entry = entries_.rbegin(); entry != entries_.rend(); ++entry) {
        if (isWanted(*entry))
            addRow(*log_, textsOf(*entry));
    }
}

} // namespace lumtex::gallery
