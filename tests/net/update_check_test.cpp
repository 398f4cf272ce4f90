#include "net/update_check.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>

#include "net/socket_calls.h"
#include "platform/code_page.h"
#include "support/fake_proxy.h"
#include "support/form_world.h"
#include "support/http_server.h"
#include "support/poll_loop.h"

namespace vorlane {

namespace {

class RecordingView final : public UpdateCheckView {
 public:
  std::vector<std::string> Captions;
  std::vector<bool> Hourglass;

  void SetUpdateCaption(TextView caption) override { Captions.push_back(CodePageBytes(caption)); }
  void SetHourglass(bool shown) override { Hourglass.push_back(shown); }
};

class AnsweringPrompter final : public Prompter {
 public:
  std::vector<std::string> Shown;
  std::vector<std::string> Titles;
  std::vector<std::string> Asked;
  BoxAnswer Answer = BoxAnswer::No;
  std::function<void()> OnShow;

  void Show(BoxIcon icon, TextView title, TextView text) override {
    EXPECT_EQ(icon, BoxIcon::Information);
    Titles.push_back(CodePageBytes(title));
    Shown.push_back(CodePageBytes(text));
    if (OnShow) {
      OnShow();
    }
  }
  BoxAnswer AskYesNo(BoxIcon, TextView, TextView text, BoxAnswer unasked) override {
    EXPECT_EQ(unasked, BoxAnswer::No);
    Asked.push_back(CodePageBytes(text));
    return Answer;
  }
};

constexpr std::uint64_t Patience = 10000;  // for what comes
constexpr std::uint64_t NoPatience = 40;   // for what doesn't

struct CheckWorld {
  explicit CheckWorld(const Text& host, std::uint64_t wait = Patience)
      : Check({Sockets, Loop, Proxy, Time, Loop, Prompts, [this] { return Connected; }}, View,
              {u"1.20", host, wait}) {
    Loop.OnNotice = [this] { Check.DataArrival(); };
  }

  // Serves notices until there is none for a while.
  void ServeNotices() {
    constexpr int MoreThanAnyTestHas = 20;
    int notices = -1;
    for (int turn = 0; Loop.Notices != notices; ++turn) {
      ASSERT_LT(turn, MoreThanAnyTestHas) << "the notices don't end";
      notices = Loop.Notices;
      Loop.YieldBlocking(static_cast<int>(NoPatience));
    }
  }

  OvWinsock Sockets;
  PollLoop Loop;
  FakeProxy Proxy;
  SystemClock Time;
  AnsweringPrompter Prompts;
  RecordingView View;
  bool Connected = true;
  UpdateCheck Check;
};

const std::vector<std::string> CaptionAndBack = {"Checking...", "Check for Update"};
const std::vector<bool> HourglassAndBack = {true, false};
const std::string Headers = "HTTP/1.0 200 OK\r\nContent-Type: text/plain\r\n\r\n";

// A full check against a server that sends these pieces, the next one whenever the one before has
// been read, and closes. Gives what was shown.
std::vector<std::string> CheckAgainst(const std::vector<std::string>& pieces) {
  const auto before = OpenDescriptors();
  std::vector<std::string> shown;
  {
    HttpServer server({ReplyWith(pieces)});
    CheckWorld world(server.Address());
    world.Loop.OnNotice = [&] {
      world.Check.DataArrival();
      server.Go();
    };
    world.Check.lblUpdate_Click();
    EXPECT_EQ(world.Loop.Watched, -1);
    world.ServeNotices();
    server.Finish();
    EXPECT_EQ(world.View.Captions, CaptionAndBack);
    EXPECT_EQ(world.View.Hourglass, HourglassAndBack);
    EXPECT_EQ(world.Prompts.Asked, std::vector<std::string>());
    shown = world.Prompts.Shown;
  }
  EXPECT_EQ(OpenDescriptors(), before);
  return shown;
}

using Texts = std::vector<std::string>;

}  // namespace

TEST(UpdateCheck, Replies) {
  EXPECT_EQ(CheckAgainst({Headers + "Version 1.30\r\nis out."}), Texts{"Version 1.30\r\nis out."});
  EXPECT_EQ(CheckAgainst({"no headers\r\n\r\nat all"}), Texts{"no headers\r\n\r\nat all"});
  EXPECT_EQ(CheckAgainst({"http/1.0 200 OK\r\n\r\nx"}), Texts{"http/1.0 200 OK\r\n\r\nx"});
  EXPECT_EQ(CheckAgainst({"HTTP/1.0 404 Not Found\r\n\r\nNot here"}), Texts{"Not here"});
  EXPECT_EQ(CheckAgainst({Headers + "a\r\n\r\nb"}), Texts{"a\r\n\r\nb"});
}

TEST(UpdateCheck, RepliesWithoutText) {
  EXPECT_EQ(CheckAgainst({}), Texts());
  EXPECT_EQ(CheckAgainst({Headers}), Texts());
  EXPECT_EQ(CheckAgainst({"HTTP/1.0 200 OK\r\nServer: x\r\n"}), Texts());
}

TEST(UpdateCheck, HeadersAloneAndTheBodyLater) {
  EXPECT_EQ(CheckAgainst({Headers, "the body"}), Texts{"the body"});
}

TEST(UpdateCheck, OnlyTheFirstPartIsShown) {
  EXPECT_EQ(CheckAgainst({Headers + "first", "second"}), Texts{"first"});
  EXPECT_EQ(CheckAgainst({"first", Headers + "second"}), Texts{"first"});
}

// What has arrived is read by one call of 8192 bytes.
TEST(UpdateCheck, LongReplyIsCut) {
  const std::string body(20480, 'x');
  HttpServer server({ReplyWith({Headers + body})});
  CheckWorld world(server.Address());
  world.Loop.OnNotice = [&] {
    server.Finish();
    world.Check.DataArrival();
  };
  world.Check.lblUpdate_Click();
  EXPECT_EQ(world.Prompts.Shown, Texts{std::string(8192 - Headers.size(), 'x')});
}

TEST(UpdateCheck, TheShippedOneAsksTheVendorAndWaitsTenSeconds) {
  EXPECT_EQ(UpdateCheckSettings().Host, VendorHost);
  EXPECT_EQ(UpdateCheckSettings().WaitMilliseconds, 10000U);
}

TEST(UpdateCheck, HeadersInTwoParts) {
  EXPECT_EQ(CheckAgainst({"HTTP/1.0 200 OK\r\nA: b", "\r\nC: d\r\n\r\nbody"}),
            Texts{"\r\nC: d\r\n\r\nbody"});
}

TEST(UpdateCheck, WhatTheServerSaysIsMadeHarmless) {
  using namespace std::string_literals;
  const auto reply = "a\0b\x1B[31m\tc\x7F\x81\x9D\r\n<a href=\"x\">\xE9\x80</a>\n"s;
  EXPECT_EQ(CheckAgainst({Headers + reply}),
            Texts{"a b [31m\tc   \r\n<a href=\"x\">\xE9\x80</a>\n"});
}

TEST(UpdateCheck, TitleAndRequest) {
  HttpServer server({ReplyWith({"text"})});
  CheckWorld world(server.Address());
  world.Check.lblUpdate_Click();
  EXPECT_EQ(world.Prompts.Titles, Texts{"Vorlane 2006 Version 1.20"});
  EXPECT_EQ(server.Requests(), Texts{"GET /vorl.txt HTTP/1.0\r\n"
                                     "Accept: */*\r\n"
                                     "User-Agent: Vorlane 2006\r\n"
                                     "Host: 127.0.0.1\r\n"
                                     "\r\n"});
}

TEST(UpdateCheck, VendorIsAskedThroughTheProxy) {
  HttpServer proxy({ReplyWith({"text"})});
  CheckWorld world{Text(VendorHost)};
  world.Proxy.Server = proxy.Address();
  world.Proxy.Enable = 0;
  world.Check.lblUpdate_Click();
  EXPECT_EQ(world.Prompts.Shown, Texts{"text"});
  ASSERT_EQ(proxy.Requests().size(), 1U);
  EXPECT_TRUE(
      proxy.Requests()[0].starts_with("GET http://www.vorlane.example/vorl.txt HTTP/1.0\r\n"));
}

TEST(UpdateCheck, NoConnection) {
  HttpServer server({ReplyWith({"text"})});
  CheckWorld world(server.Address());
  world.Connected = false;
  world.Check.lblUpdate_Click();
  const std::string question = "No Internet connection has been detected, check for Update anyway?";
  EXPECT_EQ(world.Prompts.Asked, Texts{question});
  EXPECT_EQ(world.View.Captions, Texts());
  EXPECT_EQ(world.View.Hourglass, std::vector<bool>());
  EXPECT_EQ(server.Requests(), Texts());

  world.Prompts.Answer = BoxAnswer::Yes;
  world.Check.lblUpdate_Click();
  EXPECT_EQ(world.Prompts.Asked.size(), 2U);
  EXPECT_EQ(world.Prompts.Shown, Texts{"text"});
}

TEST(UpdateCheck, NoHostSwitchesItOff) {
  CheckWorld world(u"");
  world.Connected = false;
  world.Check.lblUpdate_Click();
  EXPECT_EQ(world.Prompts.Asked, Texts());
  EXPECT_EQ(world.View.Captions, Texts());
  EXPECT_EQ(world.Loop.Turns, 0);
}

TEST(UpdateCheck, FailedRequestEndsTheWaitAtOnce) {
  const RefusedPort refused;
  for (const auto& [host, proxy] :
       {std::pair<Text, Text>{refused.Address(), u""}, {u"x.test", u"ftp=b:2"}, {u":1", u""}}) {
    CheckWorld world(host);
    world.Proxy.Server = proxy;
    world.Check.lblUpdate_Click();
    EXPECT_EQ(world.View.Captions, CaptionAndBack);
    EXPECT_EQ(world.View.Hourglass, HourglassAndBack);
    EXPECT_EQ(world.Prompts.Shown, Texts());
    EXPECT_EQ(world.Loop.Turns, 0);
  }
}

TEST(UpdateCheck, BrokenConnections) {
  const std::pair<const char*, HttpServer::Script> cases[] = {
      {"closed at once", [](HttpConnection&) {}},
      {"reset at once", [](HttpConnection& connection) { connection.CloseWithReset(); }},
      {"reset behind the request",
       [](HttpConnection& connection) {
         connection.ReadRequest();
         connection.CloseWithReset();
       }},
      {"reset behind the headers",
       [](HttpConnection& connection) {
         connection.ReadRequest();
         connection.Send(Headers);
         connection.WaitForGo();
         connection.CloseWithReset();
       }},
  };
  signal(SIGPIPE, SIG_DFL);
  const auto before = OpenDescriptors();
  for (const auto& [what, script] : cases) {
    HttpServer server({script});
    CheckWorld world(server.Address());
    world.Loop.OnNotice = [&] {
      world.Check.DataArrival();
      server.Go();
    };
    world.Check.lblUpdate_Click();
    EXPECT_EQ(world.View.Captions, CaptionAndBack) << what;
    EXPECT_EQ(world.View.Hourglass, HourglassAndBack) << what;
    EXPECT_EQ(world.Prompts.Shown, Texts()) << what;
    EXPECT_EQ(world.Loop.Watched, -1) << what;
  }
  EXPECT_EQ(OpenDescriptors(), before);
}

TEST(UpdateCheck, SilentServerAndALateAnswer) {
  const auto before = OpenDescriptors();
  {
    HttpServer server({[](HttpConnection& connection) {
      connection.ReadRequest();
      connection.WaitForGo();
      connection.Send("late");
      connection.WaitForReset();
    }});
    CheckWorld world(server.Address(), NoPatience);
    world.Check.lblUpdate_Click();
    EXPECT_EQ(world.View.Captions, CaptionAndBack);
    EXPECT_EQ(world.View.Hourglass, HourglassAndBack);
    EXPECT_EQ(world.Prompts.Shown, Texts());
    EXPECT_NE(world.Loop.Watched, -1);

    server.Go();
    world.Loop.YieldBlocking(static_cast<int>(Patience));
    EXPECT_EQ(world.Prompts.Shown, Texts{"late"});
    EXPECT_EQ(world.Loop.Watched, -1);
    world.ServeNotices();
    EXPECT_EQ(world.Prompts.Shown.size(), 1U);
    EXPECT_EQ(world.View.Captions, CaptionAndBack);
    server.Finish();
  }
  EXPECT_EQ(OpenDescriptors(), before);
}

TEST(UpdateCheck, WaitingSleeps) {
  HttpServer server({[](HttpConnection& connection) { connection.WaitForReset(); }});
  CheckWorld world(server.Address(), NoPatience);
  world.Check.lblUpdate_Click();
  // One sleep; more only if the system wakes a little early.
  EXPECT_GE(world.Loop.Turns, 1);
  EXPECT_LE(world.Loop.Turns, 3);
  EXPECT_EQ(world.Loop.Notices, 0);
}

// A clock and a loop of the test's own: a sleep ends a millisecond early.
class EarlyLoop final : public MessageLoop {
 public:
  explicit EarlyLoop(SettableClock& clock) : clock_(clock) {}
  std::vector<int> Sleeps;

  void Yield() override { ADD_FAILURE() << "it doesn't sleep"; }
  void YieldBlocking(int milliseconds) override {
    Sleeps.push_back(milliseconds);
    clock_.Ms += static_cast<std::uint64_t>(std::max(1, milliseconds - 1));
  }

 private:
  SettableClock& clock_;
};

TEST(UpdateCheck, TheWaitEndsWithItsLastMillisecond) {
  HttpServer server({[](HttpConnection& connection) { connection.WaitForReset(); }});
  CheckWorld world(server.Address());
  SettableClock clock;
  EarlyLoop loop(clock);
  UpdateCheck check(
      {world.Sockets, world.Loop, world.Proxy, clock, loop, world.Prompts, [] { return true; }},
      world.View, {u"1.20", server.Address()});
  check.lblUpdate_Click();
  EXPECT_EQ(loop.Sleeps, (std::vector<int>{10000, 1}));
}

TEST(UpdateCheck, TheAnswerIsShownBeforeTheConnectionIsClosed) {
  HttpServer server({ReplyWith({"text"})});
  CheckWorld world(server.Address());
  int socket = -1;
  bool wasOpen = false;
  world.Loop.OnNotice = [&] {
    socket = world.Loop.Watched;
    world.Check.DataArrival();
  };
  world.Prompts.OnShow = [&] { wasOpen = fcntl(socket, F_GETFD) != -1; };
  world.Check.lblUpdate_Click();
  EXPECT_TRUE(wasOpen);
  EXPECT_EQ(fcntl(socket, F_GETFD), -1);
}

TEST(UpdateCheck, SecondClickDuringTheWait) {
  const auto before = OpenDescriptors();
  {
    bool firstAnswered = false;
    HttpServer server({[&](HttpConnection& connection) {
                         connection.ReadRequest();
                         connection.WaitForGo();
                         connection.Send("first");
                         firstAnswered = true;
                       },
                       ReplyWith({"second"})});
    CheckWorld world(server.Address());
    world.Loop.Events.push_back([&] { world.Check.lblUpdate_Click(); });
    world.Check.lblUpdate_Click();
    EXPECT_EQ(world.Prompts.Shown, Texts{"second"});
    EXPECT_EQ(world.View.Captions,
              (Texts{"Checking...", "Checking...", "Check for Update", "Check for Update"}));

    // The forgotten answer comes and isn't shown, and nothing asks for it again and again.
    server.Go();
    server.Finish();
    EXPECT_TRUE(firstAnswered);
    const int notices = world.Loop.Notices;
    world.ServeNotices();
    EXPECT_EQ(world.Loop.Notices, notices);
    EXPECT_EQ(world.Prompts.Shown.size(), 1U);
  }
  // The forgotten socket is all that stays open.
  const auto after = OpenDescriptors();
  std::vector<int> forgotten;
  std::set_difference(after.begin(), after.end(), before.begin(), before.end(),
                      std::back_inserter(forgotten));
  ASSERT_EQ(forgotten.size(), 1U);
  CloseSocket(forgotten[0]);
}

TEST(UpdateCheck, SecondRequestThatFailsEndsBothWaits) {
  int forgotten = -1;
  {
    HttpServer server({ReplyWith({"first"})});
    CheckWorld world(server.Address());
    world.Loop.OnNotice = [] { ADD_FAILURE() << "a forgotten socket gives notice"; };
    world.Loop.Events.push_back([&] {
      forgotten = world.Loop.Watched;
      world.Proxy.Server = u"nowhere";
      world.Check.lblUpdate_Click();
    });
    world.Check.lblUpdate_Click();
    EXPECT_EQ(world.View.Captions.back(), "Check for Update");
    EXPECT_EQ(world.Loop.Watched, -1);
    world.ServeNotices();
    EXPECT_EQ(world.Prompts.Shown, Texts());
  }
  EXPECT_NE(fcntl(forgotten, F_GETFD), -1);
  CloseSocket(forgotten);
}

TEST(UpdateCheck, NoNoticeReachesACheckWhoseBoxIsOpen) {
  HttpServer server({ReplyWith({"first", "second"})});
  CheckWorld world(server.Address());
  world.Prompts.OnShow = [&] {
    server.Go();
    server.Finish();
    world.ServeNotices();
    world.Check.DataArrival();
  };
  world.Check.lblUpdate_Click();
  EXPECT_EQ(world.Prompts.Shown, Texts{"first"});
}

TEST(UpdateCheck, NoticeWithoutData) {
  HttpServer server({ReplyWith({"", "text"})});
  CheckWorld world(server.Address());
  world.Loop.Events.push_back([&] {
    world.Check.DataArrival();
    EXPECT_NE(world.Loop.Watched, -1);
    server.Go();
  });
  world.Check.lblUpdate_Click();
  EXPECT_EQ(world.Prompts.Shown, Texts{"text"});
  world.Check.DataArrival();
  EXPECT_EQ(world.Prompts.Shown.size(), 1U);
}

TEST(UpdateCheck, EndCheckEndsTheWait) {
  bool reset = false;
  HttpServer server({[&](HttpConnection& connection) {
    connection.ReadRequest();
    reset = connection.WaitForReset();
  }});
  CheckWorld world(server.Address());
  world.Loop.Events.push_back([&] { world.Check.EndCheck(); });
  world.Check.lblUpdate_Click();
  EXPECT_EQ(world.Loop.Turns, 1);
  EXPECT_EQ(world.View.Captions, CaptionAndBack);
  server.Finish();
  EXPECT_TRUE(reset);
  world.Check.EndCheck();
}

}  // namespace vorlane
