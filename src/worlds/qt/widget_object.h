/// \file
/// A widget of the program as an object in a cell.
#pragma once

#include "platform/window_handle.h"
#include "values/references/object.h"

#include <QPointer>
#include <QWidget>

namespace lumtex::qt {

/// Has the members by which a list shows an object over its cell: `hWnd`, `Visible`, `Enabled`, `Left`,
/// `Top`, `Width`, `Height`, `Move`, `ZOrder` and `SetFocus`. Lengths are twips, 15 to a unit of widgets. All
/// other members are those of `others`, which may be null. Once the widget is gone, which its owner decides,
/// these members are there without effect, so that lists go on, and read as 0 and False; all others are
/// unknown.
///
/// A widget that a window of the list took in belongs to the widget that shows this window. When that goes,
/// it returns hidden to the widget in which it was before; one that was in none goes too, as children of
/// widgets do.
class WidgetObject final : public Object {
  public:
    explicit WidgetObject(QWidget& widget, ObjectRef others = nullptr);
    ~WidgetObject() override;

    using Object::call;
    using Object::get;
    Variant get(StringView name, std::span<Variant> arguments) override;
    void put(StringView name, const Variant& value) override;
    Variant call(StringView name, std::span<Variant> arguments) override;

    /// Null once it is gone.
    QWidget* widget() const { return widget_; }

    /// The widget whose object gave this number as its `hWnd`; null for any other number.
    static QWidget* find(WindowHandle handle);

  private:
    /// Throws RuntimeError 438 if there are none.
    ObjectRef needOthers() const;

    QPointer<QWidget> widget_;
    ObjectRef others_;
    WindowHandle handle_;
};

} // namespace lumtex::qt
