#include "qt/list_widget.h"

#include "automation/call_by_name.h"
#include "automation/record_table.h"
#include "guards/error.h"
#include "persistence/settings_by_key.h"
#include "platform/property_bag.h"
#include "qt/list_core.h"
#include "qt/list_speaker.h"
#include "qt/qt_values.h"
#include "worlds/qt/qt_color.h"
#include "worlds/qt/qt_text.h"

#include <QPointer>
#include <QResizeEvent>
#include <utility>
#include <vector>

namespace lumtex::qt {

namespace {

using automation::CallByName;
using automation::Member;
using automation::TypeCode;

/// One that is invalid was left out.
std::vector<Variant> argumentsFrom(const QVariantList& values) {
    std::vector<Variant> arguments;
    arguments.reserve(static_cast<std::size_t>(values.size()));
    for (const QVariant& value : values)
        arguments.push_back(value.isValid() ? fromQVariant(value) : Variant(Missing{}));
    return arguments;
}

QVariant recordFrom(const Variant& value) {
    const ObjectRef record = value.toObject();
    QVariantMap fields;
    for (const automation::RecordField& field : automation::findResultsFields)
        fields.insert(toQString(field.name), toQVariant(record->get(field.name)));
    return fields;
}

QVariant resultFrom(const Member& member, const Variant& value) {
    if (value.isEmpty())
        return {};
    switch (member.type.code) {
    case TypeCode::color:
        return toQColor(value.toColor());
    case TypeCode::record:
        return recordFrom(value);
    default:
        return toQVariant(value);
    }
}

const Member& memberOf(int number) {
    return *automation::findMember(automation::listViewClass(), Long{number});
}

/// The list keeps quiet about one of its properties; a signal that never comes would be none.
void tellOf(ListCore& core, StringView property, int toldBefore) {
    if (core.host().told() == toldBefore)
        core.host().PropertyChanged(property);
}

} // namespace

std::unique_ptr<QtWorld> worldOfQt(QWidget& container) {
    return std::make_unique<QtWorld>(&container);
}

ListWidget::ListWidget(QWidget* parent) : QWidget(parent) {}

ListWidget::~ListWidget() = default;

void ListWidget::start(WorldFactory makeWorld, EventsFactory makeEvents) {
    makeWorld_ = std::move(makeWorld);
    makeEvents_ = std::move(makeEvents);
    startAnew(MemoryPropertyBag(), false);
}

void ListWidget::startAnew(const PropertyBag& settings, bool designed) {
    // What the old list lets go of, and what the settings set off, may take the widget away, or give it yet
    // another list.
    const QPointer<ListWidget> self(this);
    speaker_.reset();
    if (const std::shared_ptr<ListCore> before = core_) {
        if (before->isEnding())
            return;
        before->end();
        if (self == nullptr)
            return;
    }
    const auto core = std::make_shared<ListCore>(*this, makeWorld_(*this), makeEvents_());
    core_ = core;
    core->world().owner = core;
    core->host().designed = designed;
    core->list().UserControl_ReadProperties(settings);
    if (self == nullptr || core_ != core)
        return;
    core->resize(size());
    setFocusProxy(core->screen());
    speaker_ = std::make_unique<ListSpeaker>(*this, core);
}

void ListWidget::finish() {
    // What speaks of the list asks it.
    speaker_.reset();
    core_->end();
    core_.reset();
}

lmListView& ListWidget::list() {
    return core_->list();
}
const lmListView& ListWidget::list() const {
    return core_->list();
}

bool ListWidget::designView() const {
    return core_->host().designed;
}

void ListWidget::setDesignView(bool designed) {
    if (designed == designView())
        return;
    const QPointer<ListWidget> self(this);
    if (core_->isEnding())
        return;
    MemoryPropertyBag settings;
    core_->list().UserControl_WriteProperties(settings);
    if (self != nullptr)
        startAnew(settings, designed);
}

bool ListWidget::SilentError() {
    return silentError();
}

void ListWidget::setSilentError(bool silent) {
    Error().letSilentError(silent);
}

QSize ListWidget::sizeHint() const {
    constexpr QSize usual(400, 240);
    return usual;
}

QSize ListWidget::minimumSizeHint() const {
    constexpr QSize smallest(40, 40);
    return smallest;
}

void ListWidget::resizeEvent(QResizeEvent* event) {
    const QtRuntime::HeldYields quiet;
    if (const std::shared_ptr<ListCore> core = core_)
        core->resize(event->size());
}

QVariant ListWidget::get(int number, const QVariantList& arguments) const {
    const std::shared_ptr<ListCore> core = core_;
    const Member& member = memberOf(number);
    return resultFrom(member, core->entered(member.name, [&] {
        std::vector<Variant> values = argumentsFrom(arguments);
        return CallByName(core->list()).get(member, values);
    }));
}

void ListWidget::assign(int number, const QVariantList& arguments, const QVariant& value) {
    const std::shared_ptr<ListCore> core = core_;
    const Member& member = memberOf(number);
    const int told = core->host().told();
    core->entered(member.name, [&]() -> Variant {
        std::vector<Variant> values = argumentsFrom(arguments);
        CallByName byName(core->list());
        if (member.isReference())
            byName.set(member, values, fromQVariant(value));
        else
            byName.let(member, values, fromQVariant(value));
        return {};
    });
    tellOf(*core, member.name, told);
}

QVariant ListWidget::call(int number, const QVariantList& arguments) {
    const std::shared_ptr<ListCore> core = core_;
    const Member& member = memberOf(number);
    return resultFrom(member, core->entered(member.name, [&] {
        std::vector<Variant> values = argumentsFrom(arguments);
        return CallByName(core->list()).call(member, values);
    }));
}

QVariant ListWidget::setting(std::u16string_view key) const {
    const std::shared_ptr<ListCore> core = core_;
    return core->isEnding() ? QVariant() : toQVariant(SettingsByKey(core->list()).value(key));
}

void ListWidget::letSetting(std::u16string_view key, const QVariant& value) {
    const std::shared_ptr<ListCore> core = core_;
    core->entered(key, [&]() -> Variant {
        SettingsByKey(core->list()).let(key, fromQVariant(value));
        return {};
    });
}

void ListWidget::reset(std::u16string_view key) {
    const std::shared_ptr<ListCore> core = core_;
    if (core->isEnding())
        return;
    const int told = core->host().told();
    SettingsByKey(core->list()).reset(key);
    tellOf(*core, key, told);
}

QVariant ListWidget::unlessNull(const QString& text) {
    return text.isNull() ? QVariant() : QVariant(text);
}

} // namespace lumtex::qt
