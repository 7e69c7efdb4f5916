/// \file
/// A failed statement, with the classic number and text that reports carry.
#pragma once

#include "platform/types.h"

#include <stdexcept>
#include <utility>

namespace lumtex {

/// The run-time error numbers that the control itself can raise.
enum ErrorNumber : Long {
    invalidProcedureCall = 5,
    overflow = 6,
    outOfMemory = 7,
    subscriptOutOfRange = 9,
    divisionByZero = 11,
    typeMismatch = 13,
    fileNotFound = 53,
    fileAlreadyOpen = 55,
    deviceError = 57,
    pathNotFound = 76,
    objectVariableNotSet = 91,
    invalidPatternString = 93,
    invalidUseOfNull = 94,
    objectDoesNotSupportMember = 438,
    invalidPicture = 481,
};

/// The text that goes with a number; "Application-defined or object-defined error" for an unknown one.
String errorDescription(Long number);

/// Thrown by a failing primitive; never leaves a public procedure.
class RuntimeError : public std::runtime_error {
  public:
    explicit RuntimeError(Long number);
    RuntimeError(Long number, String description);

    Long number() const { return number_; }
    const String& description() const { return description_; }

  private:
    Long number_;
    String description_;
};

} // namespace lumtex
