/// \file
/// The list of a widget as it speaks to Qt's accessibility.
#pragma once

#include "qt/spoken_list.h"

#include <QObject>

namespace lumtex::qt {

class ListWidget;

/// Does nothing until somebody asks, or accessibility is switched on for the program; tells Qt of changes as
/// long as that is so.
class ListSpeaker final : public QObject, private QAccessible::ActivationObserver {
  public:
    /// `widget` must outlive it.
    ListSpeaker(ListWidget& widget, const std::shared_ptr<ListCore>& core);
    ListSpeaker(const ListSpeaker&) = delete;
    ListSpeaker& operator=(const ListSpeaker&) = delete;
    ~ListSpeaker() override;

    /// The list that `widget` shows; null where it is no widget of ours, or has no list any more.
    static std::shared_ptr<SpokenList> spokenBy(QObject* widget);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void accessibilityActiveChanged(bool active) override;
    /// Made when it is asked for.
    const std::shared_ptr<SpokenList>& spoken();

    ListWidget& widget_;
    std::weak_ptr<ListCore> core_;
    std::shared_ptr<SpokenList> spoken_;
};

} // namespace lumtex::qt
