#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>

namespace lyrebrook {

/// Numbers of the run-time errors that the product can show in its general error dialog.
enum class RuntimeErrorNumber : std::int32_t {
    invalidProcedureCall = 5,
    overflow = 6,
    outOfMemory = 7,
    subscriptOutOfRange = 9,
    divisionByZero = 11,
    typeMismatch = 13,
    badFileName = 52,
    fileNotFound = 53,
    deviceInputOutput = 57,
    fileAlreadyExists = 58,
    diskFull = 61,
    inputPastEndOfFile = 62,
    deviceUnavailable = 68,
    permissionDenied = 70,
    diskNotReady = 71,
    pathFileAccess = 75,
    pathNotFound = 76,
    automation = 440,
    printerError = 482,
};

/// A failure that the product answers with a text: a number and a description for the person at the screen, in UTF-8.
/// Thrown by the platform's layers, caught where the product traps errors, else shown by the general error dialog.
class RuntimeError : public std::runtime_error {
  public:
    RuntimeError(RuntimeErrorNumber number, const std::string& description);

    std::int32_t number() const noexcept { return static_cast<std::int32_t>(number_); }
    std::string description() const { return what(); }

  private:
    RuntimeErrorNumber number_;
};

}  // namespace lyrebrook
