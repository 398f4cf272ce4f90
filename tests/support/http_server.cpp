#include "support/http_server.h"

#include <fcntl.h>
#include <netinet/in.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <stdexcept>
#include <utility>

namespace vorlane {

namespace {

// A socket bound to a free port of 127.0.0.1.
int BindToFreePort(std::uint16_t& port) {
  const int socket = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  sockaddr_in address = {};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  socklen_t size = sizeof address;
  auto* generic = reinterpret_cast<sockaddr*>(&address);
  if (socket < 0 || bind(socket, generic, size) != 0 || getsockname(socket, generic, &size) != 0) {
    throw std::runtime_error("no port for a test's server");
  }
  port = ntohs(address.sin_port);
  return socket;
}

Text AddressOf(std::uint16_t port) {
  return u"127.0.0.1:" + DecimalText(port);
}

// How many bytes a request has as a whole; 0 while its headers aren't complete.
std::size_t RequestSize(std::string_view bytes) {
  const auto end = bytes.find("\r\n\r\n");
  if (end == std::string_view::npos) {
    return 0;
  }
  constexpr std::string_view Label = "Content-Length: ";
  const auto label = bytes.substr(0, end).find(Label);
  std::size_t body = 0;
  if (label != std::string_view::npos) {
    const char* digits = bytes.data() + label + Label.size();
    std::from_chars(digits, bytes.data() + end, body);
  }
  return end + 4 + body;
}

}  // namespace

std::string HttpConnection::ReadRequest() {
  std::string request;
  char buffer[4096];
  while (RequestSize(request) == 0 || request.size() < RequestSize(request)) {
    const ssize_t count = recv(socket_, buffer, sizeof buffer, 0);
    if (count <= 0) {
      break;
    }
    request.append(buffer, static_cast<std::size_t>(count));
  }
  const std::lock_guard lock(server_.mutex_);
  server_.requests_.push_back(request);
  return request;
}

void HttpConnection::Send(std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t count = send(socket_, bytes.data(), bytes.size(), MSG_NOSIGNAL);
    if (count <= 0) {
      return;  // the client has seen enough
    }
    bytes.remove_prefix(static_cast<std::size_t>(count));
  }
}

void HttpConnection::WaitForGo() {
  server_.go_.acquire();
}

bool HttpConnection::WaitForReset() {
  char buffer[4096];
  ssize_t count = 0;
  while ((count = recv(socket_, buffer, sizeof buffer, 0)) > 0) {
  }
  return count < 0 && errno == ECONNRESET;
}

void HttpConnection::Close() {
  const std::lock_guard lock(mutex_);
  if (socket_ >= 0) {
    close(std::exchange(socket_, -1));
  }
}

void HttpConnection::CloseWithReset() {
  linger atOnce = {};
  atOnce.l_onoff = 1;
  setsockopt(socket_, SOL_SOCKET, SO_LINGER, &atOnce, sizeof atOnce);
  Close();
}

void HttpConnection::BreakOff() {
  const std::lock_guard lock(mutex_);
  if (socket_ >= 0) {
    shutdown(socket_, SHUT_RDWR);
  }
}

HttpServer::HttpServer(std::vector<Script> scripts)
    : scripts_(std::move(scripts)), listener_(BindToFreePort(port_)) {
  if (listen(listener_, 16) != 0) {
    throw std::runtime_error("a test's server can't listen");
  }
  acceptor_ = std::thread([this] { Accept(); });
}

HttpServer::~HttpServer() {
  shutdown(listener_, SHUT_RDWR);
  {
    const std::lock_guard lock(mutex_);
    ending_ = true;
    for (const auto& connection : connections_) {
      connection->BreakOff();
    }
  }
  constexpr int MoreThanAnyScriptWaitsFor = 1000;
  go_.release(MoreThanAnyScriptWaitsFor);
  Finish();
  close(listener_);
}

Text HttpServer::Address() const {
  return AddressOf(port_);
}

void HttpServer::Accept() {
  for (const Script& script : scripts_) {
    const int socket = accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC);
    if (socket < 0) {
      return;
    }
    const std::lock_guard lock(mutex_);
    connections_.push_back(std::make_unique<HttpConnection>(*this, socket));
    HttpConnection& connection = *connections_.back();
    if (ending_) {
      connection.BreakOff();
    }
    threads_.emplace_back([&script, &connection] {
      script(connection);
      connection.Close();
    });
  }
}

void HttpServer::Finish() {
  if (acceptor_.joinable()) {
    acceptor_.join();
  }
  for (std::thread& thread : threads_) {
    if (thread.joinable()) {
      thread.join();
    }
  }
}

std::vector<std::string> HttpServer::Requests() {
  const std::lock_guard lock(mutex_);
  return requests_;
}

HttpServer::Script ReplyWith(std::vector<std::string> pieces) {
  return [pieces = std::move(pieces)](HttpConnection& connection) {
    connection.ReadRequest();
    for (std::size_t i = 0; i < pieces.size(); ++i) {
      if (i > 0) {
        connection.WaitForGo();
      }
      connection.Send(pieces[i]);
    }
  };
}

RefusedPort::RefusedPort() : socket_(BindToFreePort(port_)) {}

RefusedPort::~RefusedPort() {
  close(socket_);
}

Text RefusedPort::Address() const {
  return AddressOf(port_);
}

std::vector<int> OpenDescriptors() {
  rlimit limit = {};
  getrlimit(RLIMIT_NOFILE, &limit);
  constexpr rlim_t Enough = 1024;
  std::vector<int> open;
  for (int descriptor = 0; descriptor < static_cast<int>(std::min(limit.rlim_cur, Enough));
       ++descriptor) {
    if (fcntl(descriptor, F_GETFD) != -1) {
      open.push_back(descriptor);
    }
  }
  return open;
}

}  // namespace vorlane
