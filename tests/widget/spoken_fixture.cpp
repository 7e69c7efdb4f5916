#include "spoken_fixture.h"

#include "model/list_view.h"

#include <QMetaEnum>
#include <array>

#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

namespace lumtex::testing {

namespace {

std::vector<std::string> told;

void note(QAccessibleEvent* event) {
    std::string line = QMetaEnum::fromType<QAccessible::Event>().valueToKey(event->type());
    line += " " + named(event->accessibleInterface());
    if (event->type() == QAccessible::TableModelChanged) {
        const auto* change = static_cast<QAccessibleTableModelChangeEvent*>(event);
        static constexpr std::array kinds{
            "reset", "changed", "rows in", "columns in", "rows out", "columns out"};
        line += std::string(" ") + kinds.at(static_cast<std::size_t>(change->modelChangeType()));
        if (change->firstRow() >= 0)
            line += " " + std::to_string(change->firstRow()) + "-" + std::to_string(change->lastRow());
    }
    if (event->type() == QAccessible::ValueChanged)
        line += " " + static_cast<QAccessibleValueChangeEvent*>(event)->value().toString().toStdString();
    told.push_back(line);
}

} // namespace

void switchAccessibility(bool on) {
    QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(on);
}

std::string named(QAccessibleInterface* asked) {
    if (asked == nullptr)
        return "nobody";
    const std::string role = QMetaEnum::fromType<QAccessible::Role>().valueToKey(asked->role());
    const std::string name = asked->text(QAccessible::Name).toStdString();
    return name.empty() ? role : role + " " + name;
}

std::string inWords(const QAccessible::State& state) {
    std::string words;
    const auto add = [&](bool is, const char* word) {
        if (is)
            words += (words.empty() ? "" : " ") + std::string(word);
    };
    add(state.invalid, "invalid");
    add(state.disabled, "disabled");
    add(state.invisible, "invisible");
    add(state.offscreen, "offscreen");
    add(state.focusable, "focusable");
    add(state.focused, "focused");
    add(state.selectable, "selectable");
    add(state.multiSelectable, "multiSelectable");
    add(state.selected, "selected");
    add(state.checkable, "checkable");
    add(state.checked, "checked");
    add(state.editable, "editable");
    add(state.readOnly, "readOnly");
    add(state.hotTracked, "hot");
    add(state.pressed, "pressed");
    return words;
}

SpokenWidget::SpokenWidget() {
    // What tells of itself while it is being made is not what it will be.
    switchAccessibility(true);
    widget = makeWidget();
    widget->setObjectName(QStringLiteral("cities"));
    widget->setRowsDynamic(false);
    widget->setRowHeight(300);
    widget->setBorderVisible(false);
    widget->setIconH(13);
    widget->resize(300, 200);
    widget->show();
    addCities();
    QCoreApplication::processEvents();
    widget->clearFocus();
}

SpokenWidget::~SpokenWidget() {
    QAccessible::installUpdateHandler(nullptr);
    switchAccessibility(false);
}

void SpokenWidget::addCities() {
    widget->ColumnsAdd(QStringLiteral("City"), {}, {}, {}, LumtexListView::cColumnLeft, 1500, true);
    widget->ColumnsAdd(QStringLiteral("Since"), {}, {}, {}, LumtexListView::cColumnLeft, 900, true);
    widget->ColumnsAdd(QStringLiteral("Country"), {}, {}, {}, LumtexListView::cColumnLeft, 1800);
    for (const char* row : {"Lisbon,1143,Portugal", "Oslo,1048,Norway", "Quito,1534,Ecuador"})
        widget->RowsAdd(-1, QStringLiteral(","), QString::fromLatin1(row));
    settle();
}

void SpokenWidget::addCheckBoxes() {
    widget->setStyle(LumtexListView::cCheckBoxes);
    widget->setColumnCheckBoxes(2, true);
    settle();
}

void SpokenWidget::addRows(int count) {
    widget->setAutoRedraw(false);
    widget->setAutoCheckScroll(false);
    for (int i = 0; i < count; ++i)
        widget->list().RowsAdd(Long{-1}, u",", u"Porto,868,Portugal");
    widget->setAutoCheckScroll(true);
    widget->setAutoRedraw(true);
    settle();
}

void SpokenWidget::settle() {
    widget->CheckScroll();
    widget->Redraw();
}

std::vector<std::string> SpokenWidget::toldOf(const std::function<void()>& body) {
    QCoreApplication::processEvents();
    told.clear();
    QAccessible::installUpdateHandler(note);
    body();
    QCoreApplication::processEvents();
    QAccessible::installUpdateHandler(nullptr);
    return std::exchange(told, {});
}

std::vector<std::string> SpokenWidget::toldOf(const std::string& kind, const std::function<void()>& body) {
    std::vector<std::string> lines = toldOf(body);
    std::erase_if(lines, [&](const std::string& line) { return !line.starts_with(kind + " "); });
    return lines;
}

} // namespace lumtex::testing
