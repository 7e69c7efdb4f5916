#include "signal_relay.h"

#include "qt/qt_object.h"
#include "qt/qt_values.h"
#include "worlds/qt/qt_text.h"

#include <type_traits>

namespace lumtex::testing {

namespace {

/// An argument of a signal as that of a handler, and back.
template <class Received>
class Relayed {
  public:
    explicit Relayed(Received& received) : received_(received) {}
    Received& value() { return received_; }

  private:
    Received& received_;
};

template <>
class Relayed<const QString> {
  public:
    explicit Relayed(const QString& received) : value_(qt::fromQString(received)) {}
    const String& value() { return value_; }

  private:
    String value_;
};

template <>
class Relayed<QVariant> {
  public:
    explicit Relayed(QVariant& received) : received_(received), value_(qt::fromQVariant(received)) {}
    Relayed(const Relayed&) = delete;
    Relayed& operator=(const Relayed&) = delete;
    ~Relayed() { received_ = qt::toQVariant(value_); }
    Variant& value() { return value_; }

  private:
    QVariant& received_;
    Variant value_;
};

template <>
class Relayed<QObject*> {
  public:
    explicit Relayed(QObject* object)
        : value_(object != nullptr ? std::make_shared<qt::QtObject>(object) : nullptr) {}
    DragData& value() { return value_; }

  private:
    DragData value_;
};

template <class... Signal, class... Handler>
void relay(LumtexListView& widget,
           lmListViewEvents& events,
           void (LumtexListView::*signal)(Signal...),
           void (lmListViewEvents::*handler)(Handler...)) {
    QObject::connect(&widget, signal, [&events, handler](Signal... arguments) {
        (events.*handler)(Relayed<std::remove_reference_t<Signal>>(arguments).value()...);
    });
}

} // namespace

SignalRelay::SignalRelay(LumtexListView& widget, lmListViewEvents& events) {
    const auto all = [&](auto... pairs) { (relay(widget, events, pairs.first, pairs.second), ...); };
    using Widget = LumtexListView;
    using Events = lmListViewEvents;
    all(std::pair(&Widget::Click, &Events::Click),
        std::pair(&Widget::DblClick, &Events::DblClick),
        std::pair(&Widget::ItemCheck, &Events::ItemCheck),
        std::pair(qOverload<int, int, bool>(&Widget::ItemChecked), &Events::ItemChecked),
        std::pair(&Widget::MouseUp, &Events::MouseUp),
        std::pair(&Widget::MouseMove, &Events::MouseMove),
        std::pair(&Widget::MouseDown, &Events::MouseDown),
        std::pair(&Widget::ColumnClick, &Events::ColumnClick),
        std::pair(&Widget::Scroll, &Events::Scroll),
        std::pair(&Widget::KeyDown, &Events::KeyDown),
        std::pair(&Widget::KeyPress, &Events::KeyPress),
        std::pair(&Widget::KeyUp, &Events::KeyUp),
        std::pair(&Widget::OLECompleteDrag, &Events::OLECompleteDrag),
        std::pair(&Widget::OLEDragDrop, &Events::OLEDragDrop),
        std::pair(&Widget::OLEDragOver, &Events::OLEDragOver),
        std::pair(&Widget::OLEGiveFeedback, &Events::OLEGiveFeedback),
        std::pair(&Widget::OLESetData, &Events::OLESetData),
        std::pair(&Widget::OLEStartDrag, &Events::OLEStartDrag),
        std::pair(&Widget::ErrorWrongIndex, &Events::ErrorWrongIndex),
        std::pair(&Widget::SortDone, &Events::SortDone),
        std::pair(&Widget::ListViewError, &Events::ListViewError),
        std::pair(&Widget::ItemClick, &Events::ItemClick),
        std::pair(&Widget::ItemDblClick, &Events::ItemDblClick),
        std::pair(&Widget::ItemDown, &Events::ItemDown),
        std::pair(&Widget::ItemUp, &Events::ItemUp),
        std::pair(&Widget::ItemChanged, &Events::ItemChanged),
        std::pair(&Widget::ItemOver, &Events::ItemOver));
}

} // namespace lumtex::testing
