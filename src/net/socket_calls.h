// The calls that the reader of a socket makes itself.
#pragma once

#include <cstddef>
#include <string>

namespace vorlane {

struct ReceivedBytes {
  std::string Bytes;
  // Without bytes: the peer has closed the connection or it has failed. Otherwise there is just
  // nothing to read yet.
  bool Ended = false;
};

// What has arrived in a non-blocking socket, up to that many bytes, by one call.
ReceivedBytes ReceiveBytes(int socket, std::size_t limit);

void CloseSocket(int socket);

}  // namespace vorlane
