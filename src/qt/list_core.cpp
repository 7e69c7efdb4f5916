#include "qt/list_core.h"

#include "guards/procedure.h"
#include "qt/qt_values.h"
#include "worlds/qt/qt_text.h"
#include "worlds/qt/qt_text_box.h"
#include "worlds/qt/qt_window.h"

#include <QMetaMethod>
#include <QMetaProperty>
#include <QWidget>
#include <cmath>
#include <utility>

namespace lumtex::qt {

String WidgetHost::extenderName() const {
    return widget_ != nullptr ? fromQString(widget_->objectName()) : String();
}

FontRef WidgetHost::parentFont() const {
    if (widget_ == nullptr)
        return nullptr;
    return fromQVariant(widget_->font()).toFont();
}

void WidgetHost::PropertyChanged(StringView name) {
    ++told_;
    if (widget_ == nullptr)
        return;
    const QMetaObject* meta = widget_->metaObject();
    const int index = meta->indexOfProperty(toQString(name).toUtf8().constData());
    if (index >= 0 && meta->property(index).hasNotifySignal())
        meta->property(index).notifySignal().invoke(widget_, Qt::DirectConnection);
}

ListCore::ListCore(QWidget& widget, std::unique_ptr<QtWorld> world, std::unique_ptr<WidgetEvents> events)
    : host_(widget), world_(std::move(world)), events_(std::move(events)),
      list_(std::make_unique<lmListView>(*world_, host_, *events_)) {
    world_->onDensity = [this] { followDensity(); };
}

void ListCore::end() {
    if (std::exchange(ends_, true))
        return;
    const std::shared_ptr<ListCore> self = weak_from_this().lock();
    events_->muted = true;
    list_->outlivedBy(self);
    delete list_.get();
    static_cast<void>(list_.release());
}

ScreenWidget* ListCore::screen() {
    return static_cast<QtWindow&>(list_->window()).screen();
}

QLineEdit* ListCore::field() {
    const auto* box = dynamic_cast<QtTextBox*>(world_->tree().find(list_->hwndEdit()));
    return box != nullptr ? box->field() : nullptr;
}

void ListCore::followDensity() {
    if (list_ == nullptr)
        return;
    resize(size_);
    // The reach of the bars is counted in pixels.
    if (list_ != nullptr && list_->AutoCheckScroll())
        list_->CheckScroll();
}

void ListCore::resize(QSize size) {
    size_ = size;
    const auto pixels = [&](int units) { return static_cast<Single>(std::ceil(units * world_->ratio())); };
    list_->window().place(0, 0, pixels(size.width()), pixels(size.height()));
}

Variant ListCore::entered(StringView member, const std::function<Variant()>& work) {
    // Of a list that ends, only half may be left.
    if (ends_)
        return {};
    Procedure p(world_->runtime(), member, ModuleKind::control, u"LumtexListView");
    return p.value<Variant>(work);
}

} // namespace lumtex::qt
