// OvWinsock: a minimal HTTP/1.0 client on plain sockets. It connects with a blocking call, writes
// one request and leaves the reading to its caller, who gets a notice when data arrives. Nothing
// here looks at a response.
//
// A socket number is above 0; the caller keeps it and closes it. Every failure is the value -1 and
// no words.
#pragma once

#include <cstdint>
#include <string_view>

#include "net/socket_notices.h"
#include "platform/text.h"

namespace vorlane {

class OvWinsock {
 public:
  // Connects to the URL's host, or to the proxy ("host:port") if there is one, and sends the
  // request. Blocks while the host is looked up and the connection is made. The socket is watched
  // when this returns; after a failure nothing is, and nothing is open. The first of `window`'s
  // sockets that this call replaces stays open.
  int SendHttpRequest(TextView url, TextView method, SocketNotices& window, TextView proxy,
                      TextView body);

  // The port as its 16 bits in a signed number; -1 isn't a port. The socket is non-blocking, and
  // closing it resets the connection at once.
  int ConnectToHost(TextView host, std::int16_t port, SocketNotices& window);

  // The first IPv4 address of a dotted address or a name, in network order.
  std::int32_t ResolveHost(TextView host);

  // Sends text in the 8-bit code page, or bytes as they are, by one call; a part that the system
  // doesn't take is lost. If the call fails the socket is closed and its number becomes -1. Never
  // raises a signal.
  void SocketSend(int& socket, TextView text);
  void SocketSend(int& socket, std::string_view bytes);

  // 0, or -1 on failure.
  int SetSocketLinger(int socket, bool on, int seconds);

  // Starts the socket library if that hasn't been done. True if it has started; `description` is
  // then the library's own words about itself, of which POSIX has none.
  bool StartSockets(Text& description);

  // Cancels a blocking socket call that is running. On POSIX none can be: there is one thread, and
  // nothing else runs on it until the call has returned.
  void CancelBlocking();

  // True if any running network interface other than loopback has an IPv4 address.
  bool IsConnected();

 private:
  bool started_ = false;
};

}  // namespace vorlane
