// Failures. One value type, and one function for each style in which a routine meets a failure, so
// that a reader sees at once which style a routine has:
//
//   Quiet      Attempt(...)            the step is dropped where it stands, the next one runs
//   Reporting  ReportingFailures(...)  the failure is reported, the caller tidies up and goes on
//
// A routine that neither attempts nor reports lets the failure go to its caller.
#pragma once

#include <exception>
#include <utility>

#include "platform/text.h"

namespace vorlane {

// A run-time failure with the number by which it is known. The numbers in use:
enum class ErrorNumber : int {
  InvalidArgument = 5,
  Overflow = 6,
  OutOfMemory = 7,
  SubscriptOutOfRange = 9,
  DivisionByZero = 11,
  TypeMismatch = 13,
  BadFileName = 52,
  FileNotFound = 53,
  DeviceError = 57,
  FileExists = 58,
  DiskFull = 61,
  PastEndOfFile = 62,
  TooManyFiles = 67,
  PermissionDenied = 70,
  PathAccess = 75,
  PathNotFound = 76,
};

class RunError : public std::exception {
 public:
  // The description is the English one of that number.
  explicit RunError(ErrorNumber number);
  RunError(int number, Text description);

  int Number() const { return number_; }
  const Text& Description() const { return description_; }
  const char* what() const noexcept override { return "vorlane::RunError"; }

 private:
  int number_;
  Text description_;
};

// The English description of a failure number; "Application-defined or object-defined error" for
// one that isn't in the list above.
Text DescriptionOf(int number);

// Where failures that a person should know of are told.
class FailureReport {
 public:
  virtual ~FailureReport() = default;

  // `module` may be empty; `procedure` is the routine's own name; `extra` is more for the reader,
  // such as a file's name.
  virtual void ReportError(TextView module, TextView procedure, TextView extra,
                           const RunError& error) = 0;
};

// Runs the step and drops its failure. True if it ran to its end.
template <typename Step>
bool Attempt(Step&& step) {
  try {
    std::forward<Step>(step)();
    return true;
  } catch (const RunError&) {
    return false;
  }
}

// Runs the steps; a failure is reported under the routine's name and ends them. True if they ran
// to their end.
template <typename Steps>
bool ReportingFailures(FailureReport& report, TextView module, TextView procedure, TextView extra,
                       Steps&& steps) {
  try {
    std::forward<Steps>(steps)();
    return true;
  } catch (const RunError& error) {
    report.ReportError(module, procedure, extra, error);
    return false;
  }
}

}  // namespace vorlane
