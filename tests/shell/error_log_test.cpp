#include "shell/error_log.h"

#include <gtest/gtest.h>

#include "platform/code_page.h"
#include "platform/posix_file_system.h"
#include "platform/program_version.h"
#include "shell/stored_values.h"
#include "support/form_world.h"
#include "support/recording_clipboard.h"
#include "support/settings_world.h"
#include "support/temporary_folder.h"

namespace vorlane {
namespace {

const Text LogName = u"ErrorLog_2006_03_07_14_05_09.txt";

class ErrorLogTest : public testing::Test {
 protected:
  ErrorLogTest() {
    Disk.MakeFolder(u"/program/");
    Time.Today = *MakeDateTime(2006, 3, 7, 14, 5, 9);
    Log.SetRunValues([this] { return Values; });
  }

  void Report(TextView module, TextView procedure, TextView extra) {
    Log.ReportError(module, procedure, extra, RunError(ErrorNumber::Overflow));
  }
  Text Written() const { return TextFromCodePage(Disk.Read(u"/program/" + LogName)); }
  Text LastMessage() const { return Boxes.Boxes.back().Message; }
  // Line by its number, from 1.
  Text LineOf(const Text& text, std::size_t number) const {
    return Split(text, u"\r\n").at(number - 1);
  }

  MemoryFileSystem Disk;
  SettableClock Time;
  RecordingPrompter Boxes;
  RecordingClipboard Board;
  SettingsWorld Store;
  RunValues Values;
  ErrorLog Log{{Boxes, Board, Disk, Time, Store.Settings},
               {.Program = u"/program/", .Fallback = u"/home/u/.local/state/vorlane/"}};
};

TEST_F(ErrorLogTest, TheMessageNamesTheFailure) {
  Report(u"frmMain", u"cmdGo_Click", u"song.mp3");
  EXPECT_EQ(
      Boxes.Boxes,
      (std::vector<RecordingPrompter::Box>{{BoxIcon::Exclamation, u"Vorlane 2006",
                                            u"Please report the following error information:\r\n"
                                            u"\r\n"
                                            u"Error number: 6\r\n"
                                            u"Description: Overflow\r\n"
                                            u"Module: frmMain (cmdGo_Click)\r\n"
                                            u"Extra Info: song.mp3\r\n"}}));
}

TEST_F(ErrorLogTest, AnEmptyModuleIsUnknown) {
  Report(u"", u"ReadID3v2", u"song.mp3");
  EXPECT_EQ(LineOf(LastMessage(), 5), u"Module: Unknown (ReadID3v2)");
}

TEST_F(ErrorLogTest, WithoutAnExtraTextTheMessageEndsWithTheModule) {
  Report(u"frmMain", u"cmdGo_Click", u"");
  EXPECT_TRUE(LastMessage().ends_with(u"Module: frmMain (cmdGo_Click)\r\n"));
  EXPECT_FALSE(Contains(LastMessage(), u"Extra Info"));
}

TEST_F(ErrorLogTest, AFailureOfAnyNumberHasItsDescription) {
  Log.ReportError(u"", u"ReadMetaInfo", u"", RunError(5000, u"Something of its own"));
  EXPECT_EQ(LineOf(LastMessage(), 3), u"Error number: 5000");
  EXPECT_EQ(LineOf(LastMessage(), 4), u"Description: Something of its own");
}

TEST_F(ErrorLogTest, TheFileTellsTheStateOfTheRun) {
  Store.Set(SettingKey::StartPath, u"/saved/");
  Store.Set(SettingKey::LastOperation, u"12");
  Store.Set(SettingKey::WildCards, u"*.*|*.mp3");
  Values = {.ProgramSize = 123456,
            .ScreenWidth = 1920,
            .ScreenHeight = 1080,
            .ListCount = 3,
            .ListColCount = 8,
            .OperationIndex = 7,
            .OperationText = u"Upper case",
            .CurrentPath = u"/music/",
            .CurrentFile = u"a.mp3",
            .CurrentPreview = u"A.MP3"};
  Report(u"frmMain", u"cmdGo_Click", u"");
  EXPECT_EQ(Written(), Text(u"Vorlane 2006 ")
                           .append(VersionText())
                           .append(u" (123456)\r\n"
                                   u"StartPath: /saved/\r\n"
                                   u"LastOperation: 12\r\n"
                                   u"WildCards: *.*|*.mp3\r\n"
                                   u"Screen Width: 1920\r\n"
                                   u"Screen Height: 1080\r\n"
                                   u"ListCount: 3\r\n"
                                   u"ListColCount: 8\r\n"
                                   u"RenOptIdx: (7) Upper case\r\n"
                                   u"CurrentPath: /music/\r\n"
                                   u"CurrentFile: a.mp3\r\n"
                                   u"CurrentPreview: A.MP3\r\n"
                                   u"ErrMsg:\r\n")
                           .append(LastMessage()));
}

TEST_F(ErrorLogTest, WhatCantBeHadLeavesItsLabel) {
  Report(u"frmMain", u"cmdGo_Click", u"");
  EXPECT_EQ(Written(), Text(u"Vorlane 2006 ")
                           .append(VersionText())
                           .append(u" ()\r\n"
                                   u"StartPath: \r\n"
                                   u"LastOperation: \r\n"
                                   u"WildCards: \r\n"
                                   u"Screen Width: \r\n"
                                   u"Screen Height: \r\n"
                                   u"ListCount: \r\n"
                                   u"ListColCount: \r\n"
                                   u"RenOptIdx: \r\n"
                                   u"CurrentPath: \r\n"
                                   u"CurrentFile: \r\n"
                                   u"CurrentPreview: \r\n"
                                   u"ErrMsg:\r\n")
                           .append(LastMessage()));
}

TEST_F(ErrorLogTest, ValuesThatFailAreLeftOut) {
  Log.SetRunValues([]() -> RunValues { throw RunError(ErrorNumber::SubscriptOutOfRange); });
  Report(u"frmMain", u"cmdGo_Click", u"");
  EXPECT_EQ(LineOf(Written(), 7), u"ListCount: ");
  EXPECT_EQ(Boxes.Boxes.size(), 1U);
}

TEST_F(ErrorLogTest, SettingsAreThoseLastSaved) {
  Store.Set(SettingKey::StartPath, u"/first/");
  Report(u"", u"A", u"");
  Store.Set(SettingKey::StartPath, u"/second/");
  Report(u"", u"A", u"");
  EXPECT_EQ(LineOf(Written(), 2), u"StartPath: /second/");
}

TEST_F(ErrorLogTest, TheClipboardIsClearedAndGetsTheWholeText) {
  Report(u"frmMain", u"cmdGo_Click", u"");
  EXPECT_EQ(Board.Steps, (std::vector<Text>{u"(clear)", Written()}));
}

// The box comes first, so that nothing that happens behind it can keep it away.
TEST_F(ErrorLogTest, TheBoxComesBeforeClipboardAndFile) {
  class LookingPrompter final : public Prompter {
   public:
    void Show(BoxIcon, TextView, TextView) override {
      Look();
      ++Shown;
    }
    BoxAnswer AskYesNo(BoxIcon, TextView, TextView, BoxAnswer unasked) override { return unasked; }
    std::function<void()> Look;
    int Shown = 0;
  };
  LookingPrompter prompter;
  prompter.Look = [this] {
    EXPECT_TRUE(Board.Steps.empty());
    EXPECT_FALSE(Disk.Exists(u"/program/" + LogName));
  };
  ErrorLog log({prompter, Board, Disk, Time, Store.Settings}, {u"/program/", u"/state/"});
  log.ReportError(u"", u"A", u"", RunError(ErrorNumber::Overflow));
  EXPECT_EQ(prompter.Shown, 1);
  EXPECT_TRUE(Disk.Exists(u"/program/" + LogName));
}

TEST_F(ErrorLogTest, TheNameHasTheMomentInTwoDigits) {
  const std::pair<DateTime, TextView> moments[] = {
      {*MakeDateTime(2026, 12, 31, 23, 59, 58), u"ErrorLog_2026_12_31_23_59_58.txt"},
      {*MakeDateTime(999, 1, 1, 0, 0, 0), u"ErrorLog_999_01_01_00_00_00.txt"},
  };
  for (const auto& [moment, name] : moments) {
    Time.Today = moment;
    Report(u"", u"A", u"");
    EXPECT_TRUE(Disk.Exists(Text(u"/program/").append(name)));
  }
}

TEST_F(ErrorLogTest, ASecondReportInTheSameSecondReplacesTheFile) {
  Report(u"", u"First", u"");
  Report(u"", u"Second", u"");
  EXPECT_TRUE(Contains(Written(), u"(Second)"));
  EXPECT_FALSE(Contains(Written(), u"(First)"));
  EXPECT_EQ(Disk.Contents(u"/program/").size(), 1U);
}

TEST_F(ErrorLogTest, CharactersWithoutAByteAreEscaped) {
  Values.CurrentPath = u"/\u00E9\u65E5|\xDC80/";
  Report(u"", u"A", u"");
  EXPECT_EQ(LineOf(Written(), 10), u"CurrentPath: /\u00E9//65E5|//DC80/");
}

TEST_F(ErrorLogTest, AProgramFolderThatTakesNoFileGivesWayToTheUsers) {
  Disk.SetReadOnly(u"/program/");
  Disk.MakeFolder(u"/home/u");
  Report(u"", u"A", u"");
  EXPECT_TRUE(Disk.Exists(u"/home/u/.local/state/vorlane/" + LogName));
  EXPECT_TRUE(Disk.Contents(u"/program/").empty());
  Report(u"", u"B", u"");
  EXPECT_TRUE(
      Contains(TextFromCodePage(Disk.Read(u"/home/u/.local/state/vorlane/" + LogName)), u"(B)"));
}

TEST_F(ErrorLogTest, ALogThatCantBeWrittenIsDropped) {
  Disk.SetReadOnly(u"/program/");
  Disk.MakeFolder(u"/home");
  Disk.SetReadOnly(u"/home");
  Report(u"", u"A", u"");
  EXPECT_EQ(Boxes.Boxes.size(), 1U);
  EXPECT_EQ(Board.Steps.size(), 2U);
}

// Whatever step on the disk fails, the report is made and nothing comes of the failure.
TEST_F(ErrorLogTest, NoFailureOfTheDiskGetsOut) {
  Report(u"", u"A", u"");
  const std::size_t calls = Disk.CallCount;
  for (std::size_t call = 1; call <= calls + 3; ++call) {
    Disk.ForgetCalls();
    Disk.Failure = FailurePlan{.At = call, .FromThenOn = true};
    Boxes.Boxes.clear();
    Report(u"", u"A", u"");
    EXPECT_EQ(Boxes.Boxes.size(), 1U);
  }
}

TEST_F(ErrorLogTest, OnARealDisk) {
  const TemporaryFolder folder;
  PosixFileSystem files;
  ErrorLog log({Boxes, Board, files, Time, Store.Settings},
               {folder.TextPath() + u"missing/", folder.TextPath() + u"state/vorlane/"});
  log.ReportError(u"", u"A", u"", RunError(ErrorNumber::Overflow));
  EXPECT_EQ(folder.Read("state/vorlane/ErrorLog_2006_03_07_14_05_09.txt"),
            CodePageBytes(Board.Steps.at(1)));
}

TEST(RunValuesTest, AFormTellsItsList) {
  MemoryWorld world;
  world.ListFiles({u"a.mp3", u"b.mp3"});
  Form& form = world.World.State;
  form.SelectedOperation = 4;
  form.Rows.Select(2);
  form.Rows.At(2).Proposed = u"B.MP3";
  const RunValues values = RunValuesOf(form);
  EXPECT_EQ(values.ListCount, 2);
  EXPECT_EQ(values.ListColCount, 8);
  EXPECT_EQ(values.OperationIndex, 4);
  EXPECT_EQ(values.CurrentPath, u"/R/");
  EXPECT_EQ(values.CurrentFile, u"b.mp3");
  EXPECT_EQ(values.CurrentPreview, u"B.MP3");
}

TEST(RunValuesTest, WithoutRowsAndSelection) {
  MemoryWorld world;
  const RunValues values = RunValuesOf(world.World.State);
  EXPECT_EQ(values.ListCount, 0);
  EXPECT_EQ(values.OperationIndex, std::nullopt);
  EXPECT_EQ(values.CurrentFile, u"");
  EXPECT_EQ(values.CurrentPreview, u"");
}

}  // namespace
}  // namespace vorlane
