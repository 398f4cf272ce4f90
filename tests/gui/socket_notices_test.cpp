// Notices of sockets by the window's event loop.
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QtTest>
#include <array>

#include "ui/qt_socket_notices.h"

namespace vorlane {
namespace {

struct Pair {
  Pair() { EXPECT_EQ(socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, Ends.data()), 0); }
  ~Pair() {
    close(Ends[0]);
    close(Ends[1]);
  }
  Pair(const Pair&) = delete;
  Pair& operator=(const Pair&) = delete;

  int Watched() const { return Ends[0]; }
  void Write() const { EXPECT_EQ(write(Ends[1], "x", 1), 1); }

  std::array<int, 2> Ends = {-1, -1};
};

constexpr int AWhile = 50;  // milliseconds

// The box of an answer runs the event loop inside the notice, with bytes still unread.
TEST(QtSocketNotices, NoneComesAfterAnUnwatchFromInsideOne) {
  const Pair pair;
  int notices = 0;
  QtSocketNotices* watched = nullptr;
  QtSocketNotices sockets([&] {
    ++notices;
    watched->Unwatch();
    QTest::qWait(AWhile);
  });
  watched = &sockets;
  sockets.Watch(pair.Watched());
  pair.Write();
  EXPECT_TRUE(QTest::qWaitFor([&] { return notices > 0; }));
  QTest::qWait(AWhile);
  EXPECT_EQ(notices, 1);
}

TEST(QtSocketNotices, OneSocketIsWatchedAtATime) {
  const Pair first;
  const Pair second;
  int notices = 0;
  QtSocketNotices sockets([&] {
    ++notices;
    char byte = 0;
    EXPECT_EQ(recv(second.Watched(), &byte, 1, MSG_DONTWAIT), 1);
  });
  sockets.Watch(first.Watched());
  sockets.Watch(second.Watched());
  first.Write();
  second.Write();
  EXPECT_TRUE(QTest::qWaitFor([&] { return notices > 0; }));
  QTest::qWait(AWhile);
  EXPECT_EQ(notices, 1);
}

}  // namespace
}  // namespace vorlane
