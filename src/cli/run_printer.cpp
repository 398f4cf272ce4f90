#include "cli/run_printer.h"

#include <iostream>

#include "cli/message.h"

namespace vorlane {

namespace {

// What the row's own outcome says was refused; empty if nothing was.
Text RefusalOf(const RowOutcome& outcome, bool renamed) {
  const StepResults& steps = outcome.Steps;
  if (steps.MoveRefused) {
    return u"not moved: no such folder, or the name is taken there";
  }
  if (steps.TagRefused) {
    return u"tag unchanged: the undo file can't record the old one";
  }
  // A marker bars the new name only; the steps have done their work.
  if (!steps.Changed && outcome.Proposed == ReadOnlyMarker()) {
    return u"read only";
  }
  if (!steps.Changed && outcome.Proposed == FileInUseMarker()) {
    return u"in use";
  }
  if (!outcome.RenameTried || renamed) {
    return {};
  }
  if (!steps.MovedTo.empty()) {
    return u"moved, but not renamed: it had gone from its folder";
  }
  if (!outcome.Rename.Attempted) {
    return u"the name is taken or the entry has gone";
  }
  return outcome.Rename.Outcome == RenameOutcome::TargetExists ? u"the name is taken"
                                                               : u"the system refused the name";
}

// A folder as seen from the one that the run works on; one that isn't below it stays as it is.
Text FromFolder(const Text& folder, const Text& base) {
  return folder.starts_with(base) ? folder.substr(base.size()) : folder;
}

}  // namespace

RunPrinter::RunPrinter(CommandWorld& world, bool asJson, bool all) : world_(world), all_(all) {
  if (asJson) {
    json_ = std::make_unique<JsonListPrinter>();
  }
}

// Trouble in front of the row isn't the row's.
void RunPrinter::RowStarted(std::int32_t /*row*/) {
  world_.Troubles.Take();
}

void RunPrinter::RowFinished(const RowOutcome& outcome) {
  const Verdict verdict = VerdictOn(outcome);
  ++rows_;
  changes_ += verdict.Done ? 1 : 0;
  refusals_ += verdict.Reason.empty() ? 0 : 1;
  if (json_ != nullptr) {
    PrintJson(outcome, verdict);
  } else {
    PrintPlain(outcome, verdict);
  }
}

RunPrinter::Verdict RunPrinter::VerdictOn(const RowOutcome& outcome) {
  Verdict verdict;
  verdict.Renamed = outcome.RenameTried && outcome.Rename.Outcome == RenameOutcome::Done;
  verdict.Reason = RefusalOf(outcome, verdict.Renamed);
  const Text trouble = world_.Troubles.Take();
  if (verdict.Reason.empty() && !trouble.empty()) {
    verdict.Reason = trouble;
    verdict.ReasonTold = true;
  }
  verdict.Done = verdict.Renamed || !outcome.Steps.MovedTo.empty() ||
                 (outcome.Steps.Changed && verdict.Reason.empty());
  return verdict;
}

void RunPrinter::RowVanished(TextView name) {
  ++refusals_;
  world_.Troubles.Tell(Text(name) + u": the entry has gone");
}

void RunPrinter::PrintJson(const RowOutcome& outcome, const Verdict& verdict) {
  Json row = RowJson(world_.State, outcome.Row);
  row["name"] = JsonString(outcome.Name);
  row["done"] = verdict.Done;
  if (!outcome.Steps.MovedTo.empty()) {
    row["movedTo"] = JsonString(outcome.Steps.MovedTo);
  }
  if (!verdict.Reason.empty()) {
    row["reason"] = JsonString(verdict.Reason);
  }
  json_->Add(row);
}

void RunPrinter::PrintPlain(const RowOutcome& outcome, const Verdict& verdict) {
  if (!verdict.Reason.empty() && !verdict.ReasonTold) {
    PrintMessage(outcome.Name + u": " + verdict.Reason);
  }
  if (verdict.Done || all_) {
    const Text& newName = verdict.Renamed ? outcome.Proposed : outcome.Name;
    const Text place = FromFolder(outcome.Steps.MovedTo, world_.State.CurrentPath);
    std::cout << PrintableName(outcome.Name) << " -> " << PrintableName(place + newName) << '\n';
  }
}

bool RunPrinter::Finish(bool stopped) {
  if (json_ != nullptr) {
    json_->Finish();
  }
  std::cout.flush();
  if (json_ == nullptr || stopped) {
    std::cerr << changes_ << " of " << rows_ << " changed";
    std::cerr << (refusals_ > 0 ? ", " + std::to_string(refusals_) + " refused" : "");
    std::cerr << (stopped ? ", stopped\n" : "\n");
  }
  return refusals_ == 0;
}

}  // namespace vorlane
