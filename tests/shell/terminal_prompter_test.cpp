#include "shell/terminal_prompter.h"

#include <gtest/gtest.h>

#include <sstream>

namespace vorlane {
namespace {

struct Dialogue {
  BoxAnswer Answer;
  std::string Shown;
};

Dialogue Ask(const std::string& typed, BoxAnswer unasked = BoxAnswer::No) {
  std::istringstream input(typed);
  std::ostringstream output;
  TerminalPrompter prompter(input, output);
  const BoxAnswer answer =
      prompter.AskYesNo(BoxIcon::Question, u"Vorlane", u"Delete \u00E9?", unasked);
  return {answer, output.str()};
}

TEST(TerminalPrompter, AsksOnOneLine) {
  EXPECT_EQ(Ask("no\n").Shown, "Vorlane: Delete \xC3\xA9? (Yes/No) ");
}

TEST(TerminalPrompter, OnlyYesIsYes) {
  for (const char* typed : {"y\n", "Y\n", "yes\n", "YES", " yes \n"}) {
    EXPECT_EQ(Ask(typed).Answer, BoxAnswer::Yes) << typed;
  }
  for (const char* typed : {"\n", "n\n", "no\n", "yess\n", "ye\n", "1\n", "\nyes\n"}) {
    EXPECT_EQ(Ask(typed).Answer, BoxAnswer::No) << typed;
  }
}

TEST(TerminalPrompter, WithoutALineNobodyWasAsked) {
  EXPECT_EQ(Ask("", BoxAnswer::No).Answer, BoxAnswer::No);
  EXPECT_EQ(Ask("", BoxAnswer::Yes).Answer, BoxAnswer::Yes);
}

TEST(TerminalPrompter, ShowsALine) {
  std::istringstream input;
  std::ostringstream output;
  TerminalPrompter(input, output).Show(BoxIcon::Stop, u"Error 7", u"Out of memory (CopyKey)");
  EXPECT_EQ(output.str(), "Error 7: Out of memory (CopyKey)\n");
}

}  // namespace
}  // namespace vorlane
