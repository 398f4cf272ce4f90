// vorlane-cli undo: takes back what the journal of a folder records.
#include <iostream>
#include <memory>

#include "batch/undo_run.h"
#include "cli/command.h"
#include "cli/command_world.h"
#include "cli/message.h"
#include "cli/row_output.h"
#include "platform/code_page.h"
#include "platform/console.h"
#include "platform/file_name_bytes.h"

namespace vorlane {

namespace {

struct UndoCommandArguments {
  std::string Folder;
  bool AsJson = false;
};

// Ends a replay between two records, so that the journal stays.
struct ReplayStopped {};

class RecordPrinter final : public UndoListener {
 public:
  RecordPrinter(CommandWorld& world, bool asJson) : world_(world) {
    if (asJson) {
      json_ = std::make_unique<JsonListPrinter>();
    }
  }

  void RecordReplayed(std::string_view line, UndoOutcome outcome, TextView reason) override {
    // The replay passes over what a writer of tags reports.
    const Text trouble = world_.Troubles.Take();
    const bool done = outcome == UndoOutcome::Done && trouble.empty();
    (done ? done_ : skipped_) += 1;
    Print(TextFromCodePage(line), done, reason.empty() ? TextView(trouble) : reason);
    if (StopSignalled()) {
      throw ReplayStopped();
    }
  }

  // Ends the output; a summary goes to standard error, with JSON only if the replay was stopped.
  // True if nothing was skipped.
  bool Finish(bool stopped) {
    if (json_ != nullptr) {
      json_->Finish();
    }
    std::cout.flush();
    if (json_ == nullptr || stopped) {
      std::cerr << done_ << " done, " << skipped_ << " skipped"
                << (stopped ? ", stopped: the journal stays\n" : "\n");
    }
    return skipped_ == 0;
  }

 private:
  void Print(const Text& record, bool done, TextView reason) {
    if (json_ != nullptr) {
      Json object{{"record", JsonString(record)}, {"done", done}};
      if (!reason.empty()) {
        object["reason"] = JsonString(reason);
      }
      json_->Add(object);
    } else {
      std::cout << (done ? "done     " : "skipped  ") << ForOutput(DisplayUtf8(record));
      std::cout << (reason.empty() ? "" : " (" + ForOutput(DisplayUtf8(reason)) + ")") << '\n';
    }
  }

  CommandWorld& world_;
  std::unique_ptr<JsonListPrinter> json_;
  std::size_t done_ = 0;
  std::size_t skipped_ = 0;
};

void RequireJournal(CommandWorld& world, const std::string& folder) {
  try {
    if (!JournalExists(world.Files, world.State.CurrentPath)) {
      throw CommandError(ExitStatus::NotFound, "no journal in " + folder);
    }
  } catch (const RunError& error) {
    throw CommandError(ExitStatus::Refused, "can't read the journal in " + folder + ": " +
                                                DisplayUtf8(error.Description()));
  }
}

ExitStatus Undo(const UndoCommandArguments& arguments) {
  CatchStopSignals();
  CommandWorld world;
  world.State.CurrentPath = FolderArgument(world.Files, arguments.Folder);
  RequireJournal(world, arguments.Folder);
  RecordPrinter printer(world, arguments.AsJson);
  UndoRun undo(world.State, world.Outside, world.List, &printer);
  bool stopped = false;
  try {
    undo.cmdUndo_Click();
  } catch (const ReplayStopped&) {
    stopped = true;
  }
  world.Progress.Clear();
  const bool nothingSkipped = printer.Finish(stopped);
  return nothingSkipped && !stopped ? world.Status() : ExitStatus::Refused;
}

}  // namespace

void AddUndoCommand(CLI::App& app, ExitStatus& status) {
  auto arguments = std::make_shared<UndoCommandArguments>();
  CLI::App* command = app.add_subcommand("undo", "Take back the last run on a folder");
  command->add_option("FOLDER", arguments->Folder, "The folder that the run worked on")
      ->type_name("")
      ->required();
  command->add_flag("--json", arguments->AsJson, "Print JSON");
  command->callback([arguments, &status] { status = Undo(*arguments); });
}

}  // namespace vorlane
