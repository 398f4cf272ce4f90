// vorlane-cli undo: takes back what the journal of a folder records.
#include <iostream>
#include <memory>

#include "batch/undo_run.h"
#include "cli/command.h"
#include "cli/row_output.h"
#include "cli/session.h"
#include "platform/code_page.h"
#include "platform/file_name_bytes.h"

namespace vorlane {

namespace {

struct Arguments {
  std::string Folder;
  bool AsJson = false;
};

class RecordPrinter final : public UndoListener {
 public:
  explicit RecordPrinter(bool asJson) {
    if (asJson) {
      json_ = std::make_unique<JsonListPrinter>();
    }
  }

  void RecordReplayed(std::string_view line, UndoOutcome outcome, TextView reason) override {
    const bool done = outcome == UndoOutcome::Done;
    (done ? done_ : skipped_) += 1;
    const Text record = TextFromCodePage(line);
    if (json_ != nullptr) {
      Json object{{"record", JsonString(record)}, {"done", done}};
      if (!reason.empty()) {
        object["reason"] = JsonString(reason);
      }
      json_->Add(object);
    } else {
      std::cout << (done ? "done     " : "skipped  ") << DisplayUtf8(record);
      std::cout << (reason.empty() ? "" : " (" + DisplayUtf8(reason) + ")") << '\n';
    }
  }

  ExitStatus Finish() {
    if (json_ != nullptr) {
      json_->Finish();
    }
    std::cout.flush();
    std::cerr << done_ << " done, " << skipped_ << " skipped\n";
    return skipped_ > 0 ? ExitStatus::Refused : ExitStatus::Done;
  }

 private:
  std::unique_ptr<JsonListPrinter> json_;
  std::size_t done_ = 0;
  std::size_t skipped_ = 0;
};

ExitStatus Undo(const Arguments& arguments) {
  Session session;
  session.State.CurrentPath = FolderArgument(session.Files, arguments.Folder);
  if (!JournalExists(session.Files, session.State.CurrentPath)) {
    throw CommandError(ExitStatus::NotFound, "no journal in " + arguments.Folder);
  }
  RecordPrinter printer(arguments.AsJson);
  UndoRun undo(session.State, session.Outside, session.List, &printer);
  undo.cmdUndo_Click();
  session.Progress.Clear();
  const ExitStatus printed = printer.Finish();
  return printed == ExitStatus::Done ? session.Status() : printed;
}

}  // namespace

void AddUndoCommand(CLI::App& app, ExitStatus& status) {
  auto arguments = std::make_shared<Arguments>();
  CLI::App* command = app.add_subcommand("undo", "Take back the last run on a folder");
  command->add_option("FOLDER", arguments->Folder, "The folder that the run worked on")->required();
  command->add_flag("--json", arguments->AsJson, "Print JSON");
  command->callback([arguments, &status] { status = Undo(*arguments); });
}

}  // namespace vorlane
