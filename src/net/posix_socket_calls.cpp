#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>

#include "net/socket_calls.h"

namespace vorlane {

ReceivedBytes ReceiveBytes(int socket, std::size_t limit) {
  ReceivedBytes received;
  received.Bytes.resize(limit);
  const ssize_t count = recv(socket, received.Bytes.data(), limit, 0);
  // A peer that has closed is no error: errno then still holds that of some earlier call.
  received.Ended = count == 0 || (count < 0 && errno != EAGAIN && errno != EINTR);
  received.Bytes.resize(count > 0 ? static_cast<std::size_t>(count) : 0);
  return received;
}

void CloseSocket(int socket) {
  close(socket);
}

}  // namespace vorlane
