/// \file
/// What the widget of the list is made of: the widget around its world.
#pragma once

#include "qt/world_factory.h"

#include <QVariant>
#include <QWidget>
#include <functional>
#include <memory>
#include <string_view>

namespace lumtex {
class lmListView;
class PropertyBag;
} // namespace lumtex

namespace lumtex::qt {

class ListCore;
class ListSpeaker;
class WidgetEvents;

/// Lays the list out as large as itself, and carries calls by dispatch numbers. A widget that is destroyed in
/// one of its own signals or calls leaves the list alive until that has returned.
class ListWidget : public QWidget {
    Q_OBJECT
    /// A list in a designer shows a sample of itself and takes no input. A change of this keeps the settings,
    /// and lets rows and columns go.
    Q_PROPERTY(bool designView READ designView WRITE setDesignView DESIGNABLE false STORED false)
    /// While true, a failing statement is skipped without a report, in all lists of the process.
    Q_PROPERTY(bool SilentError READ SilentError WRITE setSilentError DESIGNABLE false STORED false)

  public:
    ListWidget(const ListWidget&) = delete;
    ListWidget& operator=(const ListWidget&) = delete;
    ~ListWidget() override;

    bool designView() const;
    void setDesignView(bool designed);

    static bool SilentError();
    static void setSilentError(bool silent);

    /// The list itself, for programs that use the types of the library.
    lmListView& list();
    const lmListView& list() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    explicit ListWidget(QWidget* parent);
    using EventsFactory = std::function<std::unique_ptr<WidgetEvents>()>;
    /// Makes the list, which raises its events with what `makeEvents` makes: called once, at the end of the
    /// constructor of the class that has the signals.
    void start(WorldFactory makeWorld, EventsFactory makeEvents);
    /// Lets the list go, before the signals do.
    void finish();

    // Members by their dispatch numbers. What an argument cannot be converted to is reported as the list
    // reports its failures, and the result is invalid.

    QVariant get(int number, const QVariantList& arguments = {}) const;
    void assign(int number, const QVariantList& arguments, const QVariant& value);
    QVariant call(int number, const QVariantList& arguments = {});

    // Settings by their keys, which are the names of the properties.

    QVariant setting(std::u16string_view key) const;
    void letSetting(std::u16string_view key, const QVariant& value);
    /// Gives the property the value that it has in a new list.
    void reset(std::u16string_view key);

    /// Nothing, which stands for an argument that was left out, for a null text.
    static QVariant unlessNull(const QString& text);

    void resizeEvent(QResizeEvent* event) override;

  private:
    friend class ListSpeaker;

    /// A list as it is read from these settings, in place of the one before.
    void startAnew(const PropertyBag& settings, bool designed);

    WorldFactory makeWorld_;
    EventsFactory makeEvents_;
    std::shared_ptr<ListCore> core_;
    std::unique_ptr<ListSpeaker> speaker_;
};

} // namespace lumtex::qt
