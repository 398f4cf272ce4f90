#include <signal.h>
#include <unistd.h>

#include "platform/console.h"

namespace vorlane {

namespace {

volatile sig_atomic_t stopSignalled = 0;

void NoteStop(int) {
  stopSignalled = 1;
}

}  // namespace

bool StandardOutputIsTerminal() {
  return isatty(STDOUT_FILENO) == 1;
}

bool StandardErrorIsTerminal() {
  return isatty(STDERR_FILENO) == 1;
}

void CatchStopSignals() {
  struct sigaction action = {};
  action.sa_handler = NoteStop;
  action.sa_flags = SA_RESTART;
  sigemptyset(&action.sa_mask);
  sigaction(SIGINT, &action, nullptr);
  sigaction(SIGTERM, &action, nullptr);
}

bool StopSignalled() {
  return stopSignalled != 0;
}

}  // namespace vorlane
