#include "ui/form_presenter.h"

#include <QSignalBlocker>
#include <algorithm>

#include "ui/qt_text.h"
#include "ui/window_timers.h"

namespace vorlane {

namespace {

constexpr int MillisecondsPerFrame = 40;

// The cursor keeps its distance from the end, so that a text that the program changes in front of
// it doesn't throw it out of place.
void ShowText(QLineEdit& box, const QString& text) {
  if (box.text() != text) {
    const auto behind = box.text().size() - box.cursorPosition();
    box.setText(text);
    box.setCursorPosition(static_cast<int>(std::max<qsizetype>(0, text.size() - behind)));
  }
}

// A tip shows its text as it is: "<TITLE>" is a keyword, no format.
void ShowTip(QWidget& control, const Text& text) {
  const QString tip = ToQString(text);
  control.setToolTip(tip.isEmpty() ? tip
                                   : QStringLiteral("<span>%1</span>").arg(tip.toHtmlEscaped()));
}

}  // namespace

FormPresenter::FormPresenter() {
  refresh_.setSingleShot(true);
  refresh_.setInterval(MillisecondsPerFrame);
  QObject::connect(&refresh_, &QTimer::timeout, [this] { Refresh(); });
}

void FormPresenter::Attach(const Form& form, FrmMain& window, const EventGate& gate,
                           WindowTimers& timers) {
  form_ = &form;
  window_ = &window;
  controls_ = &window.Controls();
  gate_ = &gate;
  timers_ = &timers;
  model_ = std::make_unique<FileListModel>(form.Rows);
  controls_->FileList->ShowModel(*model_);
  Show(ButtonsPart);
}

void FormPresenter::Show(Part part) {
  outdated_ |= part;
  if (gate_->IsIdle()) {
    Refresh();
  } else if (!refresh_.isActive()) {
    refresh_.start();
  }
}

void FormPresenter::Refresh() {
  const unsigned parts = std::exchange(outdated_, 0U);
  if ((parts & RowsPart) != 0) {
    ShowRows();
  }
  if ((parts & (SelectionPart | RowsPart)) != 0) {
    controls_->FileList->ShowSelected(form_->Rows.Selected());
  }
  if ((parts & StatusPart) != 0) {
    window_->ShowStatus(ToQString(form_->Status));
  }
  if ((parts & ProgressPart) != 0) {
    controls_->Progress->setValue(form_->Progress);
  }
  if ((parts & FileStatusPart) != 0) {
    window_->ShowFileStatus(ToQString(form_->FileStatus));
  }
  if ((parts & ButtonsPart) != 0) {
    ShowButtons();
  }
  if ((parts & HelpPart) != 0) {
    ShowTip(*controls_->Help, form_->HelpToolTip);
  }
  if ((parts & WildCardPart) != 0) {
    ShowWildCard();
  }
  if ((parts & BoxesPart) != 0) {
    ShowBoxes();
  }
}

std::int32_t FormPresenter::GetCountPerPage() {
  ShowPlacesOfRows();
  return controls_->FileList->GetCountPerPage();
}

// Asked for each row of a run: the cells can wait.
std::int32_t FormPresenter::FirstVisibleRow() {
  ShowPlacesOfRows();
  return controls_->FileList->FirstVisibleRow();
}

void FormPresenter::PointerChanged() {
  switch (form_->Pointer) {
    case MousePointer::Default:
      window_->unsetCursor();
      break;
    case MousePointer::ArrowHourglass:
      window_->setCursor(Qt::BusyCursor);
      break;
    case MousePointer::Hourglass:
      window_->setCursor(Qt::WaitCursor);
      break;
  }
}

QWidget* FormPresenter::WidgetOf(FormControl control) const {
  switch (control) {
    case FormControl::FileList:
      return controls_->FileList;
    case FormControl::Browse:
      return controls_->Browse;
    case FormControl::OperationsTree:
      return controls_->Operations;
    case FormControl::WildCard:
      return controls_->WildCard;
    case FormControl::Undo:
      break;
  }
  return controls_->Undo;
}

// A disabled widget loses the focus to its neighbour. It gets it back, unless the user has gone
// somewhere else meanwhile.
void FormPresenter::ControlEnabled(FormControl control, bool enabled) {
  QWidget* widget = WidgetOf(control);
  if (widget->isEnabled() == enabled) {
    return;
  }
  QWidget* focus = window_->focusWidget();
  const bool hadFocus = focus != nullptr && (focus == widget || widget->isAncestorOf(focus));
  if (!enabled && hadFocus) {
    focusBeforeDisabling_ = focus;
    window_->setFocus();
  }
  widget->setEnabled(enabled);
  if (enabled && focusBeforeDisabling_ &&
      (focusBeforeDisabling_ == widget || widget->isAncestorOf(focusBeforeDisabling_))) {
    GiveFocusBack();
  }
}

void FormPresenter::GiveFocusBack() {
  if (window_->focusWidget() == nullptr || window_->focusWidget() == window_) {
    focusBeforeDisabling_->setFocus();
  }
  focusBeforeDisabling_ = nullptr;
}

void FormPresenter::ShowButtons() {
  const auto show = [this](bool second, EasyButton* one, EasyButton* other) {
    EasyButton* shown = second ? other : one;
    EasyButton* hidden = second ? one : other;
    const bool hadFocus = window_->focusWidget() == hidden;
    shown->setVisible(true);
    if (hadFocus) {
      shown->setFocus(hidden->ShowsFocus() ? Qt::TabFocusReason : Qt::MouseFocusReason);
    }
    hidden->setVisible(false);
  };
  show(form_->StopVisible, controls_->Go, controls_->Stop);
  show(form_->DoAll, controls_->DoOne, controls_->DoAll);
  show(form_->ListFolders, controls_->ListFiles, controls_->ListFolders);
  show(form_->IncludeSubFolders, controls_->ThisFolderOnly, controls_->IncludeSubFolders);
}

void FormPresenter::ShowWildCard() {
  QComboBox& box = *controls_->WildCard;
  const QSignalBlocker quiet(box);
  for (int item = box.count(); item < static_cast<int>(form_->WildCardItems.size()); ++item) {
    box.addItem(ToQString(form_->WildCardItems[static_cast<std::size_t>(item)]));
  }
  const QString text = ToQString(form_->WildCard);
  if (box.currentText() != text) {
    box.setEditText(text);
  }
}

void FormPresenter::BoxTextChanged(int box) {
  if (gate_->IsIdle()) {
    ShowBox(box);
  } else {
    Show(BoxesPart);
  }
}

void FormPresenter::BoxShapeChanged(int box) {
  BoxTextChanged(box);
}

void FormPresenter::ShowBoxes() {
  for (int box = 0; box < OptionBoxCount; ++box) {
    ShowBox(box);
  }
}

void FormPresenter::ShowBox(int box) {
  const auto index = static_cast<std::size_t>(box);
  const OptionBox& shown = form_->Boxes[index];
  const BoxControls& controls = controls_->Boxes[index];
  const QString name = ToQString(shown.Caption);
  const QString caption = QString(name).replace(u'&', QStringLiteral("&&"));  // no mnemonic
  const QString check = ToQString(shown.CheckCaption);
  if (controls.Caption->text() != caption) {
    controls.Caption->setText(caption);
    controls.Caption->adjustSize();
    controls.Content->setAccessibleName(name);
  }
  ShowText(*controls.Content, ToQString(shown.Content));
  ShowTip(*controls.Content, shown.ToolTip);
  controls.Content->setAccessibleDescription(ToQString(shown.ToolTip));
  controls.Content->setEnabled(shown.Enabled);
  ShowTip(*controls.Check, shown.CheckCaption);
  controls.Check->setAccessibleName(check);
  controls.Check->setChecked(shown.Checked);
  controls.Caption->setVisible(shown.Visible);
  controls.Content->setVisible(shown.Visible);
  controls.Check->setVisible(shown.CheckVisible);
}

void FormPresenter::TimerStarted(FormTimer timer) {
  timers_->Start(timer);
}

void FormPresenter::TimerStopped(FormTimer timer) {
  timers_->Stop(timer);
}

void FormPresenter::RowsCleared() {
  firstChangedRow_ = 0;
  lastChangedRow_ = -1;
  rowsMoved_ = false;
  model_->ShowNewList();
}

void FormPresenter::RowAdded(std::int32_t /*row*/) {
  Show(RowsPart);
}

void FormPresenter::RowsMoved() {
  rowsMoved_ = true;
  Show(RowsPart);
}

void FormPresenter::CellChanged(std::int32_t row, Column /*column*/) {
  if (lastChangedRow_ < firstChangedRow_) {
    firstChangedRow_ = lastChangedRow_ = row - 1;
  } else {
    firstChangedRow_ = std::min(firstChangedRow_, row - 1);
    lastChangedRow_ = std::max(lastChangedRow_, row - 1);
  }
  Show(RowsPart);
}

void FormPresenter::ShowPlacesOfRows() {
  model_->ShowAddedRows();
  if (std::exchange(rowsMoved_, false)) {
    model_->ShowMovedRows();
    controls_->FileList->ShowSorting(form_->Rows.SortKey(), form_->Rows.Order());
    controls_->FileList->ShowSelected(form_->Rows.Selected());
  }
}

void FormPresenter::ShowRows() {
  ShowPlacesOfRows();
  const int first = std::exchange(firstChangedRow_, 0);
  model_->ShowChangedRows(first, std::exchange(lastChangedRow_, -1));
}

void FormPresenter::EnsureVisible(std::int32_t row) {
  ShowPlacesOfRows();
  controls_->FileList->ShowRow(row);
}

void FormPresenter::ListHidden(bool hidden) {
  FileListView* list = controls_->FileList;
  const bool hadFocus = window_->focusWidget() == list;
  list->setVisible(!hidden);
  if (hidden && hadFocus) {
    focusBeforeDisabling_ = list;
    window_->setFocus();
  } else if (!hidden && focusBeforeDisabling_ == list) {
    GiveFocusBack();
  }
}

}  // namespace vorlane
