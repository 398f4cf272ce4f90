// The whole program with its window on a real folder, with nothing kept and nobody at the boxes.
#pragma once

#include <gtest/gtest.h>

#include <QtTest>
#include <QtWidgets>

#include "catalogue/operations_tree.h"
#include "platform/posix_file_system.h"
#include "support/memory_box_memory.h"
#include "support/recording_clipboard.h"
#include "support/recording_prompter.h"
#include "support/recording_report.h"
#include "support/recording_sounds.h"
#include "support/temporary_folder.h"
#include "ui/program.h"
#include "ui/qt_text.h"

namespace vorlane {

struct WindowWorld {
  WindowWorld();

  // Lists a folder as a selection in the tree does.
  void Open(const std::string& folder);

  // Lists "a.txt" beside a folder "sub" with "b.txt", under an operation that puts an x in front,
  // in a window that is in front.
  void OpenSample();

  // Fills the tree with this operations file, its lines given without their ends.
  void LoadOperations(const std::vector<Text>& lines);

  template <typename Control>
  Control& Find(const char* name) {
    auto* found = Main.Window().findChild<Control*>(QString::fromLatin1(name));
    EXPECT_NE(found, nullptr) << name;
    return *found;
  }
  void Click(const char* button);

  // What a column of the list shows, from the first row to the last.
  QStringList ColumnTexts(Column column);

  // Lets events run until the condition holds; false after five seconds.
  static bool WaitFor(const std::function<bool()>& condition);

  TemporaryFolder Folder;
  SystemClock Time;
  PosixFileSystem Files;
  RecordingReport Report;
  RecordingPrompter Prompts;
  MemoryBoxMemory Memory;
  RecordingSounds Sounds;
  RecordingClipboard Clipboard;
  Program Main;
};

}  // namespace vorlane
