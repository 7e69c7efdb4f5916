#include "page.h"

#include <QApplication>
#include <QLabel>

namespace lumtex::gallery {

Page::Page(const QString& title, const QString& hint) : title_(title), rows_(new QVBoxLayout(this)) {
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { choose(now); });
    auto* label = new QLabel(hint);
    label->setWordWrap(true);
    rows_->addWidget(label);
}

/// The focus leaves a page that ends, which then is no page any more.
Page::~Page() {
    disconnect(qApp, nullptr, this, nullptr);
}

LumtexListView* Page::addList() {
    auto* list = new LumtexListView(this);
    list->setRowsDynamic(false);
    list->installEventFilter(this);
    if (list_ == nullptr)
        list_ = list;
    return list;
}

/// What has the focus is the list, or lies in it.
void Page::choose(QWidget* focused) {
    while (focused != nullptr && qobject_cast<LumtexListView*>(focused) == nullptr)
        focused = focused->parentWidget();
    if (focused == nullptr || focused == list_ || !isAncestorOf(focused))
        return;
    list_ = static_cast<LumtexListView*>(focused);
    Q_EMIT listChosen();
}

bool Page::eventFilter(QObject* watched, QEvent* event) {
    auto* list = static_cast<LumtexListView*>(watched);
    // A list that is resized moves its bars; whether they are needed it finds out when it is asked.
    if (event->type() == QEvent::Resize)
        QMetaObject::invokeMethod(list, &LumtexListView::CheckScroll, Qt::QueuedConnection);
    return QWidget::eventFilter(watched, event);
}

} // namespace lumtex::gallery
