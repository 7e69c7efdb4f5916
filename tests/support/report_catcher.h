/// \file
/// An error handler that keeps every report, so that tests can ask for number, text and count.
#pragma once

#include "values/references/object.h"
#include "values/runtime_error.h"
#include "values/text.h"
#include "values/variant.h"

#include <functional>
#include <memory>
#include <vector>

namespace lumtex {

/// Stands for the automation object "LumtexErrorHandler.ErrorHandler": have the runtime's `createObject` give
/// it.
class ReportCatcher final : public Object {
  public:
    static constexpr StringView programId = u"LumtexErrorHandler.ErrorHandler";

    /// The eight arguments of each call, as they came.
    std::vector<std::vector<Variant>> calls;
    /// Runs within each call, with its arguments; may throw, or change what came by reference.
    std::function<void(std::span<Variant>)> onRaiseError = [](std::span<Variant> /*arguments*/) {};

    /// The reports so far as "number procedure: description", one line each.
    String reports() const {
        String lines;
        for (const std::vector<Variant>& call : calls)
            lines += call[2].toText() + u" " + call[4].toText() + u": " + call[3].toText() + u"\n";
        return lines;
    }

    Variant get(StringView /*name*/, std::span<Variant> /*arguments*/) override {
        throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
    }
    void put(StringView /*name*/, const Variant& /*value*/) override {
        throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
    }
    Variant call(StringView name, std::span<Variant> arguments) override {
        if (!sameName(name, u"RaiseError") || arguments.size() != 8)
            throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
        calls.emplace_back(arguments.begin(), arguments.end());
        const auto handle = onRaiseError; // a copy, since it may put something else in its place
        handle(arguments);
        return {};
    }
};

} // namespace lumtex
