#include <arpa/inet.h>
#include <fcntl.h>
#include <ifaddrs.h>
#include <netdb.h>
#include <netinet/in.h>
#include <sys/socket.h>

#include <cstring>
#include <memory>

#include "net/ov_winsock.h"
#include "net/posix_interfaces.h"
#include "net/socket_calls.h"
#include "platform/code_page.h"

namespace vorlane {

namespace {

// Above 0, or -1. A number of 0 means "no socket" to those who keep it.
int OpenTcpSocket() {
  const int socket = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, IPPROTO_TCP);
  if (socket != 0) {
    return socket;
  }
  const int other = fcntl(socket, F_DUPFD_CLOEXEC, 1);
  CloseSocket(socket);
  return other;
}

bool Connect(int socket, std::int32_t address, std::uint16_t networkPort) {
  sockaddr_in record = {};
  record.sin_family = AF_INET;
  record.sin_port = networkPort;
  record.sin_addr.s_addr = static_cast<in_addr_t>(address);
  return connect(socket, reinterpret_cast<const sockaddr*>(&record), sizeof record) == 0;
}

bool MakeNonBlocking(int socket) {
  const int flags = fcntl(socket, F_GETFL);
  return flags != -1 && fcntl(socket, F_SETFL, flags | O_NONBLOCK) == 0;
}

}  // namespace

int OvWinsock::ConnectToHost(TextView host, std::int16_t port, SocketNotices& window) {
  Text description;
  StartSockets(description);
  const std::uint16_t networkPort = htons(static_cast<std::uint16_t>(port));
  if (static_cast<std::int16_t>(networkPort) == -1) {
    return -1;
  }
  const std::int32_t address = ResolveHost(host);
  if (address == -1) {
    return -1;
  }
  const int socket = OpenTcpSocket();
  if (socket != -1 && SetSocketLinger(socket, true, 0) == 0 &&
      Connect(socket, address, networkPort) && MakeNonBlocking(socket)) {
    window.Watch(socket);
    return socket;
  }
  if (socket != -1) {
    CloseSocket(socket);
  }
  CancelBlocking();
  return -1;
}

std::int32_t OvWinsock::ResolveHost(TextView host) {
  const std::string name = CodePageBytes(host);
  if (name.find('\0') != std::string::npos) {
    return -1;  // the system would look up what stands in front of it
  }
  addrinfo wanted = {};
  wanted.ai_family = AF_INET;
  wanted.ai_socktype = SOCK_STREAM;
  addrinfo* found = nullptr;
  if (getaddrinfo(name.c_str(), nullptr, &wanted, &found) != 0) {
    return -1;
  }
  const std::unique_ptr<addrinfo, decltype(&freeaddrinfo)> list(found, freeaddrinfo);
  sockaddr_in first = {};
  std::memcpy(&first, list->ai_addr, sizeof first);
  return static_cast<std::int32_t>(first.sin_addr.s_addr);
}

void OvWinsock::SocketSend(int& socket, std::string_view bytes) {
  if (bytes.empty()) {
    return;
  }
  if (send(socket, bytes.data(), bytes.size(), MSG_NOSIGNAL) == -1) {
    CloseSocket(socket);
    socket = -1;
    CancelBlocking();
  }
}

int OvWinsock::SetSocketLinger(int socket, bool on, int seconds) {
  linger value = {};
  value.l_onoff = on ? 1 : 0;
  value.l_linger = seconds;
  if (setsockopt(socket, SOL_SOCKET, SO_LINGER, &value, sizeof value) != 0) {
    return -1;
  }
  socklen_t size = sizeof value;
  return getsockopt(socket, SOL_SOCKET, SO_LINGER, &value, &size) == 0 ? 0 : -1;
}

bool OvWinsock::StartSockets(Text& description) {
  description.clear();
  started_ = true;
  return started_;
}

void OvWinsock::CancelBlocking() {}

bool OvWinsock::IsConnected() {
  ifaddrs* found = nullptr;
  if (getifaddrs(&found) != 0) {
    return false;
  }
  const std::unique_ptr<ifaddrs, decltype(&freeifaddrs)> list(found, freeifaddrs);
  return ReachesOutside(list.get());
}

}  // namespace vorlane
