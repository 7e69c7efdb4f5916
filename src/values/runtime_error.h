/// \file
/// A failed statement, with the classic number and text that reports carry.
#pragma once

#include "values/types.h"

#include <exception>
#include <memory>
#include <string>
#include <utility>

namespace lumtex {

/// The run-time error numbers that the control itself can raise.
enum class ErrorNumber : Long {
    invalidProcedureCall = 5,
    overflow = 6,
    outOfMemory = 7,
    subscriptOutOfRange = 9,
    divisionByZero = 11,
    typeMismatch = 13,
    badFileNumber = 52,
    fileNotFound = 53,
    fileAlreadyOpen = 55,
    deviceError = 57,
    diskFull = 61,
    inputPastEnd = 62,
    pathFileAccess = 75,
    pathNotFound = 76,
    objectVariableNotSet = 91,
    invalidPatternString = 93,
    invalidUseOfNull = 94,
    invalidFileFormat = 321,
    cannotCreateObject = 429,
    objectDoesNotSupportMember = 438,
    automationError = 440,
    argumentNotOptional = 449,
    wrongNumberOfArguments = 450,
    invalidPicture = 481,
};

constexpr Long numberOf(ErrorNumber error) {
    return static_cast<Long>(error);
}
/// A number may come from anywhere: from the control, from a host, from the platform.
constexpr bool operator==(Long number, ErrorNumber error) {
    return number == numberOf(error);
}

/// The text that goes with a number; "Application-defined or object-defined error" for an unknown one.
const String& errorDescription(Long number);

/// Thrown by a failing primitive; never leaves a public procedure.
///
/// Shares its texts, so that neither copying one nor making one from a number asks for memory: a report that
/// memory ran out must not fail for the same reason.
class RuntimeError : public std::exception {
  public:
    explicit RuntimeError(Long number);
    explicit RuntimeError(ErrorNumber error) : RuntimeError(numberOf(error)) {}
    RuntimeError(Long number, String description);
    RuntimeError(ErrorNumber error, String description)
        : RuntimeError(numberOf(error), std::move(description)) {}

    Long number() const { return number_; }
    const String& description() const { return texts_->description; }
    /// The description as UTF-8.
    const char* what() const noexcept override { return texts_->utf8.c_str(); }

    struct Texts {
        String description;
        std::string utf8;
    };

  private:
    Long number_;
    std::shared_ptr<const Texts> texts_;
};

} // namespace lumtex
