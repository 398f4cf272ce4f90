#include "net/ov_winsock.h"

#include <arpa/inet.h>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>

#include "net/socket_calls.h"
#include "support/http_server.h"
#include "support/poll_loop.h"

namespace vorlane {

namespace {

// Makes the next send fail as if the connection had broken behind its making.
class BreakingNotices final : public SocketNotices {
 public:
  int Watched = -1;

  void Watch(int socket) override {
    Watched = socket;
    shutdown(socket, SHUT_WR);
  }
  void Unwatch() override { Watched = -1; }
};

linger LingerOf(int socket) {
  linger value = {};
  socklen_t size = sizeof value;
  getsockopt(socket, SOL_SOCKET, SO_LINGER, &value, &size);
  return value;
}

std::int16_t SignedPort(std::uint16_t port) {
  return static_cast<std::int16_t>(port);
}

}  // namespace

TEST(OvWinsock, GetReachesTheServerByteForByte) {
  HttpServer server({ReplyWith({})});
  PollLoop window;
  const int socket =
      OvWinsock().SendHttpRequest(server.Address() + u"/a.txt", u"GET", window, u"", u"unsent");
  ASSERT_GT(socket, 0);
  EXPECT_EQ(window.Watched, socket);
  server.Finish();
  CloseSocket(socket);
  EXPECT_EQ(server.Requests(), std::vector<std::string>{"GET /a.txt HTTP/1.0\r\n"
                                                        "Accept: */*\r\n"
                                                        "User-Agent: Vorlane 2006\r\n"
                                                        "Host: 127.0.0.1\r\n"
                                                        "\r\n"});
}

TEST(OvWinsock, PostReachesTheServerByteForByte) {
  HttpServer server({ReplyWith({})});
  PollLoop window;
  const int socket = OvWinsock().SendHttpRequest(u"http://" + server.Address(), u"POST", window,
                                                 u"", u"name=\u00FC&page=2");
  ASSERT_GT(socket, 0);
  server.Finish();
  CloseSocket(socket);
  EXPECT_EQ(server.Requests(),
            std::vector<std::string>{"POST / HTTP/1.0\r\n"
                                     "Accept: */*\r\n"
                                     "User-Agent: Vorlane 2006\r\n"
                                     "Host: 127.0.0.1\r\n"
                                     "Content-Type: application/x-www-form-urlencoded\r\n"
                                     "Content-Length: 13\r\n"
                                     "\r\n"
                                     "name=\xFC&page=2"});
}

TEST(OvWinsock, ProxyIsAskedForTheWholeUrl) {
  HttpServer proxy({ReplyWith({})});
  PollLoop window;
  const int socket =
      OvWinsock().SendHttpRequest(u"example.test/a.txt", u"GET", window, proxy.Address(), u"");
  ASSERT_GT(socket, 0);
  proxy.Finish();
  CloseSocket(socket);
  EXPECT_EQ(proxy.Requests(), std::vector<std::string>{"GET http://example.test/a.txt HTTP/1.0\r\n"
                                                       "Accept: */*\r\n"
                                                       "User-Agent: Vorlane 2006\r\n"
                                                       "Host: 127.0.0.1\r\n"
                                                       "\r\n"});
}

TEST(OvWinsock, EveryFailureIsMinusOneAndLeavesNothingOpen) {
  const auto before = OpenDescriptors();
  {
    const RefusedPort refused;
    const std::pair<Text, Text> cases[] = {
        {refused.Address(), u""},
        {u"example.test/", refused.Address()},
        {u"example.test/", u"127.0.0.1"},
        {u"example.test/", u"127.0.0.1:"},
        {u"example.test/", u"127.0.0.1:port"},
        {u"example.test/", u"ftp=b:2"},
        {u"127.0.0.1:65535/", u""},
        {u"127.0.0.1:80a/", u""},
        {u"/", u""},
        {u"", u""},
        {u"127.0.0.1.5.6/", u""},
        {u"no such host/", u""},
        {Text(u"127.0.0.1\0.test", 14), u""},
    };
    for (const auto& [url, proxy] : cases) {
      PollLoop window;
      EXPECT_EQ(OvWinsock().SendHttpRequest(url, u"GET", window, proxy, u""), -1);
      EXPECT_EQ(window.Watched, -1);
    }
  }
  EXPECT_EQ(OpenDescriptors(), before);
}

TEST(OvWinsock, RequestThatCantBeSent) {
  signal(SIGPIPE, SIG_DFL);
  HttpServer server({[](HttpConnection& connection) { connection.WaitForReset(); }});
  const auto before = OpenDescriptors().size();
  BreakingNotices window;
  EXPECT_EQ(OvWinsock().SendHttpRequest(server.Address(), u"GET", window, u"", u""), -1);
  EXPECT_EQ(window.Watched, -1);
  server.Finish();
  EXPECT_EQ(OpenDescriptors().size(), before);
}

TEST(OvWinsock, ConnectedSocket) {
  HttpServer server({[](HttpConnection& connection) { connection.WaitForReset(); }});
  PollLoop window;
  const int socket = OvWinsock().ConnectToHost(u"127.0.0.1", SignedPort(server.Port()), window);
  ASSERT_GT(socket, 0);
  EXPECT_EQ(window.Watched, socket);
  EXPECT_NE(fcntl(socket, F_GETFL) & O_NONBLOCK, 0);
  EXPECT_NE(fcntl(socket, F_GETFD) & FD_CLOEXEC, 0);
  EXPECT_NE(LingerOf(socket).l_onoff, 0);
  EXPECT_EQ(LingerOf(socket).l_linger, 0);
  CloseSocket(socket);
}

TEST(OvWinsock, ClosingResetsTheConnection) {
  bool reset = false;
  HttpServer server({[&reset](HttpConnection& connection) { reset = connection.WaitForReset(); }});
  PollLoop window;
  CloseSocket(OvWinsock().ConnectToHost(u"127.0.0.1", SignedPort(server.Port()), window));
  server.Finish();
  EXPECT_TRUE(reset);
}

TEST(OvWinsock, SocketIsNeverZero) {
  const int input = dup(STDIN_FILENO);
  close(STDIN_FILENO);
  {
    HttpServer server({[](HttpConnection& connection) { connection.WaitForReset(); }});
    // The server's own socket has got the number.
    EXPECT_NE(fcntl(STDIN_FILENO, F_GETFD), -1);
    const int listener = dup(STDIN_FILENO);
    ASSERT_GT(listener, 0);
    close(STDIN_FILENO);
    PollLoop window;
    const int socket = OvWinsock().ConnectToHost(u"127.0.0.1", SignedPort(server.Port()), window);
    EXPECT_GT(socket, 0);
    CloseSocket(socket);
    server.Finish();
    EXPECT_EQ(fcntl(STDIN_FILENO, F_GETFD), -1);
    dup2(listener, STDIN_FILENO);
    close(listener);
  }
  if (input >= 0) {
    dup2(input, STDIN_FILENO);
    close(input);
  }
}

TEST(OvWinsock, ResolveHost) {
  OvWinsock sockets;
  const auto address = [](const char* dotted) {
    return static_cast<std::int32_t>(inet_addr(dotted));
  };
  EXPECT_EQ(sockets.ResolveHost(u"127.0.0.1"), address("127.0.0.1"));
  EXPECT_EQ(sockets.ResolveHost(u"1.2.3.4"), address("1.2.3.4"));
  EXPECT_EQ(sockets.ResolveHost(u"localhost"), address("127.0.0.1"));
  for (const TextView nobody :
       {TextView(u""), TextView(u" "), TextView(u"256.1.1.1"), TextView(u"127.0.0.1\r\nX: y"),
        TextView(u"h\u20ACst"), TextView(u"127.0.0.1\0x", 11)}) {
    EXPECT_EQ(sockets.ResolveHost(nobody), -1);
  }
}

TEST(OvWinsock, SocketSendTakesTextAndBytes) {
  std::string got;
  HttpServer server({[&got](HttpConnection& connection) { got = connection.ReadRequest(); }});
  PollLoop window;
  OvWinsock sockets;
  int socket = sockets.ConnectToHost(u"127.0.0.1", SignedPort(server.Port()), window);
  const int number = socket;
  sockets.SocketSend(socket, u"");
  sockets.SocketSend(socket, "");
  sockets.SocketSend(socket, u"\u20AC\u65E5");
  sockets.SocketSend(socket, std::string_view("\0\xFF\r\n\r\n", 6));
  EXPECT_EQ(socket, number);
  server.Finish();
  CloseSocket(socket);
  EXPECT_EQ(got, std::string("\x80?\0\xFF\r\n\r\n", 8));
}

TEST(OvWinsock, SendingIntoAClosedConnectionRaisesNoSignal) {
  signal(SIGPIPE, SIG_DFL);
  HttpServer server({[](HttpConnection& connection) { connection.CloseWithReset(); }});
  PollLoop window;
  OvWinsock sockets;
  int socket = sockets.ConnectToHost(u"127.0.0.1", SignedPort(server.Port()), window);
  ASSERT_GT(socket, 0);
  server.Finish();
  const int number = socket;
  window.OnNotice = [&] { EXPECT_TRUE(ReceiveBytes(socket, 10).Ended); };
  window.YieldBlocking(5000);
  EXPECT_EQ(window.Notices, 1);
  sockets.SocketSend(socket, u"GET");
  EXPECT_EQ(socket, -1);
  EXPECT_EQ(fcntl(number, F_GETFD), -1);
}

TEST(OvWinsock, LingerOfWhatIsNoSocket) {
  OvWinsock sockets;
  EXPECT_EQ(sockets.SetSocketLinger(-1, true, 0), -1);
  const int socket = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  EXPECT_EQ(sockets.SetSocketLinger(socket, true, 7), 0);
  EXPECT_EQ(LingerOf(socket).l_linger, 7);
  EXPECT_EQ(sockets.SetSocketLinger(socket, false, 0), 0);
  EXPECT_EQ(LingerOf(socket).l_onoff, 0);
  CloseSocket(socket);
}

TEST(OvWinsock, StartSockets) {
  OvWinsock sockets;
  Text description = u"left from before";
  EXPECT_TRUE(sockets.StartSockets(description));
  EXPECT_TRUE(sockets.StartSockets(description));
  EXPECT_EQ(description, u"");
}

// Somebody does listen there: what is refused is the number.
TEST(OvWinsock, PortMinusOneIsNoPort) {
  const int listener = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  sockaddr_in address = {};
  address.sin_family = AF_INET;
  address.sin_port = htons(65535);
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  if (bind(listener, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 ||
      listen(listener, 1) != 0) {
    CloseSocket(listener);
    GTEST_SKIP() << "the port is taken";
  }
  PollLoop window;
  EXPECT_EQ(OvWinsock().ConnectToHost(u"127.0.0.1", -1, window), -1);
  EXPECT_EQ(window.Watched, -1);
  CloseSocket(listener);
}

// One call; the system takes what it has room for.
TEST(OvWinsock, SendingMoreThanTheSystemTakesReturnsAtOnce) {
  HttpServer server({[](HttpConnection& connection) { connection.WaitForGo(); }});
  PollLoop window;
  OvWinsock sockets;
  int socket = sockets.ConnectToHost(u"127.0.0.1", SignedPort(server.Port()), window);
  const int number = socket;
  sockets.SocketSend(socket, std::string(32'000'000, 'x'));
  EXPECT_EQ(socket, number);
  server.Go();
  server.Finish();
  CloseSocket(socket);
}

TEST(ReceiveBytes, AClosedPeerIsTheEndWhateverTheLastErrorWas) {
  HttpServer server({[](HttpConnection&) {}});
  PollLoop window;
  const int socket = OvWinsock().ConnectToHost(u"127.0.0.1", SignedPort(server.Port()), window);
  server.Finish();
  bool ended = false;
  window.OnNotice = [&] {
    errno = EAGAIN;
    ended = ReceiveBytes(socket, 10).Ended;
  };
  window.YieldBlocking(5000);
  EXPECT_TRUE(ended);
  CloseSocket(socket);
}

}  // namespace vorlane
