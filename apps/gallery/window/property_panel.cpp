#include "property_panel.h"

#include "settings.h"
#include "value_buttons.h"

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QGuiApplication>
#include <QMetaEnum>
#include <QScopedValueRollback>
#include <QScrollArea>
#include <QSpinBox>
#include <QWheelEvent>
#include <array>
#include <limits>

namespace lumtex::gallery {

namespace {

using namespace Qt::StringLiterals;

/// The wheel moves the panel and not the numbers in it, unless one is being edited.
template <class Box>
class QuietWheel final : public Box {
  public:
    QuietWheel() { this->setFocusPolicy(Qt::StrongFocus); }

  protected:
    void wheelEvent(QWheelEvent* event) override {
        if (this->hasFocus())
            Box::wheelEvent(event);
        else
            event->ignore();
    }
};

struct GroupTitle {
    Group group;
    const char16_t* title;
};

constexpr std::array groups{GroupTitle{Group::appearance, u"Appearance"},
                            GroupTitle{Group::behaviour, u"Behaviour"},
                            GroupTitle{Group::columns, u"Columns"},
                            GroupTitle{Group::scrollBars, u"Scroll bars"},
                            GroupTitle{Group::data, u"Data"}};

} // namespace

PropertyPanel::PropertyPanel() : filter_(new QLineEdit) {
    filter_->setPlaceholderText(u"Filter the settings"_s);
    filter_->setAccessibleName(filter_->placeholderText());
    filter_->setClearButtonEnabled(true);
    connect(filter_, &QLineEdit::textChanged, this, &PropertyPanel::filter);

    auto* form = new QWidget;
    auto* grid = new QGridLayout(form);
    grid->setColumnStretch(1, 1);
    grid->setVerticalSpacing(2);
    for (const GroupTitle& group : groups) {
        auto* title = new QLabel(QString::fromUtf16(group.title));
        title->setStyleSheet(u"font-weight: bold; margin-top: 8px"_s);
        grid->addWidget(title, grid->rowCount(), 0, 1, 3);
        titles_.push_back(title);
        for (const QMetaProperty& setting : allSettings()) {
            if (groupOf(setting) != group.group)
                continue;
            const Row& row = rows_.emplace_back(rowOf(setting));
            const int line = grid->rowCount();
            grid->addWidget(row.name, line, 0);
            grid->addWidget(row.editor, line, 1);
            grid->addWidget(row.reset, line, 2);
        }
    }
    grid->setRowStretch(grid->rowCount(), 1);
    auto* area = new QScrollArea;
    area->setWidget(form);
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setFocusPolicy(Qt::NoFocus);

    auto* cpp = new QPushButton(u"Copy as C&++"_s);
    connect(cpp, &QPushButton::clicked, this, [this] {
        copy(list_ != nullptr ? settingsAsCpp(*list_) : QString());
    });
    auto* script = new QPushButton(u"Copy as &VBScript"_s);
    connect(script, &QPushButton::clicked, this, [this] {
        copy(list_ != nullptr ? settingsAsVbScript(*list_) : QString());
    });
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(cpp);
    buttons->addWidget(script);

    auto* all = new QVBoxLayout(this);
    all->addWidget(filter_);
    all->addWidget(area, 1);
    all->addLayout(buttons);
}

void PropertyPanel::display(LumtexListView& list) {
    delete tap_;
    list_ = &list;
    const auto isOfSetting = [](const QMetaMethod& signal) {
        return signal.name().endsWith("Changed") && signal.parameterCount() == 0;
    };
    tap_ = new EventTap(list, isOfSetting, [this](const QMetaMethod&, const QVariantList&) { refreshAll(); });
    refreshAll();
}

void PropertyPanel::filter(const QString& text) {
    for (QLabel* title : titles_)
        title->setVisible(text.isEmpty());
    for (const Row& row : rows_) {
        const bool wanted = QString::fromLatin1(row.setting.name()).contains(text, Qt::CaseInsensitive);
        row.name->setVisible(wanted);
        row.editor->setVisible(wanted);
        row.reset->setVisible(wanted);
    }
}

PropertyPanel::Row PropertyPanel::rowOf(const QMetaProperty& setting) {
    const auto make = [&] {
        if (setting.isEnumType())
            return choiceRow(setting);
        switch (setting.typeId()) {
        case QMetaType::Bool:
            return flagRow(setting);
        case QMetaType::QColor:
            return colorRow(setting);
        case QMetaType::QFont:
            return fontRow(setting);
        case QMetaType::QPixmap:
            return pictureRow(setting);
        default:
            return numberRow(setting);
        }
    };
    Row row = make();
    const QString name = QString::fromLatin1(setting.name());
    const QString help = helpOf(setting);
    row.name = new QLabel(name);
    row.name->setBuddy(row.editor);
    row.name->setToolTip(help);
    row.editor->setToolTip(help);
    row.editor->setAccessibleName(name);
    row.editor->setObjectName(name);
    row.reset = new QToolButton;
    row.reset->setText(u"↺"_s);
    row.reset->setToolTip(u"As in a new list"_s);
    row.reset->setAccessibleName(u"Reset %1"_s.arg(name));
    row.reset->setAutoRaise(true);
    connect(row.reset, &QToolButton::clicked, this, [this, setting] {
        if (list_ != nullptr)
            setting.reset(list_);
        refreshAll(); // one of the settings tells nobody
    });
    return row;
}

PropertyPanel::Row PropertyPanel::flagRow(const QMetaProperty& setting) {
    auto* box = new QCheckBox;
    connect(box, &QCheckBox::toggled, this, [this, setting](bool on) { assign(setting, on); });
    return {setting, box, [box](const QVariant& value) { box->setChecked(value.toBool()); }};
}

PropertyPanel::Row PropertyPanel::choiceRow(const QMetaProperty& setting) {
    auto* box = new QuietWheel<QComboBox>;
    const QMetaEnum choices = setting.enumerator();
    for (int i = 0; i < choices.keyCount(); ++i)
        box->addItem(QString::fromLatin1(choices.key(i)), choices.value(i));
    connect(box, &QComboBox::currentIndexChanged, this, [this, setting, box](int index) {
        if (index >= 0)
            assign(setting, box->itemData(index));
    });
    return {
        setting, box, [box](const QVariant& value) { box->setCurrentIndex(box->findData(value.toInt())); }};
}

PropertyPanel::Row PropertyPanel::numberRow(const QMetaProperty& setting) {
    QString unit = unitOf(setting);
    if (!unit.isEmpty())
        unit.prepend(u' ');
    if (setting.typeId() == QMetaType::Int) {
        auto* box = new QuietWheel<QSpinBox>;
        box->setRange(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
        box->setSuffix(unit);
        connect(box, &QSpinBox::valueChanged, this, [this, setting](int value) { assign(setting, value); });
        return {setting, box, [box](const QVariant& value) { box->setValue(value.toInt()); }};
    }
    constexpr double most = 1e6;
    auto* box = new QuietWheel<QDoubleSpinBox>;
    box->setRange(-most, most);
    box->setDecimals(1);
    box->setSingleStep(unit == " twips"_L1 ? 15 : 1); // a pixel
    box->setSuffix(unit);
    connect(
        box, &QDoubleSpinBox::valueChanged, this, [this, setting](double value) { assign(setting, value); });
    return {setting, box, [box](const QVariant& value) { box->setValue(value.toDouble()); }};
}

PropertyPanel::Row PropertyPanel::colorRow(const QMetaProperty& setting) {
    auto* button = new ColorButton;
    connect(button, &ColorButton::chosen, this, [this, setting](QColor color) { assign(setting, color); });
    return {setting, button, [button](const QVariant& value) { button->display(value.value<QColor>()); }};
}

PropertyPanel::Row PropertyPanel::fontRow(const QMetaProperty& setting) {
    auto* button = new FontButton;
    connect(button, &FontButton::chosen, this, [this, setting](const QFont& font) { assign(setting, font); });
    return {setting, button, [button](const QVariant& value) { button->display(value.value<QFont>()); }};
}

PropertyPanel::Row PropertyPanel::pictureRow(const QMetaProperty& setting) {
    auto* button = new PictureButton;
    connect(
        button, &PictureButton::chosen, this, [this, setting](const QPixmap& picture, const QString& file) {
            assign(setting, picture);
            if (list_ != nullptr)
                setPictureFile(*list_, setting, file);
        });
    return {setting, button, [button](const QVariant& value) { button->display(value.value<QPixmap>()); }};
}

void PropertyPanel::assign(const QMetaProperty& setting, const QVariant& value) {
    if (showing_ || list_ == nullptr)
        return;
    setting.write(list_, value);
    refreshAll(); // a setting may change others
}

void PropertyPanel::refreshAll() {
    if (showing_ || list_ == nullptr)
        return;
    const QScopedValueRollback guard(showing_, true);
    for (const Row& row : rows_) {
        row.display(row.setting.read(list_));
        row.reset->setEnabled(!isNewValue(*list_, row.setting));
    }
}

void PropertyPanel::copy(const QString& code) {
    QGuiApplication::clipboard()->setText(code);
}

} // namespace lumtex::gallery
