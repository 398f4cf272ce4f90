// A message loop that serves one socket and what a test puts into it, by poll.
#pragma once

#include <poll.h>

#include <deque>
#include <functional>

#include "net/socket_notices.h"
#include "platform/message_loop.h"

namespace vorlane {

class PollLoop final : public MessageLoop, public SocketNotices {
 public:
  // At each notice of the watched socket.
  std::function<void()> OnNotice;
  // Events like clicks: one runs in each turn of the loop.
  std::deque<std::function<void()>> Events;

  int Turns = 0;
  int Notices = 0;
  int Watched = -1;  // -1 while no socket is watched

  void Watch(int socket) override { Watched = socket; }
  void Unwatch() override { Watched = -1; }
  void Yield() override { Turn(0); }
  void YieldBlocking(int milliseconds) override { Turn(milliseconds); }

 private:
  void Turn(int milliseconds) {
    ++Turns;
    if (!Events.empty()) {
      const auto event = std::move(Events.front());
      Events.pop_front();
      event();
      return;
    }
    pollfd waiting = {Watched, POLLIN, 0};
    if (poll(&waiting, 1, milliseconds) > 0) {
      ++Notices;
      OnNotice();
    }
  }
};

}  // namespace vorlane
