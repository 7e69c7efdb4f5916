#include "qt/spoken_guests.h"

namespace lumtex::qt {

SpokenGuests::SpokenGuests(ScreenWidget& screen) : QAccessibleWidget(&screen, QAccessible::Grouping) {}

std::vector<QWidget*> SpokenGuests::guests() const {
    const auto* screen = dynamic_cast<ScreenWidget*>(object());
    return screen != nullptr ? screen->guests() : std::vector<QWidget*>();
}

bool SpokenGuests::isValid() const {
    return QAccessibleWidget::isValid() && !guests().empty();
}

QAccessibleInterface* SpokenGuests::child(int index) const {
    const std::vector<QWidget*> all = guests();
    const auto place = static_cast<std::size_t>(index);
    return index >= 0 && place < all.size() ? QAccessible::queryAccessibleInterface(all[place]) : nullptr;
}

int SpokenGuests::childCount() const {
    return static_cast<int>(guests().size());
}

int SpokenGuests::indexOfChild(const QAccessibleInterface* child) const {
    const std::vector<QWidget*> all = guests();
    const auto found = std::ranges::find(all, child != nullptr ? child->object() : nullptr);
    return found != all.end() ? static_cast<int>(found - all.begin()) : -1;
}

QString SpokenGuests::text(QAccessible::Text kind) const {
    return kind == QAccessible::Name ? QStringLiteral("Widgets") : QString();
}

} // namespace lumtex::qt
