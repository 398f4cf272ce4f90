// How a command ended, for the shell.
#pragma once

#include <stdexcept>
#include <string>

namespace vorlane {

enum class ExitStatus : int {
  Done = 0,      // all done, also when there was nothing to do
  Refused = 1,   // something was refused or failed; the rest was done
  Usage = 2,     // wrong arguments
  NotFound = 3,  // the folder, file or operation doesn't exist
};

// Ends a command before its work begins, with one clear line.
class CommandError : public std::runtime_error {
 public:
  CommandError(ExitStatus status, const std::string& message)
      : std::runtime_error(message), status_(status) {}

  ExitStatus Status() const { return status_; }

 private:
  ExitStatus status_;
};

}  // namespace vorlane
