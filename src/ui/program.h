// The running program: all rules, all services and the window, made once and joined together. Who
// looks for what a control sets off finds it in the Connect functions.
#pragma once

#include <functional>

#include "batch/batch_run.h"
#include "batch/undo_run.h"
#include "catalogue/operation_selection.h"
#include "catalogue/operations_tree.h"
#include "catalogue/option_boxes.h"
#include "engine/disk_facts.h"
#include "filelist/file_list.h"
#include "filelist/list_events.h"
#include "filelist/wildcard_box.h"
#include "form/form.h"
#include "preview/preview.h"
#include "shell/folder_browser.h"
#include "shell/list_timers.h"
#include "ui/event_gate.h"
#include "ui/form_presenter.h"
#include "ui/frm_main.h"
#include "ui/hover_help.h"
#include "ui/keyword_box.h"
#include "ui/qt_message_loop.h"
#include "ui/window_keys.h"
#include "ui/window_timers.h"

namespace vorlane {

// What the program stands on; owned by main, or by a test.
struct ProgramServices {
  FileSystem& Files;
  Clock& Time;
  FailureReport& Report;
  Prompter& Prompts;
  BoxMemory& Memory;
  SoundPlayer& Sounds;
  vorlane::Clipboard& Clipboard;
};

class Program {
 public:
  Program(const ProgramServices& services, const TimerIntervals& intervals);

  // Fills the operations tree; a tree whose reading failed is shown as far as it was read.
  void ShowOperations(OperationsTree tree);

  // Fills the keyword list.
  void ShowKeywords(KeywordList list) { keywords_.LoadKeywords(std::move(list)); }

  // Selects an operation as a click on it does; the first one if there is none of that index.
  void SelectOperation(std::int32_t index);

  // Shows the window, and a folder in it as soon as the window can be seen.
  void Show();
  void ShowFolder(const Text& folder);

  // Previews every row on demand.
  void PreviewAll();

  // What the tree calls the selected operation.
  Text SelectedTitle() const;

  // Asks the jobs to stop and closes the window as soon as they have ended.
  void Close();

  // True from the first wish to close on.
  bool IsClosing() const { return closeWanted_ || closed_; }

  // The same when nobody is there to answer: a message box that is open is closed first.
  void CloseUnattended();

  // The start of the timer that ends the show of balloons, which stand longer at a first start.
  void HideLabelsLater(bool isFirstStart);

  FrmMain& Window() { return window_; }
  Form& State() { return form_; }
  WildcardBox& Wildcard() { return wildcard_; }
  FolderBrowser& Browser() { return browser_; }
  WindowTimers& Timers() { return timers_; }
  EventGate& Gate() { return gate_; }
  HoverHelp& Help() { return help_; }

  MessageLoop& Loop() { return loop_; }

  // cmdHelp.
  std::function<void()> OnHelp;

  // The key for menus.
  std::function<void()> OnMenuKey;

  // The window is asked to close: whatever else waits for something ends its wait.
  std::function<void()> OnCloseAsked;

  // What is to be done before the window goes. Once.
  std::function<void()> OnClosing;

 private:
  void ConnectButtons();
  void ConnectList();
  void ConnectTrees();
  void ConnectBoxes();
  void ConnectTimers();
  void ConnectKeys();
  void ConnectHelp();
  void ConnectWindow();
  bool MayClose();
  void RefreshFolders();
  void Go();
  void Stop();
  void Undo();
  void FocusNextPane(bool back);
  bool FocusNextBox();

  FormPresenter presenter_;
  QtMessageLoop loop_;
  Form form_;
  Services services_;
  DiskFacts facts_;
  Preview preview_;
  FileList list_;
  ListEvents events_;
  WildcardBox wildcard_;
  OptionBoxes boxes_;
  OperationSelection selection_;
  BatchRun run_;
  UndoRun undo_;
  ListTimers listTimers_;
  EventGate gate_;
  WindowTimers timers_;
  FrmMain window_;
  FolderBrowser browser_;
  HoverHelp help_;
  KeywordBox keywords_;
  WindowKeys keys_;
  OperationsTree operations_;
  bool goWaits_ = false;
  bool shown_ = false;
  bool closeWanted_ = false;
  bool closed_ = false;
};

}  // namespace vorlane
