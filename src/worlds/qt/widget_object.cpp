#include "worlds/qt/widget_object.h"

#include "values/rounding.h"
#include "values/runtime_error.h"
#include "values/text.h"
#include "values/variant.h"
#include "worlds/qt/screen_widget.h"

#include <array>
#include <optional>
#include <unordered_map>
#include <utility>

namespace lumtex::qt {

namespace {

constexpr Double twipsPerUnit = 15;

/// Far from the numbers of a world's own windows.
constexpr WindowHandle firstHandle = 0x40000001;

struct Handles {
    WindowHandle next = firstHandle;
    std::unordered_map<WindowHandle, QPointer<QWidget>> widgets;
};

/// Never destroyed: an object may be held by something that ends after everything.
Handles& handles() {
    static auto* const all = new Handles;
    return *all;
}

WindowHandle newHandle(QWidget& widget) {
    const WindowHandle handle = handles().next++;
    handles().widgets.emplace(handle, &widget);
    return handle;
}

/// From the widget that it lies in to the window that its place counts from.
QPoint originOf(const QWidget& widget) {
    const auto* screen = dynamic_cast<const ScreenWidget*>(widget.parentWidget());
    return screen != nullptr ? screen->originOfGuest(widget) : QPoint();
}

Single twips(int units) {
    return static_cast<Single>(units * twipsPerUnit);
}

int units(const Variant& twips) {
    return static_cast<int>(roundToLong(twips.toDouble() / twipsPerUnit));
}

/// Lengths in the order in which `Move` takes them.
constexpr std::array<StringView, 4> lengthNames{u"Left", u"Top", u"Width", u"Height"};

using Lengths = std::array<int, lengthNames.size()>;

Lengths lengthsOf(const QWidget& widget) {
    const QPoint corner = widget.pos() - originOf(widget);
    return {corner.x(), corner.y(), widget.width(), widget.height()};
}

/// Empty for a name that names no length.
std::optional<std::size_t> lengthCalled(StringView name) {
    for (std::size_t i = 0; i < lengthNames.size(); ++i)
        if (sameName(name, lengthNames[i]))
            return i;
    return std::nullopt;
}

/// What is missing stays as it is.
Lengths changed(Lengths lengths, std::span<Variant> given) {
    for (std::size_t i = 0; i < given.size(); ++i)
        if (!given[i].isMissing())
            lengths[i] = units(given[i]);
    return lengths;
}

void placeAt(QWidget& widget, const Lengths& lengths) {
    const QPoint corner = QPoint(lengths[0], lengths[1]) + originOf(widget);
    widget.setGeometry(corner.x(), corner.y(), lengths[2], lengths[3]);
}

} // namespace

WidgetObject::WidgetObject(QWidget& widget, ObjectRef others)
    : widget_(&widget), others_(std::move(others)), handle_(newHandle(widget)) {}

WidgetObject::~WidgetObject() {
    handles().widgets.erase(handle_);
}

QWidget* WidgetObject::find(WindowHandle handle) {
    const auto found = handles().widgets.find(handle);
    return found != handles().widgets.end() ? found->second.data() : nullptr;
}

ObjectRef WidgetObject::needOthers() const {
    if (others_ == nullptr || widget_ == nullptr)
        throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
    return others_;
}

Variant WidgetObject::get(StringView name, std::span<Variant> arguments) {
    if (!arguments.empty())
        return call(name, arguments);
    if (sameName(name, u"hWnd"))
        return widget_ != nullptr ? handle_ : WindowHandle{0};
    if (sameName(name, u"Visible"))
        return widget_ != nullptr && !widget_->isHidden();
    if (sameName(name, u"Enabled"))
        return widget_ != nullptr && widget_->isEnabled();
    if (const auto length = lengthCalled(name))
        return widget_ != nullptr ? twips(lengthsOf(*widget_)[*length]) : Single{0};
    return needOthers()->get(name, arguments);
}

void WidgetObject::put(StringView name, const Variant& value) {
    if (sameName(name, u"Visible")) {
        if (const bool visible = value.toBoolean(); widget_ != nullptr)
            widget_->setVisible(visible);
    } else if (sameName(name, u"Enabled")) {
        if (const bool enabled = value.toBoolean(); widget_ != nullptr)
            widget_->setEnabled(enabled);
    } else if (const auto length = lengthCalled(name)) {
        if (const int size = units(value); widget_ != nullptr) {
            Lengths lengths = lengthsOf(*widget_);
            lengths[*length] = size;
            placeAt(*widget_, lengths);
        }
    } else {
        needOthers()->put(name, value);
    }
}

Variant WidgetObject::call(StringView name, std::span<Variant> arguments) {
    const QPointer<QWidget> widget = widget_;
    if (sameName(name, u"Move") && !arguments.empty() && arguments.size() <= lengthNames.size()) {
        if (widget != nullptr)
            placeAt(*widget, changed(lengthsOf(*widget), arguments));
    } else if (sameName(name, u"ZOrder") && arguments.size() <= 1) {
        const bool toFront = arguments.empty() || arguments[0].isMissing() || arguments[0].toLong() == 0;
        if (widget != nullptr)
            toFront ? widget->raise() : widget->lower();
    } else if (sameName(name, u"SetFocus") && arguments.empty()) {
        if (widget != nullptr)
            widget->setFocus();
    } else {
        return needOthers()->call(name, arguments);
    }
    return {};
}

} // namespace lumtex::qt
