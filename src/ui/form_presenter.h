// Shows what the form holds. The rules tell of each change; in the middle of a long job the screen
// follows some 25 times a second, otherwise at once.
#pragma once

#include <QPointer>
#include <QTimer>

#include "form/form.h"
#include "ui/event_gate.h"
#include "ui/file_list_model.h"
#include "ui/frm_main.h"

namespace vorlane {

class WindowTimers;

class FormPresenter final : public FormView {
 public:
  FormPresenter();

  // What it shows, where, and how deep the program stands. All have to outlive it.
  void Attach(const Form& form, FrmMain& window, const EventGate& gate, WindowTimers& timers);

  // Brings the screen up to date.
  void Refresh();

  std::int32_t GetCountPerPage() override;
  std::int32_t FirstVisibleRow() override;
  void StatusChanged() override { Show(StatusPart); }
  void ProgressChanged() override { Show(ProgressPart); }
  void PointerChanged() override;
  void ControlEnabled(FormControl control, bool enabled) override;
  void RunButtonsChanged() override { Show(ButtonsPart); }
  void ModesChanged() override { Show(ButtonsPart); }
  void HelpChanged() override { Show(HelpPart); }
  void WildCardChanged() override { Show(WildCardPart); }
  void BoxTextChanged(int box) override;
  void BoxShapeChanged(int box) override;
  void FileStatusChanged() override { Show(FileStatusPart); }
  void TimerStarted(FormTimer timer) override;
  void TimerStopped(FormTimer timer) override;
  void RowsCleared() override;
  void RowAdded(std::int32_t row) override;
  void RowsMoved() override;
  void CellChanged(std::int32_t row, Column column) override;
  void SelectionChanged() override { Show(SelectionPart); }
  void EnsureVisible(std::int32_t row) override;
  void ListHidden(bool hidden) override;

 private:
  enum Part : unsigned {
    StatusPart = 1,
    ProgressPart = 2,
    ButtonsPart = 4,
    HelpPart = 8,
    WildCardPart = 16,
    FileStatusPart = 32,
    SelectionPart = 64,
    RowsPart = 128,
    BoxesPart = 256,
  };

  void Show(Part part);
  void ShowPlacesOfRows();
  void ShowRows();
  void ShowButtons();
  void ShowWildCard();
  void ShowBoxes();
  void ShowBox(int box);
  QWidget* WidgetOf(FormControl control) const;

  const Form* form_ = nullptr;
  FrmMain* window_ = nullptr;
  FormControls* controls_ = nullptr;
  const EventGate* gate_ = nullptr;
  WindowTimers* timers_ = nullptr;
  std::unique_ptr<FileListModel> model_;
  QTimer refresh_;
  unsigned outdated_ = 0;
  bool rowsMoved_ = false;
  int firstChangedRow_ = 0;  // from 0; an empty range while it is behind the last one
  int lastChangedRow_ = -1;
  QPointer<QWidget> focusBeforeDisabling_;
};

}  // namespace vorlane
