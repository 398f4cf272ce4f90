#include "ui/about_box.h"

#include <gtest/gtest.h>
#include <time.h>

#include <QtTest>
#include <QtWidgets>

#include "support/fake_proxy.h"
#include "support/http_server.h"
#include "support/recording_prompter.h"
#include "ui/qt_message_loop.h"
#include "ui/qt_prompter.h"
#include "ui/qt_text.h"

namespace vorlane {

namespace {

constexpr std::uint64_t Patience = 10000;
constexpr std::uint64_t NoPatience = 40;

struct AboutWorld {
  explicit AboutWorld(const Text& host, std::uint64_t wait = Patience)
      : AboutWorld(host, wait, Recorded) {}
  AboutWorld(const Text& host, std::uint64_t wait, Prompter& prompts)
      : Box({Gate, Sockets, Proxy, Time, Loop, prompts, [] { return true; },
             [this](const QString& address) { Opened << address; }},
            {u"1.20", host, wait}) {
    Box.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&Box));
  }

  template <typename Control>
  Control& Find(const char* name) {
    auto* found = Box.findChild<Control*>(QString::fromLatin1(name));
    EXPECT_NE(found, nullptr) << name;
    return *found;
  }
  QString TextOf(const char* label) { return Find<QLabel>(label).text(); }
  void Click(const char* name) { QTest::mouseClick(&Find<QWidget>(name), Qt::LeftButton); }
  bool IsAtRest() {
    return TextOf("lblUpdate") == QStringLiteral("Check for Update") &&
           Box.cursor().shape() == Qt::ArrowCursor &&
           Find<QLabel>("lblUpdate").cursor().shape() == Qt::PointingHandCursor;
  }

  JobStates Jobs;
  EventGate Gate{Jobs};
  OvWinsock Sockets;
  FakeProxy Proxy;
  SystemClock Time;
  QtMessageLoop Loop;
  RecordingPrompter Recorded;
  QStringList Opened;
  AboutBox Box;
};

bool WaitFor(const std::function<bool()>& condition) {
  return QTest::qWaitFor(condition, 5000);
}

std::vector<Text> TextsOf(const RecordingPrompter& prompts) {
  std::vector<Text> texts;
  for (const auto& box : prompts.Boxes) {
    texts.push_back(box.Message);
  }
  return texts;
}

// The texts with which a label is painted.
class PaintWatch final : public QObject {
 public:
  explicit PaintWatch(QLabel& label) : label_(label) { label.installEventFilter(this); }
  QStringList Texts;

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) {
      Texts << label_.text();
    }
    return false;
  }

 private:
  QLabel& label_;
};

// How long this process has computed, in milliseconds.
double ComputingTime() {
  timespec time = {};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

// A script that sends the text once the test says Go.
HttpServer::Script AnswerLater(const std::string& text) {
  return [text](HttpConnection& connection) {
    connection.ReadRequest();
    connection.WaitForGo();
    connection.Send(text);
    connection.WaitForReset();
  };
}

}  // namespace

TEST(AboutBox, Contents) {
  AboutWorld world(u"127.0.0.1:1");
  EXPECT_EQ(world.Box.objectName(), QStringLiteral("frmAbout"));
  EXPECT_EQ(world.Box.windowTitle(), QStringLiteral("Vorlane 2006 - About"));
  EXPECT_EQ(world.TextOf("lblTitle"), QStringLiteral("Vorlane 2006"));
  EXPECT_EQ(world.TextOf("lblversion"), QStringLiteral("Version 1.20"));
  EXPECT_EQ(world.TextOf("lblUpdate"), QStringLiteral("Check for Update"));
  EXPECT_EQ(world.TextOf("lblURL"), ToQString(VendorAddress));
  EXPECT_EQ(world.Find<QPushButton>("cmdOK").text(), QStringLiteral("OK"));
  EXPECT_EQ(world.Find<QPushButton>("cmdExit").text(), QStringLiteral("Exit"));
  EXPECT_EQ(world.Find<QLabel>("lblUpdate").cursor().shape(), Qt::PointingHandCursor);
  EXPECT_EQ(world.Find<QLabel>("lblURL").cursor().shape(), Qt::PointingHandCursor);
  EXPECT_EQ(world.Find<QLabel>("lblversion").cursor().shape(), Qt::ArrowCursor);
}

TEST(AboutBox, LinkOpensTheVendorsAddress) {
  AboutWorld world(u"127.0.0.1:1");
  world.Click("lblURL");
  EXPECT_EQ(world.Opened, QStringList{ToQString(VendorAddress)});
  QTest::mouseClick(&world.Find<QWidget>("lblURL"), Qt::RightButton);
  EXPECT_EQ(world.Opened.size(), 1);
  QTest::keyClick(&world.Find<QWidget>("lblURL"), Qt::Key_Space);
  QTest::keyClick(&world.Find<QWidget>("lblURL"), Qt::Key_Return);
  EXPECT_EQ(world.Opened.size(), 3);
  EXPECT_TRUE(world.Box.isVisible());
}

TEST(AboutBox, ADoubleClickIsOneClick) {
  AboutWorld world(u"127.0.0.1:1");
  auto& link = world.Find<QWidget>("lblURL");
  const QPointF middle = link.rect().center();
  for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease,
                          QEvent::MouseButtonDblClick, QEvent::MouseButtonRelease}) {
    QMouseEvent event(type, middle, link.mapToGlobal(middle), Qt::LeftButton,
                      type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton,
                      Qt::NoModifier);
    QApplication::sendEvent(&link, &event);
  }
  EXPECT_EQ(world.Opened.size(), 1);
}

// The desktop hands addresses of a scheme to whoever asks for them.
class AddressCatcher final : public QTextBrowser {
 public:
  QList<QUrl> Urls;

 protected:
  void doSetSource(const QUrl& url, QTextDocument::ResourceType /*type*/) override { Urls << url; }
};

TEST(OpenInBrowser, AnAddressIsOpenedAndNoneIsNot) {
  AddressCatcher catcher;
  QDesktopServices::setUrlHandler(QStringLiteral("https"), &catcher, "setSource");
  OpenInBrowser(ToQString(VendorAddress));
  OpenInBrowser({});
  QDesktopServices::unsetUrlHandler(QStringLiteral("https"));
  EXPECT_EQ(catcher.Urls, QList<QUrl>{QUrl(ToQString(VendorAddress))});
}

TEST(AboutBox, OkClosesTheBox) {
  AboutWorld world(u"127.0.0.1:1");
  bool exited = false;
  world.Box.OnExit = [&] { exited = true; };
  world.Click("cmdOK");
  EXPECT_FALSE(world.Box.isVisible());
  EXPECT_FALSE(exited);
  world.Box.show();
  QTest::keyClick(&world.Box, Qt::Key_Escape);
  EXPECT_FALSE(world.Box.isVisible());
  EXPECT_FALSE(exited);
}

TEST(AboutBox, ExitClosesTheBoxFirst) {
  AboutWorld world(u"127.0.0.1:1");
  int exits = 0;
  world.Box.OnExit = [&] {
    ++exits;
    EXPECT_FALSE(world.Box.isVisible());
  };
  world.Click("cmdExit");
  EXPECT_EQ(exits, 1);
}

TEST(AboutBox, CheckShowsTheAnswer) {
  HttpServer server({ReplyWith({"HTTP/1.0 200 OK\r\n\r\nVersion 1.30\r\nis out."})});
  AboutWorld world(server.Address());
  world.Click("lblUpdate");
  ASSERT_EQ(world.Recorded.Boxes.size(), 1U);
  EXPECT_EQ(world.Recorded.Boxes[0],
            (RecordingPrompter::Box{BoxIcon::Information, u"Vorlane 2006 Version 1.20",
                                    u"Version 1.30\r\nis out."}));
  EXPECT_TRUE(world.IsAtRest());
  EXPECT_TRUE(world.Gate.IsIdle());
}

TEST(AboutBox, CheckByTheKeyboard) {
  HttpServer server({ReplyWith({"text"})});
  AboutWorld world(server.Address());
  QTest::keyClick(&world.Find<QWidget>("lblUpdate"), Qt::Key_Return);
  EXPECT_EQ(TextsOf(world.Recorded), std::vector<Text>{u"text"});
}

TEST(AboutBox, WhatIsSeenDuringTheWait) {
  HttpServer server({AnswerLater("text")});
  AboutWorld world(server.Address());
  bool seen = false;
  QTimer::singleShot(0, &world.Box, [&] {
    seen = true;
    EXPECT_EQ(world.TextOf("lblUpdate"), QStringLiteral("Checking..."));
    EXPECT_EQ(world.Box.cursor().shape(), Qt::WaitCursor);
    EXPECT_EQ(world.Find<QLabel>("lblUpdate").cursor().shape(), Qt::WaitCursor);
    EXPECT_FALSE(world.Gate.IsIdle());
    server.Go();
  });
  world.Click("lblUpdate");
  EXPECT_TRUE(seen);
  EXPECT_EQ(TextsOf(world.Recorded), std::vector<Text>{u"text"});
  EXPECT_TRUE(world.IsAtRest());
}

TEST(AboutBox, RefusedConnection) {
  const RefusedPort refused;
  AboutWorld world(refused.Address());
  PaintWatch painted(world.Find<QLabel>("lblUpdate"));
  world.Click("lblUpdate");
  // The call that follows may block: the caption has to be on the screen before.
  EXPECT_TRUE(painted.Texts.contains("Checking...")) << painted.Texts.join('|').toStdString();
  EXPECT_TRUE(world.IsAtRest());
  EXPECT_TRUE(world.Recorded.Boxes.empty());
}

TEST(AboutBox, LateAnswerIsShownOnce) {
  const auto before = OpenDescriptors();
  {
    HttpServer server({AnswerLater("late")});
    AboutWorld world(server.Address(), NoPatience);
    world.Click("lblUpdate");
    EXPECT_TRUE(world.IsAtRest());
    EXPECT_TRUE(world.Recorded.Boxes.empty());
    server.Go();
    EXPECT_TRUE(WaitFor([&] { return !world.Recorded.Boxes.empty(); }));
    server.Finish();
    QTest::qWait(static_cast<int>(NoPatience));
    EXPECT_EQ(TextsOf(world.Recorded), std::vector<Text>{u"late"});
    EXPECT_TRUE(world.IsAtRest());
  }
  EXPECT_EQ(OpenDescriptors(), before);
}

// Nothing may close the window under the box of a late answer.
TEST(AboutBox, ALateAnswerCountsAsAHandlerThatRuns) {
  class GatePrompter final : public Prompter {
   public:
    const EventGate* Gate = nullptr;
    std::vector<bool> Idle;
    void Show(BoxIcon, TextView, TextView) override { Idle.push_back(Gate->IsIdle()); }
    BoxAnswer AskYesNo(BoxIcon, TextView, TextView, BoxAnswer unasked) override { return unasked; }
  };
  HttpServer server({AnswerLater("late")});
  GatePrompter prompts;
  AboutWorld world(server.Address(), NoPatience, prompts);
  prompts.Gate = &world.Gate;
  world.Click("lblUpdate");
  server.Go();
  EXPECT_TRUE(WaitFor([&] { return !prompts.Idle.empty(); }));
  EXPECT_EQ(prompts.Idle, std::vector<bool>{false});
}

TEST(AboutBox, WaitingTakesNoComputingTime) {
  constexpr std::uint64_t Long = 400;
  HttpServer server({AnswerLater("")});
  AboutWorld world(server.Address(), Long);
  QTest::qWait(static_cast<int>(NoPatience));
  const double before = ComputingTime();
  world.Click("lblUpdate");
  EXPECT_LT(ComputingTime() - before, Long / 4.0);
}

TEST(AboutBox, SecondClickDuringTheWait) {
  HttpServer server({AnswerLater("first"), ReplyWith({"second"})});
  AboutWorld world(server.Address());
  QTimer::singleShot(0, &world.Box, [&] { world.Click("lblUpdate"); });
  world.Click("lblUpdate");
  EXPECT_EQ(TextsOf(world.Recorded), std::vector<Text>{u"second"});
  EXPECT_TRUE(world.IsAtRest());

  // The forgotten answer lies in its socket, and nobody is told of it again and again.
  server.Go();
  QTest::qWait(static_cast<int>(NoPatience));
  const double before = ComputingTime();
  constexpr int Long = 300;
  QTest::qWait(Long);
  EXPECT_LT(ComputingTime() - before, Long / 3.0);
  EXPECT_EQ(world.Recorded.Boxes.size(), 1U);
}

TEST(AboutBox, ClosedDuringTheWait) {
  HttpServer server({AnswerLater("text")});
  AboutWorld world(server.Address());
  QTimer::singleShot(0, &world.Box, [&] {
    world.Click("cmdOK");
    server.Go();
  });
  world.Click("lblUpdate");
  EXPECT_FALSE(world.Box.isVisible());
  EXPECT_EQ(TextsOf(world.Recorded), std::vector<Text>{u"text"});
  EXPECT_TRUE(world.IsAtRest());
}

TEST(AboutBox, EndCheckEndsTheWait) {
  HttpServer server({AnswerLater("")});
  AboutWorld world(server.Address());
  QElapsedTimer time;
  time.start();
  QTimer::singleShot(0, &world.Box, [&] { world.Box.EndCheck(); });
  world.Click("lblUpdate");
  EXPECT_LT(time.elapsed(), static_cast<qint64>(Patience / 2));
  EXPECT_TRUE(world.IsAtRest());
  EXPECT_TRUE(world.Gate.IsIdle());
}

TEST(AboutBox, AnswerIsPlainTextOnTheScreen) {
  const std::string text =
      "<a href=\"https://x.test/\">click</a><img src=\"https://x.test/i\">\x1B";
  HttpServer server({ReplyWith({text})});
  QtPrompter prompts;
  AboutWorld world(server.Address(), Patience, prompts);
  int boxes = 0;
  QTimer poll;
  QObject::connect(&poll, &QTimer::timeout, [&] {
    if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
      ++boxes;
      EXPECT_EQ(box->textFormat(), Qt::PlainText);
      EXPECT_EQ(box->text().toStdString(), text.substr(0, text.size() - 1) + ' ');
      EXPECT_EQ(box->icon(), QMessageBox::Information);
      box->accept();
    }
  });
  poll.start(10);
  world.Click("lblUpdate");
  EXPECT_EQ(boxes, 1);
  EXPECT_TRUE(world.IsAtRest());
}

// A long answer, in lines or without any: the box stays on the screen, and so does its button.
TEST(AboutBox, LongAnswerFitsTheScreen) {
  std::string lines;
  while (lines.size() < 8000) {
    lines += "a\n";
  }
  for (const std::string& text : {lines, std::string(8000, 'x'), std::string(8000, '\n'),
                                  "see https://x.test/" + std::string(300, 'x') + " for more"}) {
    HttpServer server({ReplyWith({text})});
    QtPrompter prompts;
    AboutWorld world(server.Address(), Patience, prompts);
    QSize size;
    QString details;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, [&] {
      if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
        size = box->frameSize();
        details = box->detailedText();
        box->accept();
      }
    });
    poll.start(10);
    world.Click("lblUpdate");
    const QSize screen = QGuiApplication::primaryScreen()->availableSize();
    EXPECT_LE(size.width(), screen.width());
    EXPECT_LE(size.height(), screen.height());
    EXPECT_GT(size.height(), 0);
    // What is cut off can be had.
    EXPECT_TRUE(details.toStdString() == text);
  }
}

}  // namespace vorlane
