// Other processes, for what only they can show: files held by somebody else, and what a user who
// isn't the superuser may not do.
#pragma once

#include <sys/types.h>

#include <functional>

namespace vorlane {

// A process that does one thing and keeps what it has until this object's life ends.
class OtherProcess {
 public:
  // Returns when `start` has run there. Throws std::runtime_error if it returned false.
  explicit OtherProcess(const std::function<bool()>& start);
  OtherProcess(const OtherProcess&) = delete;
  OtherProcess& operator=(const OtherProcess&) = delete;
  ~OtherProcess();

 private:
  pid_t process_ = -1;
  int end_ = -1;  // closing it ends the process
};

// Runs a test's steps in a process of their own, as a user with no special rights. Their failures
// become a failure of the test.
void AsOrdinaryUser(const std::function<void()>& steps);

}  // namespace vorlane
