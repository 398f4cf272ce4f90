#include "platform/failure.h"

namespace vorlane {

Text DescriptionOf(int number) {
  switch (static_cast<ErrorNumber>(number)) {
    case ErrorNumber::InvalidArgument:
      return u"Invalid procedure call or argument";
    case ErrorNumber::Overflow:
      return u"Overflow";
    case ErrorNumber::OutOfMemory:
      return u"Out of memory";
    case ErrorNumber::SubscriptOutOfRange:
      return u"Subscript out of range";
    case ErrorNumber::DivisionByZero:
      return u"Division by zero";
    case ErrorNumber::TypeMismatch:
      return u"Type mismatch";
    case ErrorNumber::BadFileName:
      return u"Bad file name or number";
    case ErrorNumber::FileNotFound:
      return u"File not found";
    case ErrorNumber::DeviceError:
      return u"Device I/O error";
    case ErrorNumber::FileExists:
      return u"File already exists";
    case ErrorNumber::DiskFull:
      return u"Disk full";
    case ErrorNumber::PastEndOfFile:
      return u"Input past end of file";
    case ErrorNumber::TooManyFiles:
      return u"Too many files";
    case ErrorNumber::PermissionDenied:
      return u"Permission denied";
    case ErrorNumber::PathAccess:
      return u"Path/File access error";
    case ErrorNumber::PathNotFound:
      return u"Path not found";
  }
  return u"Application-defined or object-defined error";
}

RunError::RunError(ErrorNumber number)
    : RunError(static_cast<int>(number), DescriptionOf(static_cast<int>(number))) {}

RunError::RunError(int number, Text description)
    : number_(number), description_(std::move(description)) {}

}  // namespace vorlane
