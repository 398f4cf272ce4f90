#include "ui/stop_signal.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/socket.h>
#include <unistd.h>

namespace vorlane {

namespace {

// A signal handler may do no more than write a byte; the notifier reads it in the event loop.
int ends[2] = {-1, -1};

void NoteSignal(int /*signal*/) {
  const char byte = 1;
  [[maybe_unused]] const auto written = write(ends[0], &byte, 1);
}

}  // namespace

StopSignal::StopSignal(std::function<void()> onStop) : onStop_(std::move(onStop)) {
  if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, ends) != 0) {
    return;
  }
  notifier_ = std::make_unique<QSocketNotifier>(ends[1], QSocketNotifier::Read);
  QObject::connect(notifier_.get(), &QSocketNotifier::activated, [this] {
    Drain();
    onStop_();
  });
  struct sigaction action {};
  action.sa_handler = NoteSignal;
  action.sa_flags = SA_RESTART;
  sigaction(SIGTERM, &action, nullptr);
  sigaction(SIGINT, &action, nullptr);
  sigaction(SIGHUP, &action, nullptr);
}

StopSignal::~StopSignal() {
  notifier_.reset();
}

void StopSignal::Drain() {
  char bytes[16];
  while (read(ends[1], bytes, sizeof bytes) > 0) {
  }
}

}  // namespace vorlane
