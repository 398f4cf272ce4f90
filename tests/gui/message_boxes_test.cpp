// The program's questions and messages as the boxes that a person sees.
#include "gui/window_world.h"
#include "ui/qt_prompter.h"

namespace vorlane {
namespace {

// Looks at the box as soon as it is open, and does something with it.
template <typename Look>
void WhenOpen(Look&& look) {
  QTimer::singleShot(0, [look] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    look(*box);
  });
}

TEST(MessageBoxes, HaveTheIconThatWasAskedFor) {
  QtPrompter prompts;
  for (const auto& [icon, shown] : {std::pair{BoxIcon::Information, QMessageBox::Information},
                                    {BoxIcon::Question, QMessageBox::Question},
                                    {BoxIcon::Exclamation, QMessageBox::Warning},
                                    {BoxIcon::Stop, QMessageBox::Critical},
                                    {BoxIcon::None, QMessageBox::NoIcon}}) {
    bool seen = false;
    WhenOpen([&seen, shown = shown](QMessageBox& box) {
      seen = true;
      EXPECT_EQ(box.icon(), shown);
      EXPECT_EQ(box.windowTitle(), "title");
      EXPECT_EQ(box.standardButtons(), QMessageBox::Ok);
      box.accept();
    });
    prompts.Show(icon, u"title", u"text");
    EXPECT_TRUE(seen);
  }
}

// A file name may look like markup.
TEST(MessageBoxes, ShowTheirTextAsItIs) {
  QtPrompter prompts;
  WhenOpen([](QMessageBox& box) {
    EXPECT_EQ(box.textFormat(), Qt::PlainText);
    EXPECT_EQ(box.text(), "<b>a</b> & <img src='x'>");
    box.accept();
  });
  prompts.Show(BoxIcon::Information, u"t", u"<b>a</b> & <img src='x'>");
}

TEST(MessageBoxes, EscapeAndClosingAreANo) {
  QtPrompter prompts;
  const auto answerOf = [&](const std::function<void(QMessageBox&)>& act) {
    WhenOpen(act);
    return prompts.AskYesNo(BoxIcon::Question, u"t", u"Really?", BoxAnswer::Yes);
  };
  EXPECT_EQ(answerOf([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); }),
            BoxAnswer::No);
  EXPECT_EQ(answerOf([](QMessageBox& box) { box.close(); }), BoxAnswer::No);
  EXPECT_EQ(answerOf([](QMessageBox& box) { box.button(QMessageBox::No)->click(); }),
            BoxAnswer::No);
  EXPECT_EQ(answerOf([](QMessageBox& box) { box.button(QMessageBox::Yes)->click(); }),
            BoxAnswer::Yes);
}

TEST(MessageBoxes, OneThatIsHigherThanTheScreenKeepsItsButton) {
  QtPrompter prompts;
  const Text text(40'000, u'x');
  WhenOpen([&](QMessageBox& box) {
    EXPECT_LE(box.height(), box.screen()->availableGeometry().height());
    EXPECT_EQ(box.detailedText(), ToQString(text));
    box.accept();
  });
  prompts.Show(BoxIcon::Stop, u"t", text);
}

}  // namespace
}  // namespace vorlane
