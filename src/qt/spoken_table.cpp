#include "qt/spoken_table.h"

#include "qt/list_speaker.h"
#include "qt/list_widget.h"
#include "qt/spoken_element.h"
#include "worlds/qt/qt_text.h"
#include "worlds/qt/screen_widget.h"

#include <QApplication>

namespace lumtex::qt {

using accessibility::Element;
using accessibility::Kind;
using accessibility::rowElement;
using accessibility::theList;

SpokenTable::SpokenTable(ListWidget& widget) : QAccessibleWidget(&widget, QAccessible::Table) {}

std::shared_ptr<SpokenList> SpokenTable::spoken() const {
    return ListSpeaker::spokenBy(object());
}

bool SpokenTable::isValid() const {
    const auto spoken = this->spoken();
    return QAccessibleWidget::isValid() && spoken != nullptr && spoken->list().exists(theList);
}

QAccessibleInterface* SpokenTable::guests() const {
    const auto spoken = this->spoken();
    ScreenWidget* screen = spoken != nullptr ? spoken->screen() : nullptr;
    if (screen == nullptr || screen->guests().empty())
        return nullptr;
    return QAccessible::queryAccessibleInterface(screen);
}

QAccessibleInterface* SpokenTable::focusChild() const {
    const auto spoken = this->spoken();
    if (spoken == nullptr)
        return nullptr;
    if (spoken->hasKeyboard())
        return spoken->interfaceOf(spoken->list().focus());
    QWidget* holder = QApplication::focusWidget();
    const bool isGuest =
        holder != nullptr && spoken->screen() != nullptr && spoken->screen()->isAncestorOf(holder);
    return isGuest ? QAccessible::queryAccessibleInterface(holder) : nullptr;
}

QAccessibleInterface* SpokenTable::childAt(int x, int y) const {
    if (QAccessibleInterface* over = guests(); over != nullptr && over->childAt(x, y) != nullptr)
        return over;
    const auto spoken = this->spoken();
    const Element found = spoken != nullptr ? spoken->at(x, y) : accessibility::nothing;
    return found == theList || found.kind == Kind::nothing ? nullptr : spoken->interfaceOf(found);
}

QAccessibleInterface* SpokenTable::child(int index) const {
    const auto spoken = this->spoken();
    if (spoken == nullptr || index < 0)
        return nullptr;
    const Long inList = spoken->list().childCount(theList);
    return index < inList    ? spoken->interfaceOf(spoken->list().child(theList, Long{index} + 1))
           : index == inList ? guests()
                             : nullptr;
}

int SpokenTable::childCount() const {
    const auto spoken = this->spoken();
    if (spoken == nullptr)
        return 0;
    return static_cast<int>(spoken->list().childCount(theList)) + (guests() != nullptr ? 1 : 0);
}

int SpokenTable::indexOfChild(const QAccessibleInterface* child) const {
    const auto spoken = this->spoken();
    if (spoken == nullptr || child == nullptr)
        return -1;
    if (child == guests())
        return childCount() - 1;
    const bool isEditor = child == spoken->interfaceOf(accessibility::theEditor);
    const Element asked = isEditor ? accessibility::theEditor : SpokenElement::elementOf(child);
    const bool isOurs = asked.kind != Kind::nothing && spoken->list().parent(asked) == theList;
    return isOurs ? static_cast<int>(spoken->list().numberOf(asked)) - 1 : -1;
}

QString SpokenTable::text(QAccessible::Text kind) const {
    const QString ofWidget = QAccessibleWidget::text(kind);
    const auto spoken = this->spoken();
    return ofWidget.isEmpty() && spoken != nullptr ? textOf(spoken->list(), theList, kind) : ofWidget;
}

QAccessible::State SpokenTable::state() const {
    QAccessible::State state = QAccessibleWidget::state();
    const auto spoken = this->spoken();
    if (spoken == nullptr) {
        state.invalid = 1U;
        return state;
    }
    const QAccessible::State ofList = spoken->stateOf(theList);
    state.invalid = ofList.invalid;
    state.disabled |= ofList.disabled;
    state.invisible |= ofList.invisible;
    state.focusable = ofList.focusable;
    state.focused = ofList.focused;
    state.multiSelectable = ofList.multiSelectable;
    return state;
}

void* SpokenTable::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::TableInterface)
        return static_cast<QAccessibleTableInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
}

QStringList SpokenTable::actionNames() const {
    return state().focusable ? QStringList(setFocusAction()) : QStringList();
}

void SpokenTable::doAction(const QString& name) {
    const auto spoken = this->spoken();
    if (spoken != nullptr && name == setFocusAction())
        spoken->acting([](accessibility::AccessibleList& list) { return list.takeFocus(theList); });
}

QAccessibleInterface* SpokenTable::cellAt(int row, int column) const {
    const auto spoken = this->spoken();
    return spoken != nullptr
               ? spoken->interfaceOf(accessibility::cellElement(Long{row} + 1, Long{column} + 1))
               : nullptr;
}

std::vector<Element> SpokenTable::cellsSelected() const {
    std::vector<Element> cells;
    const auto spoken = this->spoken();
    if (spoken == nullptr)
        return cells;
    const accessibility::AccessibleList& list = spoken->list();
    for (Long row = list.nextSelected(0); row != 0; row = list.nextSelected(row))
        for (Long number = 1; number <= list.childCount(rowElement(row)); ++number)
            if (const Element cell = list.child(rowElement(row), number);
                (list.states(cell) & accessibility::selected) != 0)
                cells.push_back(cell);
    return cells;
}

int SpokenTable::selectedCellCount() const {
    return static_cast<int>(cellsSelected().size());
}

QList<QAccessibleInterface*> SpokenTable::selectedCells() const {
    QList<QAccessibleInterface*> interfaces;
    for (const Element& cell : cellsSelected())
        interfaces.append(spoken()->interfaceOf(cell));
    return interfaces;
}

QString SpokenTable::columnDescription(int column) const {
    const auto spoken = this->spoken();
    return spoken != nullptr ? toQString(spoken->list().name(accessibility::headerElement(Long{column} + 1)))
                             : QString();
}

QString SpokenTable::rowDescription(int row) const {
    const auto spoken = this->spoken();
    return spoken != nullptr ? toQString(spoken->list().name(rowElement(Long{row} + 1))) : QString();
}

int SpokenTable::columnCount() const {
    const auto spoken = this->spoken();
    return spoken != nullptr ? static_cast<int>(spoken->list().columnCount()) : 0;
}

int SpokenTable::rowCount() const {
    const auto spoken = this->spoken();
    return spoken != nullptr ? static_cast<int>(spoken->list().rowCount()) : 0;
}

QList<int> SpokenTable::selectedRows() const {
    QList<int> rows;
    if (const auto spoken = this->spoken())
        for (Long row = spoken->list().nextSelected(0); row != 0; row = spoken->list().nextSelected(row))
            rows.append(static_cast<int>(row) - 1);
    return rows;
}

int SpokenTable::selectedRowCount() const {
    return static_cast<int>(selectedRows().size());
}

bool SpokenTable::isRowSelected(int row) const {
    const auto spoken = this->spoken();
    return spoken != nullptr &&
           (spoken->list().states(rowElement(Long{row} + 1)) & accessibility::selected) != 0;
}

bool SpokenTable::select(int row, bool selected) {
    const auto spoken = this->spoken();
    return spoken != nullptr && spoken->acting([row, selected](accessibility::AccessibleList& list) {
        return list.select(rowElement(Long{row} + 1), selected);
    });
}

} // namespace lumtex::qt
