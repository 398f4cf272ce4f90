#include <signal.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <initializer_list>

#include "platform/stop_signals.h"

namespace vorlane {

namespace {

// A signal handler may do little more than write a byte, and has to leave errno as it was.
int writeEnd = -1;

void NoteSignal(int /*signal*/) {
  const int error = errno;
  const char byte = 1;
  [[maybe_unused]] const auto written = write(writeEnd, &byte, 1);
  errno = error;
}

}  // namespace

int OpenStopSignals() {
  int ends[2];
  if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, ends) != 0) {
    return -1;
  }
  writeEnd = ends[0];
  struct sigaction action = {};
  action.sa_handler = NoteSignal;
  action.sa_flags = SA_RESTART;
  sigemptyset(&action.sa_mask);
  for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
    sigaction(signal, &action, nullptr);
  }
  return ends[1];
}

void DrainStopSignals(int descriptor) {
  char bytes[16];
  while (read(descriptor, bytes, sizeof bytes) > 0) {
  }
}

}  // namespace vorlane
