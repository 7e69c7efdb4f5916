#include "scripts/script_console.h"

#include "values/runtime_error.h"
#include "values/text.h"
#include "worlds/win32/object_bridge.h"

namespace lumtex::testing {

namespace {

/// A number that no other failure has.
constexpr Long scriptHasQuit = 1000;

/// What a script was given, as a collection.
class Arguments final : public Object {
  public:
    explicit Arguments(std::vector<String> texts) : texts_(std::move(texts)) {}

    Variant get(StringView name, std::span<Variant> arguments) override {
        if (sameName(name, u"Count") && arguments.empty())
            return static_cast<Long>(texts_.size());
        if (!sameName(name, u"Item") || arguments.size() != 1)
            throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
        const auto place = static_cast<std::size_t>(arguments[0].toLong());
        if (place >= texts_.size())
            throw RuntimeError(ErrorNumber::subscriptOutOfRange);
        return texts_[place];
    }
    void put(StringView /*name*/, const Variant& /*value*/) override {
        throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
    }
    Variant call(StringView name, std::span<Variant> arguments) override { return get(name, arguments); }

  private:
    std::vector<String> texts_;
};

} // namespace

ScriptConsole::ScriptConsole(const ScriptHost& host, String scriptPath, std::vector<String> arguments)
    : host_(host), scriptPath_(std::move(scriptPath)),
      arguments_(std::make_shared<Arguments>(std::move(arguments))) {}

ScriptConsole::~ScriptConsole() = default;

Variant ScriptConsole::get(StringView name, std::span<Variant> arguments) {
    if (sameName(name, u"ScriptFullName"))
        return scriptPath_;
    if (!sameName(name, u"Arguments"))
        throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
    return arguments.empty() ? Variant(arguments_) : arguments_->get(u"Item", arguments);
}

void ScriptConsole::put(StringView /*name*/, const Variant& /*value*/) {
    throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
}

Variant ScriptConsole::call(StringView name, std::span<Variant> arguments) {
    if (sameName(name, u"Echo")) {
        std::string line;
        for (const Variant& argument : arguments)
            line += (line.empty() ? "" : " ") + toUtf8(argument.toText());
        output += line + "\n";
        return {};
    }
    if (sameName(name, u"Quit")) {
        status = arguments.empty() ? 0 : arguments[0].toLong();
        throw RuntimeError(scriptHasQuit, u"The script has quit.");
    }
    if (sameName(name, u"ConnectObject")) {
        if (arguments.size() != 2)
            throw RuntimeError(ErrorNumber::wrongNumberOfArguments);
        const win32::ComRef<IDispatch> control = win32::toIDispatch(arguments[0].toObject());
        connections_.push_back(
            std::make_unique<ScriptEvents>(control.get(), host_.dispatch(), arguments[1].toText()));
        return {};
    }
    throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
}

} // namespace lumtex::testing
