// How a socket tells that there is something to read: the event loop of whoever waits for it takes
// the place that a window's messages would have.
#pragma once

namespace vorlane {

class SocketNotices {
 public:
  virtual ~SocketNotices() = default;

  // From now on each turn of the event loop gives notice while data waits in the socket or the peer
  // has closed it. One socket is watched at a time: the one before is watched no longer.
  virtual void Watch(int socket) = 0;

  // No more notices, also from inside a notice. Comes before the event loop turns again when the
  // watched socket is closed.
  virtual void Unwatch() = 0;
};

}  // namespace vorlane
