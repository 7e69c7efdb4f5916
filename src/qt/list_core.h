/// \file
/// The list of a widget with its host, its world and its events.
#pragma once

#include "model/list_view.h"
#include "platform/host.h"
#include "qt/widget_events.h"
#include "worlds/qt/qt_world.h"

#include <QLineEdit>
#include <QPointer>
#include <QSize>
#include <memory>

namespace lumtex::qt {

/// The widget as the host of its list.
class WidgetHost final : public Host {
  public:
    explicit WidgetHost(QWidget& widget) : widget_(&widget) {}

    bool UserMode() const override { return !designed; }
    String extenderName() const override;
    FontRef parentFont() const override;
    /// Emits the notifying signal of the property.
    void PropertyChanged(StringView name) override;
    /// How often a property was told of so far.
    int told() const { return told_; }

    bool designed = false;

  private:
    QPointer<QWidget> widget_;
    int told_ = 0;
};

/// Held by the widget, and by whatever runs in it.
class ListCore : public std::enable_shared_from_this<ListCore> {
  public:
    ListCore(QWidget& widget, std::unique_ptr<QtWorld> world, std::unique_ptr<WidgetEvents> events);

    /// There until `end` returns.
    lmListView& list() { return *list_; }
    WidgetHost& host() { return host_; }
    QtWorld& world() { return *world_; }
    /// The widget in the widget that shows the list and takes all input; null once it has gone.
    ScreenWidget* screen();
    /// The field of the list's editor, open or not; null once it has gone.
    QLineEdit* field();
    /// The widget goes, or has another list from now on: no signal is raised any more, nothing is reported,
    /// and the list ends as soon as its last call has returned, which holds the core until then.
    void end();
    bool isEnding() const { return ends_; }
    /// Units of widgets.
    void resize(QSize size);

    /// Runs `work`, which may throw what a conversion throws: that is reported under the name of the member.
    /// Does nothing once the list is ending.
    Variant entered(StringView member, const std::function<Variant()>& work);

  private:
    void followDensity();

    WidgetHost host_;
    QSize size_;
    std::unique_ptr<QtWorld> world_;
    std::unique_ptr<WidgetEvents> events_;
    std::unique_ptr<lmListView> list_;
    bool ends_ = false;
};

} // namespace lumtex::qt
