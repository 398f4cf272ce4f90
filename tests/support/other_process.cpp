#include "support/other_process.h"

#include <grp.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <exception>
#include <stdexcept>

namespace vorlane {

namespace {

struct Pipe {
  Pipe() {
    if (pipe(Ends) != 0) {
      throw std::runtime_error("no pipe");
    }
  }
  int Ends[2] = {};
};

void DropRights() {
  constexpr uid_t Nobody = 65534;
  if (geteuid() == 0 &&
      (setgroups(0, nullptr) != 0 || setgid(Nobody) != 0 || setuid(Nobody) != 0)) {
    throw std::runtime_error("can't become an ordinary user");
  }
}

}  // namespace

OtherProcess::OtherProcess(const std::function<bool()>& start) {
  const Pipe started;
  const Pipe end;
  process_ = fork();
  if (process_ == 0) {
    close(end.Ends[1]);
    const char good = start() ? 1 : 0;
    char ignored = 0;
    // Waits for the other end to be closed.
    _exit(write(started.Ends[1], &good, 1) == 1 && read(end.Ends[0], &ignored, 1) == 0 ? 0 : 1);
  }
  close(started.Ends[1]);
  close(end.Ends[0]);
  end_ = end.Ends[1];
  char good = 0;
  const bool answered = read(started.Ends[0], &good, 1) == 1;
  close(started.Ends[0]);
  if (!answered || good == 0) {
    throw std::runtime_error("the other process failed");
  }
}

OtherProcess::~OtherProcess() {
  close(end_);
  waitpid(process_, nullptr, 0);
}

void AsOrdinaryUser(const std::function<void()>& steps) {
  std::fflush(nullptr);
  const pid_t process = fork();
  if (process == 0) {
    try {
      DropRights();
      steps();
    } catch (const std::exception& error) {
      ADD_FAILURE() << error.what();
    }
    std::fflush(nullptr);
    _exit(testing::Test::HasFailure() ? 1 : 0);
  }
  int status = -1;
  waitpid(process, &status, 0);
  EXPECT_EQ(status, 0) << "the steps failed in their process";
}

}  // namespace vorlane
