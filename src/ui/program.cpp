#include "ui/program.h"

#include <QApplication>
#include <QDialog>
#include <QFocusEvent>

#include "ui/qt_text.h"

namespace vorlane {

namespace {

// How long the balloons of a first start stand.
constexpr int FirstStartMilliseconds = 10'000;

// An open menu or list would keep the program waiting for an answer.
void ClosePopups() {
  QWidget* popup = QApplication::activePopupWidget();
  while (popup != nullptr && popup->close()) {
    popup = QApplication::activePopupWidget();
  }
}

// Tells when a box gets or loses the focus. Another window in front, or a list that has opened, is
// no leaving of the box.
class FocusWatch final : public QObject {
 public:
  FocusWatch(QObject* parent, std::function<void()> onGot, std::function<void()> onLost)
      : QObject(parent), onGot_(std::move(onGot)), onLost_(std::move(onLost)) {}

 protected:
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() == QEvent::FocusIn) {
      onGot_();
    } else if (event->type() == QEvent::FocusOut) {
      const auto reason = static_cast<QFocusEvent*>(event)->reason();
      if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason) {
        onLost_();
      }
    }
    return false;
  }

 private:
  std::function<void()> onGot_;
  std::function<void()> onLost_;
};

}  // namespace

Program::Program(const ProgramServices& services, const TimerIntervals& intervals)
    : form_(presenter_, loop_),
      services_{services.Files, services.Time, loop_, services.Report, services.Prompts},
      facts_(services.Files, services.Time, services.Report, services.Prompts),
      preview_(form_, services_, facts_),
      list_(form_, services_, preview_),
      events_(form_, services_, list_, preview_),
      wildcard_(form_),
      boxes_(form_, services_, services.Memory),
      selection_(form_, services_, list_, wildcard_, services.Memory),
      run_(form_, services_, facts_, preview_, list_),
      undo_(form_, services_, list_),
      listTimers_(form_, services_, list_, preview_),
      gate_(form_.Jobs),
      timers_(intervals),
      window_({services.Files, services.Prompts, services.Sounds}),
      browser_(form_, services_, list_, *window_.Controls().Folders),
      help_(window_, services.Report),
      keywords_(*window_.Controls().Keywords, form_, services.Clipboard,
                [this]() -> ClsTooltip& { return help_.Tips.KeywordTip(); }),
      keys_(window_) {
  presenter_.Attach(form_, window_, gate_, timers_);
  ConnectButtons();
  ConnectList();
  ConnectTrees();
  ConnectBoxes();
  ConnectTimers();
  ConnectKeys();
  ConnectHelp();
  ConnectWindow();
}

void Program::ShowOperations(OperationsTree tree) {
  operations_ = std::move(tree);
  form_.OperationCodes = operations_.OperationCodes;
  window_.Controls().Operations->ShowOperations(operations_.Nodes);
}

void Program::SelectOperation(std::int32_t index) {
  if (operations_.Nodes.empty()) {
    return;
  }
  if (index < 1 || static_cast<std::size_t>(index) > operations_.Nodes.size()) {
    index = 1;
  }
  window_.Controls().Operations->ShowSelected(index);
  gate_.Start([this, index] {
    form_.SelectedOperation = index;
    selection_.lstRenamingOperations_NodeClick();
  });
}

void Program::Show() {
  window_.show();
  wildcard_.FormVisible = true;
  shown_ = true;
}

void Program::HideLabelsLater(bool isFirstStart) {
  if (isFirstStart) {
    timers_.tmrHideAllLabels.setInterval(FirstStartMilliseconds);
  }
  timers_.tmrHideAllLabels.start();
}

void Program::ShowFolder(const Text& folder) {
  QTimer::singleShot(0, &window_, [this, folder] {
    gate_.Start([this, folder] { browser_.ShowFolderBrowser(folder); });
  });
}

void Program::PreviewAll() {
  gate_.Start([this] { events_.lblFileStatus_DblClick(); });
}

Text Program::SelectedTitle() const {
  const auto index = static_cast<std::size_t>(form_.SelectedOperation);
  return index == 0 || index > operations_.Nodes.size() ? Text()
                                                        : operations_.Nodes[index - 1].Title;
}

void Program::ConnectButtons() {
  const auto connect = [](EasyButton* button, std::function<void()> handler) {
    button->OnClick = std::move(handler);
  };
  FormControls& controls = window_.Controls();
  connect(controls.Go, [this] { Go(); });
  connect(controls.Stop, [this] { Stop(); });
  connect(controls.Undo, [this] { Undo(); });
  connect(controls.Exit, [this] { Close(); });
  connect(controls.Help, [this] {
    if (OnHelp) {
      OnHelp();
    }
  });
  for (EasyButton* button : {controls.DoOne, controls.DoAll}) {
    connect(button, [this] { gate_.Start([this] { events_.cmdDoAllOrOne_Click(); }); });
  }
  for (EasyButton* button : {controls.ListFiles, controls.ListFolders}) {
    connect(button, [this] { gate_.Start([this] { events_.cmdListFilesOrFolders_Click(); }); });
  }
  for (EasyButton* button : {controls.ThisFolderOnly, controls.IncludeSubFolders}) {
    connect(button, [this] { gate_.Start([this] { events_.cmdSubFoldersOrNot_Click(); }); });
  }
}

void Program::ConnectList() {
  FileListView& view = *window_.Controls().FileList;
  view.OnRowSelected = [this](int row) { form_.Rows.Select(row); };
  view.OnRowClicked = [this] { gate_.Start([this] { events_.lstFileList_ItemClick(); }); };
  view.OnColumnClicked = [this](Column column) {
    const bool endsPreview = form_.Jobs.PreviewState != JobState::Idle;
    gate_.Start([this, column, endsPreview] {
      events_.lstFileList_ColumnClick(column);
      if (endsPreview && form_.IsIdle()) {
        preview_.UpdateFilePreviewAll(false, 0);
      }
    });
  };
  view.OnFolderDropped = [this](const Text& folder) {
    gate_.Start([this, folder] { browser_.FolderDropped({folder}); });
  };
  window_.OnFileStatusDoubleClicked = [this] { PreviewAll(); };
}

void Program::ConnectTrees() {
  FormControls& controls = window_.Controls();
  controls.Operations->OnNodeClicked = [this](std::int32_t index) {
    gate_.Start([this, index] {
      if (form_.JournalInUse) {
        // A run is the work of one operation; the tree goes back to it.
        window_.Controls().Operations->ShowSelected(form_.SelectedOperation);
        return;
      }
      form_.SelectedOperation = index;
      selection_.lstRenamingOperations_NodeClick();
    });
  };
  controls.Folders->OnFolderSelected = [this](const Text& path) {
    gate_.Start([this, path] { browser_.SelectionChanged(path); });
  };
}

void Program::ConnectBoxes() {
  FormControls& controls = window_.Controls();
  QObject::connect(controls.WildCard, &QComboBox::editTextChanged, &window_,
                   [this](const QString& text) {
                     gate_.Run([this, &text] { wildcard_.cboWildCard_Change(ToText(text)); });
                   });
  for (int box = 0; box < OptionBoxCount; ++box) {
    const BoxControls& shown = controls.Boxes[static_cast<std::size_t>(box)];
    QObject::connect(shown.Content, &QLineEdit::textEdited, &window_,
                     [this, box](const QString& text) {
                       form_.Boxes[static_cast<std::size_t>(box)].Content = ToText(text);
                       gate_.Run([this, box] { boxes_.txtRenameOption_Change(box); });
                     });
    QObject::connect(shown.Check, &QCheckBox::clicked, &window_, [this, box](bool ticked) {
      gate_.Run([this, box, ticked] { boxes_.chkRenameOption_Click(box, ticked); });
    });
    shown.Content->installEventFilter(new FocusWatch(
        shown.Content, [this, box] { boxes_.txtRenameOption_GotFocus(box); },
        [this, box] { gate_.Run([this, box] { boxes_.txtRenameOption_LostFocus(box); }); }));
  }
}

void Program::ConnectTimers() {
  const auto connect = [this](QTimer& timer, std::function<void()> tick) {
    QObject::connect(&timer, &QTimer::timeout, &window_,
                     [this, tick = std::move(tick)] { gate_.Run(tick); });
  };
  connect(timers_.tmrFileStatus, [this] { listTimers_.tmrFileStatus_Timer(); });
  connect(timers_.tmrProgramStatus, [this] { listTimers_.tmrProgramStatus_Timer(); });
  connect(timers_.tmrUpdateList, [this] { listTimers_.tmrUpdateList_Timer(); });
  connect(timers_.tmrAutoPreview, [this] { listTimers_.tmrAutoPreview_Timer(); });
  connect(timers_.tmrFileCounter, [this] { listTimers_.tmrFileCounter_Timer(); });
  connect(timers_.tmrListScroll, [this] {
    const bool leftDown = (QGuiApplication::mouseButtons() & Qt::LeftButton) != 0;
    listTimers_.tmrListScroll_Timer(leftDown);
  });
  timers_.tmrListScroll.start();
}

void Program::ConnectKeys() {
  keys_.OnGo = [this] {
    const EasyButton* go = window_.Controls().Go;
    if (go->isEnabled() && go->isVisible()) {
      Go();
    }
  };
  keys_.OnStop = [this] {
    help_.ResetHoverState();
    Stop();
  };
  keys_.OnHelp = [this] { help_.Toggle(); };
  keys_.OnUndo = [this] {
    if (form_.UndoEnabled) {
      Undo();
    }
  };
  keys_.OnListAnew = [this] {
    gate_.Start([this] {
      if (form_.IsIdle()) {
        list_.PathChangedEvent();
        RefreshFolders();
      }
    });
  };
  keys_.OnMenu = [this] {
    if (OnMenuKey) {
      OnMenuKey();
    }
  };
  keys_.OnClose = [this] { Close(); };
  keys_.OnTab = [this] { return FocusNextBox(); };
  keys_.OnNextPane = [this](bool back) { FocusNextPane(back); };
}

void Program::ConnectHelp() {
  QObject::connect(&timers_.tmrHideAllLabels, &QTimer::timeout, &window_,
                   [this] { help_.Tips.InitBalloonToolTips(); });
  QComboBox* keywords = window_.Controls().Keywords;
  QObject::connect(keywords, &QComboBox::activated, &window_, [this](int entry) {
    gate_.Run([this, entry] { keywords_.cboKeywords_Click(entry); });
  });
}

void Program::ConnectWindow() {
  window_.OnFirstActivation = [this] {
    listTimers_.FirstActivation();
    timers_.tmrFileCounter.start();
    const QTimer& hiding = timers_.tmrHideAllLabels;
    if (hiding.isActive() && hiding.interval() == FirstStartMilliseconds) {
      help_.Tips.ShowAllBalloonLabels();
    }
  };
  window_.OnMaximized = [this] { form_.RestartTimer(FormTimer::AutoPreview); };
  window_.OnPointerReset = [this] { form_.Pointer = MousePointer::Default; };
  window_.OnClose = [this] { return MayClose(); };
  gate_.OnIdle = [this] {
    presenter_.Refresh();
    if (closeWanted_ && shown_ && !closed_) {
      QTimer::singleShot(0, &window_, [this] { window_.close(); });
    }
  };
}

// A run and its undo make folders and take them away.
void Program::RefreshFolders() {
  window_.Controls().Folders->Refresh(form_.CurrentPath);
}

// A second press while the first one waits for a preview to end is the same wish. What was clicked
// before the press counts, even if both came at once.
void Program::Go() {
  if (goWaits_ || closeWanted_) {
    return;
  }
  window_.Controls().Operations->DeliverWaitingClick();
  window_.Controls().FileList->DeliverWaitingClick();
  goWaits_ = true;
  gate_.Start([this] {
    goWaits_ = false;
    run_.cmdGo_Click();
    RefreshFolders();
  });
}

void Program::Stop() {
  gate_.ForgetWaiting();
  goWaits_ = false;
  form_.Jobs.RequestStop();
}

void Program::Undo() {
  gate_.Start([this] {
    undo_.cmdUndo_Click();
    RefreshFolders();
  });
}

// Closing in the middle of a job would cut it off. It is asked to stop, and once all handlers have
// come back the window closes by itself.
bool Program::MayClose() {
  if (closed_) {
    return true;
  }
  if (OnCloseAsked) {
    OnCloseAsked();
  }
  ClosePopups();
  const bool isBusy = !gate_.IsIdle() || QApplication::activeModalWidget() != nullptr;
  if (isBusy || !shown_) {
    closeWanted_ = true;
    gate_.ForgetWaiting();
    form_.Jobs.RequestStop();
    return false;
  }
  closed_ = true;
  gate_.Close();  // what happens while the window fades away starts nothing
  help_.Tips.Unload();
  if (OnClosing) {
    OnClosing();
  }
  return true;
}

void Program::Close() {
  window_.close();
}

void Program::CloseUnattended() {
  if (OnCloseAsked) {
    OnCloseAsked();  // what comes from outside opens no further box
  }
  if (auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
    box->reject();
  }
  // The box's own loop has to end first.
  QTimer::singleShot(0, &window_, [this] { Close(); });
}

// TAB goes from box to box while one is shown.
bool Program::FocusNextBox() {
  const auto next = boxes_.NextBox();
  if (next) {
    window_.Controls().Boxes[static_cast<std::size_t>(*next)].Content->setFocus(Qt::TabFocusReason);
    return true;
  }
  for (const BoxControls& box : window_.Controls().Boxes) {
    if (box.Content->isVisible() && box.Content->isEnabled()) {
      box.Content->setFocus(Qt::TabFocusReason);  // the only one
      return true;
    }
  }
  return false;
}

// F6 goes through the panes, boxes or none.
void Program::FocusNextPane(bool back) {
  const auto chain = window_.Controls().TabChain();
  const auto count = static_cast<int>(chain.size());
  int at = -1;
  for (int i = 0; i < count; ++i) {
    if (chain[static_cast<std::size_t>(i)]->hasFocus()) {
      at = i;
    }
  }
  for (int step = 1; step <= count; ++step) {
    const int next = ((back ? at - step : at + step) % count + count) % count;
    QWidget* widget = chain[static_cast<std::size_t>(next)];
    if (widget->isVisible() && widget->isEnabled()) {
      widget->setFocus(back ? Qt::BacktabFocusReason : Qt::TabFocusReason);
      return;
    }
  }
}

}  // namespace vorlane
