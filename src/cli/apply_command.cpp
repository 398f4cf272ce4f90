// vorlane-cli apply: carries an operation out and leaves the journal for undo.
#include <iostream>
#include <limits>
#include <memory>

#include "batch/batch_run.h"
#include "cli/command.h"
#include "cli/operation_arguments.h"
#include "cli/row_output.h"
#include "platform/console.h"

namespace vorlane {

namespace {

// Prints each row as the run finishes it.
class RowPrinter final : public RunListener {
 public:
  RowPrinter(const OperationArguments& arguments, const Session& session)
      : arguments_(arguments), form_(session.State) {
    if (arguments_.AsJson) {
      json_ = std::make_unique<JsonListPrinter>();
    }
  }

  void RowFinished(const RowOutcome& outcome) override {
    ++rows_;
    const bool renamed = outcome.RenameTried && outcome.Rename.Outcome == RenameOutcome::Done;
    const Text reason = ReasonOf(outcome);
    const bool done = reason.empty() && (renamed || outcome.Steps.Changed);
    changes_ += done ? 1 : 0;
    refusals_ += reason.empty() ? 0 : 1;
    if (json_ != nullptr) {
      PrintJson(outcome, done, reason);
    } else {
      PrintPlain(outcome, done, reason);
    }
  }

  ExitStatus Finish(bool stopped) {
    if (json_ != nullptr) {
      json_->Finish();
    }
    std::cout.flush();
    std::cerr << changes_ << " of " << rows_ << " changed";
    if (refusals_ > 0) {
      std::cerr << ", " << refusals_ << " refused";
    }
    std::cerr << (stopped ? ", stopped\n" : "\n");
    // The journal's lines are counted in 16 bits when they are replayed.
    if (changes_ > std::numeric_limits<std::int16_t>::max()) {
      PrintMessage(u"more than 32767 changes: undo will not be able to take them back");
    }
    return refusals_ > 0 || stopped ? ExitStatus::Refused : ExitStatus::Done;
  }

 private:
  static Text ReasonOf(const RowOutcome& outcome) {
    if (outcome.Proposed == u"<Read Only>") {
      return u"read only";
    }
    if (outcome.Proposed == u"<File in Use>") {
      return u"in use";
    }
    if (outcome.Steps.MoveRefused) {
      return u"not moved: no such folder, or the name is taken there";
    }
    const bool moved = outcome.Steps.Changed && !outcome.Steps.StepTagPresent;
    if (!outcome.RenameTried || outcome.Rename.Outcome == RenameOutcome::Done || moved) {
      return {};
    }
    if (!outcome.Rename.Attempted) {
      return u"the name is taken or the entry has gone";
    }
    return outcome.Rename.Outcome == RenameOutcome::TargetExists ? u"the name is taken"
                                                                 : u"the system refused the name";
  }

  void PrintJson(const RowOutcome& outcome, bool done, const Text& reason) {
    Json row = RowJson(form_, outcome.Row);
    row["name"] = JsonString(outcome.Name);
    row["done"] = done;
    if (!reason.empty()) {
      row["reason"] = JsonString(reason);
    }
    json_->Add(row);
  }

  void PrintPlain(const RowOutcome& outcome, bool done, const Text& reason) {
    const std::string name = PrintableName(outcome.Name);
    if (!reason.empty()) {
      std::cerr << name << ": " << PrintableName(reason) << '\n';
    } else if (done || arguments_.All) {
      const bool renamed = outcome.RenameTried;
      std::cout << name << " -> " << (renamed ? PrintableName(outcome.Proposed) : name) << '\n';
    }
  }

  const OperationArguments& arguments_;
  const Form& form_;
  std::unique_ptr<JsonListPrinter> json_;
  std::size_t rows_ = 0;
  std::size_t changes_ = 0;
  std::size_t refusals_ = 0;
};

// One row after the other, each as a run of its own that adds to the same journal. A run may move
// rows, so each is found again by its folder and name.
void RunOnly(const OperationArguments& arguments, Session& session, BatchRun& run) {
  Form& form = session.State;
  std::vector<std::pair<Text, Text>> wanted;
  for (const std::int32_t row : arguments.OnlyRows(form)) {
    wanted.emplace_back(form.Rows.PathOf(row), form.Rows.At(row).Name);
  }
  auto start = JournalStart::New;
  for (const auto& [folder, name] : wanted) {
    std::int32_t row = 1;
    while (row <= form.Rows.Count() &&
           (form.Rows.At(row).Name != name || form.Rows.PathOf(row) != folder)) {
      ++row;
    }
    if (row <= form.Rows.Count() && !StopSignalled()) {
      arguments.SelectRow(session, row);
      session.Previews.UpdateFilePreviewAll(false, row);
      run.cmdGo_Click(start);
      start = JournalStart::Continue;
    }
  }
}

ExitStatus Apply(const OperationArguments& arguments) {
  CatchStopSignals();
  Session session;
  arguments.Prepare(session);
  RowPrinter printer(arguments, session);
  BatchRun run(session.State, session.Outside, session.Facts, session.Previews, session.List,
               &printer);
  if (arguments.Only.empty()) {
    run.cmdGo_Click();
  } else {
    RunOnly(arguments, session, run);
  }
  session.Progress.Clear();
  const ExitStatus printed = printer.Finish(StopSignalled());
  return printed == ExitStatus::Done ? session.Status() : printed;
}

}  // namespace

void AddApplyCommand(CLI::App& app, ExitStatus& status) {
  auto arguments = std::make_shared<OperationArguments>();
  CLI::App* command = app.add_subcommand("apply", "Carry an operation out");
  arguments->AddTo(*command);
  command->callback([arguments, &status] { status = Apply(*arguments); });
}

}  // namespace vorlane
