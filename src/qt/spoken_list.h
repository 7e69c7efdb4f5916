/// \file
/// What all interfaces share by which Qt asks for the parts of one list.
#pragma once

#include "accessibility/accessible_list.h"

#include <QAccessible>
#include <QLineEdit>
#include <QPointer>
#include <QWidget>
#include <map>
#include <memory>
#include <optional>

namespace lumtex::qt {

class ListCore;
class ScreenWidget;

/// May outlive the widget, and then knows of nothing. Interfaces of elements belong to Qt's cache and are
/// made as somebody asks for them; the cache lets go of them as their elements go. So an interface is good
/// for the call that got it, and its id for longer.
class SpokenList : public std::enable_shared_from_this<SpokenList> {
  public:
    SpokenList(QWidget& widget, const std::shared_ptr<ListCore>& core);
    SpokenList(const SpokenList&) = delete;
    SpokenList& operator=(const SpokenList&) = delete;
    ~SpokenList() = default;

    /// Tells Qt of changes from now on.
    void listen();
    /// The widget is done with it: nothing is told any more, and no element has an interface.
    void close();

    /// Runs `act`, in which the host may let go of the widget. False where there is no list any more.
    template <class Act>
    bool acting(Act&& act) {
        const std::shared_ptr<SpokenList> self = shared_from_this();
        const std::shared_ptr<ListCore> core = core_.lock();
        return core != nullptr && act(list_);
    }
    const accessibility::AccessibleList& list() const { return list_; }

    /// Null where there is none any more.
    QWidget* widget() const { return widget_; }
    ScreenWidget* screen() const;
    /// The field of the component's own editor, open or not.
    QLineEdit* field() const;
    /// Whether the keyboard is the list's, or its editor's.
    bool hasKeyboard() const;
    QWindow* window() const;

    /// Null for what is not there.
    QAccessibleInterface* interfaceOf(const accessibility::Element& element);
    /// Of the screen, in units of widgets; empty for what is not on it.
    QRect rectOf(const accessibility::Element& element) const;
    /// The innermost element at a place of the screen.
    accessibility::Element at(int x, int y) const;
    QAccessible::State stateOf(const accessibility::Element& element) const;

    /// The element that has the focus, unless it was told already.
    void tellFocus();
    /// It will have to be told again.
    void forgetFocus() { focus_.reset(); }

  private:
    /// What lies in rows comes behind the rest, by its row.
    struct ByRow {
        bool operator()(const accessibility::Element& one, const accessibility::Element& other) const;
    };

    void tell(const accessibility::Change& change);
    void notify(QAccessible::Event type, const accessibility::Element& element);
    void notifyOfState(const accessibility::Element& element);
    void notifyOfValue(const accessibility::Element& element);
    void tellOfRowsLater();
    void tellOfRows();
    void notifyOfModel(int kind, Long firstRow, Long lastRow);
    void hide(const accessibility::Element& element);
    void letGoOfRowsBehind(Long last);
    void letGoOfWhatIsGone();

    QPointer<QWidget> widget_;
    std::weak_ptr<ListCore> core_;
    accessibility::AccessibleList list_;
    std::map<accessibility::Element, QAccessible::Id, ByRow> ids_;
    std::optional<accessibility::Element> focus_; ///< that was told last
    Long rowsTold_ = 0;                           ///< how many Qt knows of
    bool rowsWait_ = false;                       ///< to be told of
};

} // namespace lumtex::qt
