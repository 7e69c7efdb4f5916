/// \file
/// All settings of a list, to be seen and changed while it is used.
#pragma once

#include "event_tap.h"
#include "qt/lumtex_list_view.h"

#include <QLabel>
#include <QLineEdit>
#include <QMetaProperty>
#include <QPointer>
#include <QToolButton>
#include <QWidget>
#include <functional>
#include <vector>

namespace lumtex::gallery {

/// Shows what the list has, however it came there, and assigns what the user chooses.
class PropertyPanel final : public QWidget {
    Q_OBJECT

  public:
    PropertyPanel();

    /// The list may end at any time.
    void display(LumtexListView& list);
    /// Leaves only the settings whose name holds `text`.
    void filter(const QString& text);

  private:
    struct Row {
        QMetaProperty setting;
        QWidget* editor;
        std::function<void(const QVariant&)> display;
        QLabel* name = nullptr;
        QToolButton* reset = nullptr;
    };

    Row rowOf(const QMetaProperty& setting);
    Row flagRow(const QMetaProperty& setting);
    Row choiceRow(const QMetaProperty& setting);
    Row numberRow(const QMetaProperty& setting);
    Row colorRow(const QMetaProperty& setting);
    Row fontRow(const QMetaProperty& setting);
    Row pictureRow(const QMetaProperty& setting);
    void assign(const QMetaProperty& setting, const QVariant& value);
    void refresh(const Row& row);
    void refreshAll();
    static void copy(const QString& code);

    QLineEdit* filter_;
    std::vector<Row> rows_;
    std::vector<QLabel*> titles_; ///< of the groups
    QPointer<LumtexListView> list_;
    QPointer<EventTap> tap_;
    bool showing_ = false; ///< editors change because the list did
};

} // namespace lumtex::gallery
