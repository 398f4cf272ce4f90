// A server on 127.0.0.1 that does with each connection what a test's script says. The scripts run
// in threads of their own; they wait for each other and for the test by events, never by time.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <semaphore>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include "platform/text.h"

namespace vorlane {

class HttpServer;

// One accepted connection, closed when its script ends.
class HttpConnection {
 public:
  HttpConnection(HttpServer& server, int socket) : server_(server), socket_(socket) {}
  ~HttpConnection() { Close(); }
  HttpConnection(const HttpConnection&) = delete;
  HttpConnection& operator=(const HttpConnection&) = delete;

  // Everything up to the end of the request, and what came with it. Also kept by the server.
  std::string ReadRequest();
  void Send(std::string_view bytes);
  // Until the test calls HttpServer::Go once for it.
  void WaitForGo();
  // Reads on until the client has closed. True if the connection was reset.
  bool WaitForReset();
  void Close();
  void CloseWithReset();

  // From another thread: ends what the script waits for.
  void BreakOff();

 private:
  HttpServer& server_;
  std::mutex mutex_;
  int socket_;
};

class HttpServer {
 public:
  using Script = std::function<void(HttpConnection&)>;

  // One script for each connection that may come, in order.
  explicit HttpServer(std::vector<Script> scripts);
  // Breaks off the scripts that haven't come to their end.
  ~HttpServer();
  HttpServer(const HttpServer&) = delete;
  HttpServer& operator=(const HttpServer&) = delete;

  std::uint16_t Port() const { return port_; }
  Text Address() const;  // "127.0.0.1:40123"

  void Go() { go_.release(); }
  // Waits until every script has come to its end.
  void Finish();

  // The requests in the order of their arrival, as far as they have been read.
  std::vector<std::string> Requests();

 private:
  friend class HttpConnection;

  void Accept();

  std::vector<Script> scripts_;
  std::uint16_t port_ = 0;
  int listener_ = -1;
  std::counting_semaphore<> go_{0};
  std::mutex mutex_;
  bool ending_ = false;
  std::vector<std::string> requests_;
  std::vector<std::unique_ptr<HttpConnection>> connections_;
  std::vector<std::thread> threads_;
  std::thread acceptor_;
};

// A script that reads the request, sends these pieces, each but the first one after a Go, and
// closes.
HttpServer::Script ReplyWith(std::vector<std::string> pieces);

// A port of 127.0.0.1 at which nobody listens for as long as this lives.
class RefusedPort {
 public:
  RefusedPort();
  ~RefusedPort();
  RefusedPort(const RefusedPort&) = delete;
  RefusedPort& operator=(const RefusedPort&) = delete;

  std::uint16_t Port() const { return port_; }
  Text Address() const;

 private:
  std::uint16_t port_ = 0;
  int socket_ = -1;
};

// The numbers of the descriptors that this process has open.
std::vector<int> OpenDescriptors();

}  // namespace vorlane
