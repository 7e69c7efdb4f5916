#include "worlds/headless/event_recorder.h"

#include "values/fixed_locale.h"
#include "values/text.h"
#include "worlds/headless/desktop.h"

namespace lumtex::headless {

namespace {

std::string quoted(const String& text) {
    std::string result = "\"";
    for (const char unit : toUtf8(text)) {
        switch (unit) {
        case '\r':
            result += "\\r";
            break;
        case '\n':
            result += "\\n";
            break;
        case '"':
        case '\\':
            result += '\\';
            result += unit;
            break;
        default:
            result += unit;
        }
    }
    return result + '"';
}

struct LogText {
    std::string operator()(std::monostate) const { return "Empty"; }
    std::string operator()(Null) const { return "Null"; }
    std::string operator()(Missing) const { return "Missing"; }
    std::string operator()(Unsupported) const { return "Unsupported"; }
    std::string operator()(const String& text) const { return quoted(text); }
    std::string operator()(const ObjectRef& object) const { return object ? "Object" : "Nothing"; }
    std::string operator()(const PictureRef& picture) const { return picture ? "Picture" : "Nothing"; }
    std::string operator()(const FontRef& font) const { return font ? "Font" : "Nothing"; }
    template <class Value>
    std::string operator()(const Value& value) const {
        return toUtf8(Variant(value).toText());
    }
};

} // namespace

std::string logText(const Variant& value) {
    // The same log under any settings.
    const UsingLocale invariant(invariantLocale());
    return value.visit(LogText{});
}

EventRecorder::Argument::Argument(std::string_view argumentName, const Variant& value)
    : name(argumentName), text(logText(value)) {}

void EventRecorder::record(std::string_view name, std::initializer_list<Argument> arguments) {
    std::string line(static_cast<std::size_t>(desktop_.yieldDepth()) * 2, ' ');
    line += name;
    for (const Argument& argument : arguments)
        line += ' ' + argument.name + '=' + argument.text;
    lines_.push_back(std::move(line));
    const auto found = bodies_.find(name);
    if (found == bodies_.end())
        return;
    const std::function<void()> body = found->second;
    body();
}

void EventRecorder::on(std::string_view name, std::function<void()> body) {
    if (body)
        bodies_.insert_or_assign(std::string(name), std::move(body));
    else if (const auto found = bodies_.find(name); found != bodies_.end())
        bodies_.erase(found);
}

} // namespace lumtex::headless
